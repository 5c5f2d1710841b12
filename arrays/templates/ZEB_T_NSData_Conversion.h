/*
 * Conversions between TT_PHRASE and NSData, whose bytes are the elements in this machine's byte order.
 */
#import <Korvane_ZEB/ZEB_T_Array.h>

ZEB_ASSUME_NONNULL_BEGIN

@interface ZEB_T_Vector (NSData_Conversion)

/** Returns autoreleased data with a copy of the elements; nil, after "Runtime error in allocate macro", if
    the platform cannot make it. */
- (NSData *ZEB_NULLABLE)NSData_value;

/** Returns an autoreleased link to the bytes of data, of which nothing is copied; an empty one for nil. The
    link does not retain the data: keep it, and a mutable one unchanged, for as long as the link is read.
    Nothing may be stored through the link but into bytes of mutable data. Returns nil after "Not data of a
    whole number of elements, aligned as they are, no link made." for an object that is no NSData, a length
    that leaves a rest, bytes at an address where an element may not lie, and more than 4294967295 elements. */
+ (ZEB_INSTANCE_OF(ZEB_T_Vector *) ZEB_NULLABLE)link_to_NSData:(NSData *ZEB_NULLABLE)bytes;

@end

@interface ZEB_T_Array (NSData_Conversion)

/** Hands the array's block over to autoreleased data, which frees it; nothing is copied, and the array is
    empty, without a block. The room behind the elements goes with the block (`trim_allocation`). A link
    reports "Cannot hand over block through link, no data made.", and what the platform cannot make "Runtime
    error in allocate macro"; nil is returned then, and nothing changes. Links onto the array view the data
    from then on, which does not know them. */
- (NSData *ZEB_NULLABLE)NSData_taking_block;

/** Replaces the contents with a copy of the bytes of data, at any address, and returns 1; nil counts as
    empty, and a link becomes an owner, as with `set_TT_words:count:`. Returns 0, with nothing changed, after
    "Not data of a whole number of elements, no change made." for an object that is no NSData and a length that
    leaves a rest; and if allocation fails. */
- (uint8_t)set_from_NSData:(NSData *ZEB_NULLABLE)bytes;

@end

ZEB_ASSUME_NONNULL_END
