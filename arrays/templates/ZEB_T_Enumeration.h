/*
 * Fast enumeration of TT_PHRASE, with `for in`.
 */
#import <Korvane_ZEB/ZEB_T_Vector.h>

/** Enumerates the elements; the vector must not grow or shrink meanwhile. */
@interface ZEB_T_Vector (Enumeration) <NSFastEnumeration>
@end
