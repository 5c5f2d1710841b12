/*
 * 8-bit text into a 32-bit string.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Char_Vector;
@class ZEB_Wide_String;

/**
 * Fills one target string with the UTF-16 units of decoded text, one in each element. The target is a
 * plain reference: the caller keeps it alive. Without a target nothing is done.
 *
 * Text that cannot be decoded leaves the target empty. A target that is a link reports "Cannot update
 * length through link, no adjustment made.", save for text of length 0, with which its count becomes 0.
 */
ZEB_EXPORT
@interface ZEB_Wide_String_Converter : ZEB_Object {
    ZEB_PROTECTED
    ZEB_Wide_String *target;
}

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** The string to fill: nil at first, neither retained nor released. */
- (ZEB_Wide_String *)target;
- (void)set_target:(ZEB_Wide_String *)string;

/** Fills the target with text in UTF-8, under two names. */
- (void)set_from_string:(ZEB_Char_Vector *)chars;
- (void)copy_string:(ZEB_Char_Vector *)chars;

/** Fills the target with text in the encoding of a type. */
- (void)set_from_string_with_encoding_type:(ZEB_Char_Vector *)chars type:(ZEB_Encoding_Type)type;

/** The same with `length` bytes. */
- (void)set_from_bytes:(const char *)bytes length:(uint32_t)length type:(ZEB_Encoding_Type)type;

@end
