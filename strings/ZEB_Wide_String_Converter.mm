#import <Korvane_ZEB/ZEB_Wide_String_Converter.h>

#import <Korvane_ZEB/ZEB_NSString_Conversion.h>

#import "strings/ZEB_NSString_Conversion_Private.h"
#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "strings/engine/transcoding.hpp"

namespace
{

/// Decodes well-formed text without NSString. Returns false for ill-formed text or a leading byte-order mark;
/// the target's contents are then unspecified and the caller must convert through NSString.
bool decode_directly(ZEB_Wide_String *target, std::span<const char> utf8)
{
    return engine::set_to_utf16_of_utf8(
        engine::storage_of_array(target), utf8, engine::Fix_Report { target, @selector(set_from_NSString:) });
}

void decode_by_platform(ZEB_Wide_String *target, std::span<const char> bytes, ZEB_Encoding_Type type)
{
    NSData *const copy = [[NSData alloc] initWithBytes:bytes.data() length:bytes.size()];
    const NSStringEncoding encoding = engine::platform_encoding(type);
    NSString *const text =
        encoding != engine::no_encoding ? [[NSString alloc] initWithData:copy encoding:encoding] : nil;
    [target set_from_NSString:text];
    [text release];
    [copy release];
}

void convert(ZEB_Wide_String *target, std::span<const char> text, ZEB_Encoding_Type type)
{
    if (target == nil)
        return;
    if (text.empty())
        [target clear];
    else if (!engine::is_utf8(type) || !decode_directly(target, text))
        decode_by_platform(target, text, type);
}

} // namespace

@implementation ZEB_Wide_String_Converter

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (ZEB_Wide_String *)target
{
    return target;
}

- (void)set_target:(ZEB_Wide_String *)string
{
    target = string;
}

- (void)set_from_string:(ZEB_Char_Vector *)chars
{
    convert(target, engine::text_of(chars), ZEB_ENCODING_UTF8);
}

- (void)copy_string:(ZEB_Char_Vector *)chars
{
    convert(target, engine::text_of(chars), ZEB_ENCODING_UTF8);
}

- (void)set_from_string_with_encoding_type:(ZEB_Char_Vector *)chars type:(ZEB_Encoding_Type)type
{
    convert(target, engine::text_of(chars), type);
}

- (void)set_from_bytes:(const char *)bytes length:(uint32_t)length type:(ZEB_Encoding_Type)type
{
    convert(target, {bytes, length}, type);
}

@end
