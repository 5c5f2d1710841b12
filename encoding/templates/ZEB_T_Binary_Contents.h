/*
 * TT_PHRASE as records of the external binary format.
 */
#import <Korvane_ZEB/ZEB_T_Array.h>

@class ZEB_Char_Vector, ZEB_String;

@interface ZEB_T_Vector (Binary_Contents)

/** Appends the vector's record to a buffer: the count in 4 bytes, then the elements, in this machine's
    byte order and without padding. Arrays of objects append each object's own record; of object
    references only the empty record exists, and others append nothing. A buffer that is a link reports
    "Cannot update capacity through link, no adjustment made." */
- (void)ZEB_encode_binary_contents:(ZEB_String *)buffer;

@end

@interface ZEB_T_Array (Binary_Contents)

/** Becomes the elements of the record that begins at the buffer's first byte, reversing the bytes of every
    value when `needs_swap` is not 0, and answers how many bytes the record takes. Answers 0, and changes
    nothing, on a link ("Cannot decode binary contents through link, no decode performed."), where the
    buffer ends before the record does ("Binary contents are truncated, no decode performed."), and where
    memory is short. */
- (uint32_t)ZEB_decode_binary_contents:(ZEB_Char_Vector *)buffer needs_swap:(uint8_t)needs_swap;

@end
