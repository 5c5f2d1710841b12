/*
 * The minimum and the maximum of bytes in one number.
 */
#import <Korvane_ZEB/ZEB_Byte_Vector.h>

@interface ZEB_Byte_Vector (Extremes)

/** Returns the largest byte × 256 + the smallest; 0 for an empty vector. */
- (uint32_t)minimum_and_maximum;

@end
