/*
 * The position of a string in a string pool.
 */
#import <Korvane_ZEB/ZEB_Char_Collection.h>
#import <Korvane_ZEB/ZEB_Wide_Char_Collection.h>

@interface ZEB_Char_Collection (Pool_Index)

/** The row in the pool; -1, the first value, for a string in no pool. The string does not interpret it. */
- (int32_t)pool_index;
- (void)set_pool_index:(int32_t)index;

@end

@interface ZEB_Wide_Char_Collection (Pool_Index)

/** The row in the pool; -1, the first value, for a string in no pool. The string does not interpret it. */
- (int32_t)pool_index;
- (void)set_pool_index:(int32_t)index;

@end
