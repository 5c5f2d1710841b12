/*
 * Single elements of TT_PHRASE by checked indexes.
 */
#import <Korvane_ZEB/ZEB_T_Vector.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * The operations of the same names without "checked", of vectors, arrays and links, for indexes that may be
 * wrong: an index that is not below the count reports "Index is not below the count, no element returned." or
 * "Index is not below the count, no element set." and changes nothing.
 *
 * What is checked is the index alone. A count that exceeds the block (`set_count:`), storage that was set by
 * pointer, and a link whose owner has released or moved its block are not found.
 *
 * A library that is built with ZEB_CHECK_INDEXES, as debug builds are, has the operations without "checked"
 * report in the same words; there a slot between count and capacity of an array may be stored in, for
 * `set_count:` to count it afterwards, and its address and that of the end may be asked for.
 */
@interface ZEB_T_Vector (Checked_Access)

/** Return the element at an index from the front, or from the end, where 0 is the last; 0 or nil after a
    report. */
- (TT_VALUE)checked_TT_word_at_index:(uint32_t)index;
- (TT_VALUE)checked_TT_word_at_index_from_end:(uint32_t)index;

/** Return the address of an element; null after a report. */
- (TT_SLOT *ZEB_NULLABLE)checked_pointer_to_TT_word_at_index:(uint32_t)index ZEB_INNER_POINTER;
- (TT_SLOT *ZEB_NULLABLE)checked_pointer_to_TT_word_at_index_from_end:(uint32_t)index ZEB_INNER_POINTER;

/** Store an element. */
- (void)set_checked_TT_word:(TT_VALUE)element at_index:(uint32_t)index;
- (void)set_checked_TT_word:(TT_VALUE)element at_index_from_end:(uint32_t)index;

@end

ZEB_ASSUME_NONNULL_END
