/*
 * Binary records of TT_PHRASE.
 */
#import <Korvane_ZEB/ZEB_T_Array.h>

@class ZEB_Char_Vector, ZEB_String;

ZEB_ASSUME_NONNULL_BEGIN

@interface ZEB_T_Vector (Binary_Contents)

/** Appends the vector's record to a buffer: the count in 4 bytes, then the elements, in this machine's byte
    order and without padding. Arrays of strings or byte arrays append the record of each object. Object
    references have only the empty record; any others append nothing. A buffer that is a link reports "Cannot
    update capacity through link, no adjustment made." */
- (void)ZEB_encode_binary_contents:(ZEB_String *ZEB_NULLABLE)buffer;

@end

@interface ZEB_T_Array (Binary_Contents)

/** Replaces the contents with the elements of the record at the start of the buffer, reversing the bytes of
    every value if `needs_swap` is not 0, and returns the size of the record in bytes. Returns 0, with nothing
    changed, for a link ("Cannot decode binary contents through link, no decode performed."), for a buffer
    that ends before the record does ("Binary contents are truncated, no decode performed."), and if
    allocation fails. */
- (uint32_t)ZEB_decode_binary_contents:(ZEB_Char_Vector *ZEB_NULLABLE)buffer needs_swap:(uint8_t)needs_swap;

@end

ZEB_ASSUME_NONNULL_END
