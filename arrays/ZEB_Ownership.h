/*
 * How an object array manages the references that it holds.
 */
#import <Korvane_ZEB/ZEB_Object_Collection.h>

/**
 * The ownership modes of object collections.
 *
 * Under automatic reference counting mode 2 is the one to use: the compiler keeps its own count. An array in
 * mode 1 is handed a reference that the compiler no longer counts:
 *
 *     [objects append_object:(__bridge id)(__bridge_retained void *)object];
 *
 * In mode 0 the objects must be kept elsewhere: a local variable alone may give its object up after its last
 * use.
 */
enum {
    ZEB_OWNERSHIP_BORROWS = 0, /* neither retains nor releases */
    ZEB_OWNERSHIP_ADOPTS = 1,  /* takes over the caller's reference, releases what it removes or replaces */
    ZEB_OWNERSHIP_RETAINS = 2  /* retains what it stores, releases what it removes or replaces */
};

@interface ZEB_Object_Collection (Ownership)

/** The mode: 2 after every initialiser, except that copying or linking a raw block of references sets 0.
    Setting it retains and releases nothing. Elements copied from another object array are retained in mode 1
    as well, because that array keeps its own references. */
- (uint32_t)ownership_mode;
- (void)set_ownership_mode:(uint32_t)mode;

@end
