/*
 * 32-bit text into an 8-bit string.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Char_Vector;
@class ZEB_String;
@class ZEB_Wide_Char_Vector;

/**
 * Fills one target string. The target is a plain reference: the caller keeps it alive. Without a target
 * nothing is done.
 *
 * The 32-bit text is taken as UTF-16 units, of which only the low 16 bits count. Characters that the
 * encoding does not have are replaced as the platform does it. A target that is a link becomes an owner;
 * where there is nothing to fill in, its count becomes 0.
 */
ZEB_EXPORT
@interface ZEB_String_Converter : ZEB_Object {
    ZEB_PROTECTED
    ZEB_String *target;
}

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** The string to fill: nil at first, neither retained nor released. */
- (ZEB_String *)target;
- (void)set_target:(ZEB_String *)string;

/** Fills the target with the UTF-8 of a text, under two names. */
- (void)set_from_wide_string:(ZEB_Wide_Char_Vector *)wide;
- (void)copy_wide_string:(ZEB_Wide_Char_Vector *)wide;

/** Fills the target with the text in the encoding of a type. */
- (void)set_from_wide_string_with_encoding_type:(ZEB_Wide_Char_Vector *)wide type:(ZEB_Encoding_Type)type;

/** Hand a copy of 8-bit text to the target's operation of the same name. */
- (void)copy_c_string:(const char *)bytes length:(uint32_t)length;
- (void)set_contents_of_array:(ZEB_Char_Vector *)other;

@end
