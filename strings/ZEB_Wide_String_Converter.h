/*
 * Converts 8-bit text to 32-bit strings.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Char_Vector;
@class ZEB_Wide_String;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Sets one target string to the UTF-16 units of decoded text, one per element. The target is not retained:
 * the caller keeps it alive. Without a target nothing happens.
 *
 * Text that cannot be decoded leaves the target empty. A target that is a link reports "Cannot update length
 * through link, no adjustment made.", except that text of length 0 sets its count to 0.
 *
 * Different objects may be used on different threads; ZEB_Object.h says what may not.
 */
ZEB_EXPORT
@interface ZEB_Wide_String_Converter : ZEB_Object {
    ZEB_PROTECTED
    ZEB_UNRETAINED ZEB_Wide_String *ZEB_NULLABLE target;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** The target string: nil at first, neither retained nor released. */
- (ZEB_Wide_String *ZEB_NULLABLE)target;
- (void)set_target:(ZEB_Wide_String *ZEB_NULLABLE)string;

/** Set the target to UTF-8 text, under two names. */
- (void)set_from_string:(ZEB_Char_Vector *ZEB_NULLABLE)chars;
- (void)copy_string:(ZEB_Char_Vector *ZEB_NULLABLE)chars;

/** Sets the target to text in the encoding of a type. */
- (void)set_from_string_with_encoding_type:(ZEB_Char_Vector *ZEB_NULLABLE)chars type:(ZEB_Encoding_Type)type;

/** The same for `length` bytes. */
- (void)set_from_bytes:(const char *ZEB_NULLABLE)bytes length:(uint32_t)length type:(ZEB_Encoding_Type)type;

@end

ZEB_ASSUME_NONNULL_END
