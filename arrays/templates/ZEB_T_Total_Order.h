/*
 * Sorting TT_PHRASE by a total order.
 */
#import <Korvane_ZEB/ZEB_T_Vector.h>

@class ZEB_UInt_Array;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * The order of `sort`, made total: -0.0 comes before 0.0, and NaN, of either sign, after all numbers. Equal
 * elements, and NaN among NaN, keep their order. Integers are in total order as they are.
 */
@interface ZEB_T_Vector (Total_Order)

/** Sorts vectors, arrays, and through links, in ascending order. */
- (void)sort_by_total_order;

/** Sorts and moves `indexes` alike: if these were 0, 1, 2, ..., element i was element `indexes[i]` before, as
    `apply_permutation:` expects, and the indexes of equal elements ascend. With fewer indexes than elements,
    and for nil, nothing changes and nothing is reported. Indexes that share memory with the elements are
    sorted as elements and not moved separately. If an allocation fails, "Runtime error in allocate macro" is
    reported and nothing changes. */
- (void)sort_by_total_order_with_permutation:(ZEB_UInt_Array *ZEB_NULLABLE)indexes;

@end

ZEB_ASSUME_NONNULL_END
