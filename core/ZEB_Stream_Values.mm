#import "core/ZEB_Stream_Private.h"

#import <Korvane_ZEB/ZEB_String.h>

#include "core/engine/c_locale.hpp"
#include "core/engine/c_text.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/scan_format.hpp"
#include "core/engine/stream_formats.hpp"

namespace
{

void put_value(ZEB_Stream *stream, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const engine::C_Locale_Scope in_c_locale;
    [stream put_format:format arguments:arguments];
    va_end(arguments);
}

void take_value(ZEB_Stream *stream, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const engine::C_Locale_Scope in_c_locale;
    [stream take_format:format arguments:arguments];
    va_end(arguments);
}

} // namespace

@implementation ZEB_Stream (Values)

- (void)write_string_with_format:(ZEB_String *)string format:(const char *)format
{
    const engine::C_Text text([string char_data], [string count]);
    put_value(self, engine::or_default(format, "%s"), text.c_string());
}

- (void)write_double:(double)value
{
    [self write_double_with_format:value format:double_format];
}

- (void)write_double_with_format:(double)value format:(const char *)format
{
    put_value(self, engine::or_default(format, engine::default_double_format), value);
}

- (void)write_int:(int32_t)value
{
    [self write_int_with_format:value format:int_format];
}

- (void)write_int_with_format:(int32_t)value format:(const char *)format
{
    put_value(self, engine::or_default(format, engine::default_int_format), value);
}

- (void)write_unsigned:(uint32_t)value
{
    [self write_unsigned_with_format:value format:unsigned_format];
}

- (void)write_unsigned_with_format:(uint32_t)value format:(const char *)format
{
    put_value(self, engine::or_default(format, engine::default_unsigned_format), value);
}

- (void)write_float:(float)value
{
    [self write_float_with_format:value format:float_format];
}

- (void)write_float_with_format:(float)value format:(const char *)format
{
    put_value(self, engine::or_default(format, engine::default_float_format), static_cast<double>(value));
}

- (void)write_char:(int)value
{
    [self write_char_with_format:value format:char_format];
}

- (void)write_char_with_format:(int)value format:(const char *)format
{
    put_value(self, engine::or_default(format, engine::default_char_format), value);
}

- (void)write_character_code:(uint32_t)value
{
    [self write_character_code_with_format:value format:character_code_format];
}

- (void)write_character_code_with_format:(uint32_t)value format:(const char *)format
{
    put_value(self, engine::or_default(format, engine::default_character_code_format), value);
}

- (void)write_hex:(uint32_t)value
{
    [self write_hex_with_format:value format:hex_format];
}

- (void)write_hex_with_format:(uint32_t)value format:(const char *)format
{
    put_value(self, engine::or_default(format, engine::default_hex_format), value);
}

- (void)write_unsigned_long:(uint64_t)value
{
    [self write_unsigned_long_with_format:value format:unsigned_long_format];
}

- (void)write_unsigned_long_with_format:(uint64_t)value format:(const char *)format
{
    put_value(self, engine::or_default(format, engine::default_unsigned_long_format), value);
}

- (double)read_double
{
    return [self read_double_with_format:double_format];
}

- (double)read_double_with_format:(const char *)format
{
    const engine::Double_Scan_Format widened(engine::or_default(format, engine::default_double_format));
    double value = 0;
    take_value(self, widened.c_string(), &value);
    return value;
}

- (int32_t)read_int
{
    return [self read_int_with_format:int_format];
}

- (int32_t)read_int_with_format:(const char *)format
{
    int32_t value = 0;
    take_value(self, engine::or_default(format, engine::default_int_format), &value);
    return value;
}

- (uint32_t)read_unsigned
{
    return [self read_unsigned_with_format:unsigned_format];
}

- (uint32_t)read_unsigned_with_format:(const char *)format
{
    uint32_t value = 0;
    take_value(self, engine::or_default(format, engine::default_unsigned_format), &value);
    return value;
}

- (float)read_float
{
    return [self read_float_with_format:float_format];
}

- (float)read_float_with_format:(const char *)format
{
    float value = 0;
    take_value(self, engine::or_default(format, engine::default_float_format), &value);
    return value;
}

- (int)read_char
{
    return [self read_char_with_format:char_format];
}

- (int)read_char_with_format:(const char *)format
{
    signed char value = 0;
    take_value(self, engine::or_default(format, engine::default_char_format), &value);
    return value;
}

@end
