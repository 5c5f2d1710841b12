/*
 * The row of a string pool at which a string's text is kept.
 */
#import <Korvane_ZEB/ZEB_Char_Collection.h>
#import <Korvane_ZEB/ZEB_Wide_Char_Collection.h>

@interface ZEB_Char_Collection (Pool_Index)

/** The row in the pool; -1, as at first, for a string in no pool. The string does not interpret it. */
- (int32_t)pool_index;
- (void)set_pool_index:(int32_t)index;

@end

@interface ZEB_Wide_Char_Collection (Pool_Index)

/** The row in the pool; -1, as at first, for a string in no pool. The string does not interpret it. */
- (int32_t)pool_index;
- (void)set_pool_index:(int32_t)index;

@end
