#import "core/ZEB_Stream_Private.h"

#import <Korvane_ZEB/ZEB_String.h>

#include "core/engine/c_locale.hpp"
#include "core/engine/c_text.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/scan_format.hpp"
#include "core/engine/stream_formats.hpp"
#include "numbers/engine/general_text.hpp"
#include "numbers/engine/unsigned_text.hpp"

#include <string.h>

namespace
{

void put_formatted(ZEB_Stream *stream, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    [stream put_format:format arguments:arguments];
    va_end(arguments);
}

void take_formatted(ZEB_Stream *stream, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const engine::C_Locale_Scope in_c_locale;
    [stream take_format:format arguments:arguments];
    va_end(arguments);
}

/// How a type's first format prints a value: the same characters as printf, without its cost.
char *put_first_format(char *out, double value) { return engine::put_general(out, value); }
char *put_first_format(char *out, float value)
{
    return engine::put_general(out, static_cast<double>(value));
}
char *put_first_format(char *out, int32_t value) { return engine::put_signed(out, value); }
char *put_first_format(char *out, uint32_t value) { return engine::put_unsigned(out, value); }
char *put_first_format(char *out, uint64_t value) { return engine::put_unsigned_64(out, value); }

/// Whether a format prints as the type's first one does.
bool is_first(const char *format, const char *first)
{
    return format == nullptr || strcmp(format, first) == 0;
}

/// Writes a value raw, by the type's first format, or through another format.
template <class Value>
void put_value(ZEB_Stream *stream, Value value, const char *format, const char *first)
{
    if ([stream put_raw:&value size:sizeof value])
        return;
    if (!is_first(format, first))
        return put_formatted(stream, format, value);
    char text[engine::longest_general_text];
    const char *const end = put_first_format(text, value);
    [stream put_bytes:text length:static_cast<uint32_t>(end - text)];
}

/// Writes a value whose first format, too, is left to printf.
void put_printed(ZEB_Stream *stream, uint32_t value, const char *format, const char *first)
{
    if (![stream put_raw:&value size:sizeof value])
        put_formatted(stream, engine::or_default(format, first), value);
}

/// Reads a value raw or through a format; 0 if there is none.
template <class Value>
Value take_value(ZEB_Stream *stream, const char *format, const char *first)
{
    Value value = 0;
    if (![stream take_raw:&value size:sizeof value])
        take_formatted(stream, engine::or_default(format, first), &value);
    return value;
}

} // namespace

@implementation ZEB_Stream (Values)

- (void)write_string_with_format:(ZEB_String *)string format:(const char *)format
{
    if ([self put_raw:[string char_data] size:[string count]])
        return;
    const engine::C_Text text([string char_data], [string count]);
    put_formatted(self, engine::or_default(format, "%s"), text.c_string());
}

- (void)write_double:(double)value
{
    [self write_double_with_format:value format:double_format];
}

- (void)write_double_with_format:(double)value format:(const char *)format
{
    put_value(self, value, format, engine::default_double_format);
}

- (void)write_int:(int32_t)value
{
    [self write_int_with_format:value format:int_format];
}

- (void)write_int_with_format:(int32_t)value format:(const char *)format
{
    put_value(self, value, format, engine::default_int_format);
}

- (void)write_unsigned:(uint32_t)value
{
    [self write_unsigned_with_format:value format:unsigned_format];
}

- (void)write_unsigned_with_format:(uint32_t)value format:(const char *)format
{
    put_value(self, value, format, engine::default_unsigned_format);
}

- (void)write_float:(float)value
{
    [self write_float_with_format:value format:float_format];
}

- (void)write_float_with_format:(float)value format:(const char *)format
{
    put_value(self, value, format, engine::default_float_format);
}

- (void)write_char:(int)value
{
    [self write_char_with_format:value format:char_format];
}

- (void)write_char_with_format:(int)value format:(const char *)format
{
    const char character = static_cast<char>(value);
    if ([self put_raw:&character size:sizeof character])
        return;
    if (is_first(format, engine::default_char_format))
        [self put_bytes:&character length:sizeof character];
    else
        put_formatted(self, format, value);
}

- (void)write_character_code:(uint32_t)value
{
    [self write_character_code_with_format:value format:character_code_format];
}

- (void)write_character_code_with_format:(uint32_t)value format:(const char *)format
{
    put_printed(self, value, format, engine::default_character_code_format);
}

- (void)write_hex:(uint32_t)value
{
    [self write_hex_with_format:value format:hex_format];
}

- (void)write_hex_with_format:(uint32_t)value format:(const char *)format
{
    put_printed(self, value, format, engine::default_hex_format);
}

- (void)write_unsigned_long:(uint64_t)value
{
    [self write_unsigned_long_with_format:value format:unsigned_long_format];
}

- (void)write_unsigned_long_with_format:(uint64_t)value format:(const char *)format
{
    put_value(self, value, format, engine::default_unsigned_long_format);
}

- (double)read_double
{
    return [self read_double_with_format:double_format];
}

- (double)read_double_with_format:(const char *)format
{
    const engine::Double_Scan_Format widened(engine::or_default(format, engine::default_double_format));
    return take_value<double>(self, widened.c_string(), nullptr);
}

- (int32_t)read_int
{
    return [self read_int_with_format:int_format];
}

- (int32_t)read_int_with_format:(const char *)format
{
    return take_value<int32_t>(self, format, engine::default_int_format);
}

- (uint32_t)read_unsigned
{
    return [self read_unsigned_with_format:unsigned_format];
}

- (uint32_t)read_unsigned_with_format:(const char *)format
{
    return take_value<uint32_t>(self, format, engine::default_unsigned_format);
}

- (float)read_float
{
    return [self read_float_with_format:float_format];
}

- (float)read_float_with_format:(const char *)format
{
    return take_value<float>(self, format, engine::default_float_format);
}

- (int)read_char
{
    return [self read_char_with_format:char_format];
}

- (int)read_char_with_format:(const char *)format
{
    return take_value<signed char>(self, format, engine::default_char_format);
}

@end
