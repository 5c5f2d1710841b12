/*
 * What an object array does with the references that it holds.
 */
#import <Korvane_ZEB/ZEB_Object_Collection.h>

/** The ownership mode of object collections. */
enum {
    ZEB_OWNERSHIP_BORROWS = 0, /* neither retains nor releases */
    ZEB_OWNERSHIP_ADOPTS = 1,  /* takes over the caller's reference, releases what it drops or replaces */
    ZEB_OWNERSHIP_RETAINS = 2  /* retains what it stores, releases what it drops or replaces */
};

@interface ZEB_Object_Collection (Ownership)

/** The mode: 2 after every initialiser but those that copy or link a raw block of references, which set
    it to 0. Setting it retains and releases nothing. An element that comes from another object array is
    retained in mode 1 too, because that array keeps its own reference. */
- (uint32_t)ownership_mode;
- (void)set_ownership_mode:(uint32_t)mode;

@end
