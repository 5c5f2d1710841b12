#import <Korvane_ZEB/ZEB_Number_Format.h>

#import <Korvane_ZEB/ZEB_Stream.h>
#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_Wide_Char_Text.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

#import "core/ZEB_Description_Stream_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "numbers/engine/number_format.hpp"

#include <algorithm>

namespace
{

/// Appends ASCII text.
void append(ZEB_Wide_String *string, const char *text, const char *end)
{
    uint32_t wide[engine::scientific_text_size];
    std::copy(text, end, wide);
    [string append_wide_chars:wide count:static_cast<uint32_t>(end - text)];
}

} // namespace

@implementation ZEB_Number_Format

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [super init];
    if (self == nil)
        return nil;
    precision = engine::default_number_format.precision;
    exponent_base = engine::default_number_format.base;
    zero_reference = engine::default_number_format.zero_reference;
    text = [[ZEB_Wide_String alloc] init];
    return self;
}

- (void)dealloc
{
    [text release];
    [super dealloc];
}

- (id)copyWithZone:(NSZone *)zone
{
    ZEB_Number_Format *const made = [[[self class] allocWithZone:zone] init];
    made->precision = precision;
    made->exponent_base = exponent_base;
    made->zero_reference = zero_reference;
    made->result_kind = result_kind;
    made->error_code = error_code;
    made->range = range;
    [made->text append_array:text];
    return made;
}

- (NSString *)description
{
    return engine::description_of(self);
}

- (void)take_result:(const engine::Number_Format_Result &)result
{
    result_kind = result.result_kind;
    error_code = result.error_code;
    range = result.range;
}

- (void)format_value:(double)value
{
    char buffer[engine::scientific_text_size];
    engine::Number_Format_Result result;
    append(text, buffer,
           engine::format_value(buffer, {precision, exponent_base, zero_reference}, value, result));
    [self take_result:result];
}

- (void)format_fixed:(double)value
{
    char buffer[engine::scientific_text_size];
    engine::Number_Format_Result result;
    append(text, buffer, engine::format_fixed(buffer, precision, value, result));
    [self take_result:result];
}

- (uint32_t)precision
{
    return precision;
}

- (void)set_precision:(uint32_t)value
{
    precision = value;
}

- (double)exponent_base
{
    return exponent_base;
}

- (void)set_exponent_base:(double)value
{
    exponent_base = value;
}

- (double)zero_reference
{
    return zero_reference;
}

- (void)set_zero_reference:(double)value
{
    zero_reference = value;
}

- (uint32_t)result_kind
{
    return result_kind;
}

- (void)set_result_kind:(uint32_t)value
{
    result_kind = value;
}

- (uint32_t)error_code
{
    return error_code;
}

- (void)set_error_code:(uint32_t)value
{
    error_code = value;
}

- (ZEB_Index_Range)range
{
    return range;
}

- (void)set_range:(ZEB_Index_Range)value
{
    range = value;
}

- (ZEB_Wide_String *)text
{
    return text;
}

- (void)set_text:(ZEB_Wide_String *)string
{
    ZEB_Wide_String *const former = text;
    text = string != nil ? [string retain] : [[ZEB_Wide_String alloc] init];
    [former release];
}

- (void)send_to_stream:(ZEB_Stream *)stream
{
    ZEB_String *const utf8 = [[ZEB_String alloc] init];
    [text write_code_points_as_utf8:utf8];
    [stream write_string:utf8];
    [utf8 release];
}

- (void)send_text_to_stream:(ZEB_Stream *)stream
{
    [self send_to_stream:stream];
}

- (void)send_contents_to_stream:(ZEB_Stream *)stream
{
    [self send_to_stream:stream];
}

@end
