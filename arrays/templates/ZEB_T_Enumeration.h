/*
 * Going through arrays of TT_PHRASE with `for in`.
 */
#import <Korvane_ZEB/ZEB_T_Vector.h>

/** A vector whose elements are objects; it must not grow or shrink while it is gone through. */
@interface ZEB_T_Vector (Enumeration) <NSFastEnumeration>
@end
