#import <Korvane_ZEB/ZEB_Ownership.h>

@implementation ZEB_Object_Collection (Ownership)

- (uint32_t)ownership_mode
{
    return ownership_mode;
}

- (void)set_ownership_mode:(uint32_t)mode
{
    ownership_mode = mode;
}

@end
