/*
 * TT_PHRASE that go to other libraries, and come from them, through the Arrow C data interface.
 */
#import <Korvane_ZEB/ZEB_Arrow_Array.h>
#import <Korvane_ZEB/ZEB_T_Array.h>

ZEB_ASSUME_NONNULL_BEGIN

@interface ZEB_T_Vector (Arrow)

/** Sets both structs to the elements, in place: nothing is copied. The array's `release` drops a reference to
    the receiver, on the thread that calls it; until then the receiver lives, and must not grow, change its
    count or move its storage. What a link shows must live as long. Returns 1; or 0, with nothing set, for
    null and if allocation fails, which reports "Runtime error in allocate macro". */
- (uint8_t)export_to_arrow_array:(struct ArrowArray *ZEB_NULLABLE)array
                          schema:(struct ArrowSchema *ZEB_NULLABLE)schema;

@end

@interface ZEB_Arrow_Array (ZEB_T_Elements)

/** Returns a link onto the elements, autoreleased: nothing is copied. It may be used as long as the receiver
    lives, to read: what was received is not to be changed. Returns nil for elements of another type, where
    some are null or not aligned, and for more than an array can have. */
- (ZEB_T_Array *ZEB_NULLABLE)link_to_TT_words;

/** Sets an array to the elements and returns 1; floats and doubles that are null become NaN. Returns 0, with
    nothing changed, for elements of another type or more than an array can have, for integers of which some
    are null, for nil, for a link ("Cannot update length through link, no adjustment made.") and if allocation
    fails, which is reported. */
- (uint8_t)get_TT_words:(ZEB_T_Array *ZEB_NULLABLE)target;

@end

ZEB_ASSUME_NONNULL_END
