/*
 * 32-bit strings set from and extended by C text and UTF-8.
 */
#import <Korvane_ZEB/ZEB_Wide_String.h>

@class ZEB_Char_Vector;

ZEB_ASSUME_NONNULL_BEGIN

@interface ZEB_Wide_String (Text)

/** Replaces the contents with `length` 8-bit characters, one unit each. Nothing is decoded: bytes from 0x80
    on are sign-extended, to 0xFFFFFF80 and above. A link reports "Cannot copy c string through link, no copy
    made." */
- (void)copy_c_string:(const char *ZEB_NULLABLE)bytes length:(uint32_t)length;

/** Appends `length` 8-bit characters in the same way. A link reports "Cannot append c string through link, no
    append made.", also for length 0. */
- (void)append_c_string:(const char *ZEB_NULLABLE)bytes length:(uint32_t)length;

/** The same two operations under other names. */
- (void)copy_chars:(const char *ZEB_NULLABLE)bytes length:(uint32_t)length;
- (void)append_chars:(const char *ZEB_NULLABLE)bytes length:(uint32_t)length;

@end

/** Whole code points, one per element, as an alternative to UTF-16 units. */
@interface ZEB_Wide_String (Code_Points)

/** Replaces the contents with the code points of UTF-8 text and returns 1. Returns 0, with nothing changed,
    for ill-formed text and on a link, which reports "Cannot update length through link, no adjustment
    made." */
- (uint8_t)set_code_points_from_utf8:(ZEB_Char_Vector *ZEB_NULLABLE)text;

/** Splits each code point above 0xFFFF into a surrogate pair, growing as needed. A link reports "Cannot
    update capacity through link, no adjustment made." */
- (void)split_to_surrogate_pairs;

@end

ZEB_ASSUME_NONNULL_END
