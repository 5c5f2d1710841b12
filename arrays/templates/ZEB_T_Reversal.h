/*
 * TT_PHRASE in the opposite order.
 */
#import <Korvane_ZEB/ZEB_T_Vector.h>

ZEB_ASSUME_NONNULL_BEGIN

@interface ZEB_T_Vector (Reversal)

/** Reverses the order of all elements, also through a link: a, b, c, d becomes d, c, b, a, where `reverse`
    leaves the middle pair of an even count. */
- (void)reverse_elements;

@end

ZEB_ASSUME_NONNULL_END
