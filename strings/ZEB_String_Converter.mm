#import <Korvane_ZEB/ZEB_String_Converter.h>

#import <Korvane_ZEB/ZEB_NSString_Conversion.h>
#import <Korvane_ZEB/ZEB_String_Text.h>

#import "strings/ZEB_NSString_Conversion_Private.h"
#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "strings/engine/transcoding.hpp"

namespace
{

/// Encodes well-formed text without NSString. Returns false for ill-formed text or a leading byte-order mark;
/// the target's contents are then unspecified and the caller must convert through NSString.
bool encode_directly(ZEB_String *target, ZEB_Wide_Char_Vector *wide)
{
    return engine::set_to_utf8_of_utf16(
        engine::storage_of_array(target), engine::text_of(wide),
        engine::Fix_Report { target, @selector(set_chars:count:) });
}

void convert(ZEB_String *target, ZEB_Wide_Char_Vector *wide, ZEB_Encoding_Type type)
{
    if (target == nil)
        return;
    if (engine::text_of(wide).empty())
        [target clear];
    else if (!engine::is_utf8(type) || !encode_directly(target, wide))
        [target set_from_NSString:[wide NSString_value] type:type];
}

} // namespace

@implementation ZEB_String_Converter

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (ZEB_String *)target
{
    return target;
}

- (void)set_target:(ZEB_String *)string
{
    target = string;
}

- (void)set_from_wide_string:(ZEB_Wide_Char_Vector *)wide
{
    convert(target, wide, ZEB_ENCODING_UTF8);
}

- (void)copy_wide_string:(ZEB_Wide_Char_Vector *)wide
{
    convert(target, wide, ZEB_ENCODING_UTF8);
}

- (void)set_from_wide_string_with_encoding_type:(ZEB_Wide_Char_Vector *)wide type:(ZEB_Encoding_Type)type
{
    convert(target, wide, type);
}

- (void)copy_c_string:(const char *)bytes length:(uint32_t)length
{
    [target copy_c_string:bytes length:length];
}

- (void)set_contents_of_array:(ZEB_Char_Vector *)other
{
    [target set_contents_of_array:other];
}

@end
