/*
 * Axes of values.
 */
#import "axis.h"

/** Returns an axis that goes from tick to tick, with the values between, and ticks at multiples of 1, 2 or 5
    times a power of ten, at most `greatest_count` of them or three. Values that are not finite do not count.
    Autoreleased. */
Axis *value_axis(ZEB_Double_Vector *values, uint32_t greatest_count);
