/*
 * Contents as a list of hexadecimal numbers.
 */
#import <Korvane_ZEB/ZEB_Byte_Vector.h>
#import <Korvane_ZEB/ZEB_Pointer_Vector.h>
#import <Korvane_ZEB/ZEB_Wide_Char_Vector.h>

@class ZEB_String;

ZEB_ASSUME_NONNULL_BEGIN

/*
 * Each operation appends "{", the elements as lower-case digits without leading zeros and with ", " between
 * them, and "}"; "{}" for an empty vector. The buffer grows as for 6 characters a byte, 10 a 32-bit
 * character, 18 a pointer. A buffer that is a link reports "Cannot update capacity through link, no
 * adjustment made."; then, for nil, and if allocation fails, nothing is appended.
 */

@interface ZEB_Byte_Vector (Hex_Contents)

/** Appends the bytes: 0, 10 and 255 are "{0, a, ff}". */
- (void)ZEB_append_hex_contents:(ZEB_String *ZEB_NULLABLE)buffer;

@end

@interface ZEB_Wide_Char_Vector (Hex_Contents)

/** Appends the characters' codes. */
- (void)ZEB_append_hex_contents:(ZEB_String *ZEB_NULLABLE)buffer;

@end

@interface ZEB_Pointer_Vector (Hex_Contents)

/** Appends the addresses. */
- (void)ZEB_append_hex_contents:(ZEB_String *ZEB_NULLABLE)buffer;

@end

ZEB_ASSUME_NONNULL_END
