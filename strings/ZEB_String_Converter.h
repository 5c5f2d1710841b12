/*
 * Converts 32-bit text to 8-bit strings.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Char_Vector;
@class ZEB_String;
@class ZEB_Wide_Char_Vector;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Sets the contents of one target string. The target is not retained: the caller keeps it alive. Without a
 * target nothing happens.
 *
 * The 32-bit text consists of UTF-16 units, of which only the low 16 bits count. Foundation replaces
 * characters that the encoding does not have. A target that is a link becomes an owner; if the result is
 * empty its count becomes 0.
 *
 * Different objects may be used on different threads; ZEB_Object.h says what may not.
 */
ZEB_EXPORT
@interface ZEB_String_Converter : ZEB_Object {
    ZEB_PROTECTED
    ZEB_UNRETAINED ZEB_String *ZEB_NULLABLE target;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** The target string: nil at first, neither retained nor released. */
- (ZEB_String *ZEB_NULLABLE)target;
- (void)set_target:(ZEB_String *ZEB_NULLABLE)string;

/** Set the target to the UTF-8 of a text, under two names. */
- (void)set_from_wide_string:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)wide;
- (void)copy_wide_string:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)wide;

/** Sets the target to the text in the encoding of a type. */
- (void)set_from_wide_string_with_encoding_type:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)wide
                                           type:(ZEB_Encoding_Type)type;

/** Call the target's operation of the same name. */
- (void)copy_c_string:(const char *ZEB_NULLABLE)bytes length:(uint32_t)length;
- (void)set_contents_of_array:(ZEB_Char_Vector *ZEB_NULLABLE)other;

@end

ZEB_ASSUME_NONNULL_END
