#import <Korvane_ZEB/ZEB_Pool_Index.h>

@implementation ZEB_Char_Collection (Pool_Index)

- (int32_t)pool_index
{
    return pool_index;
}

- (void)set_pool_index:(int32_t)index
{
    pool_index = index;
}

@end

@implementation ZEB_Wide_Char_Collection (Pool_Index)

- (int32_t)pool_index
{
    return pool_index;
}

- (void)set_pool_index:(int32_t)index
{
    pool_index = index;
}

@end
