/*
 * Conversions between TT_PHRASE and arrays of NSNumbers.
 */
#import <Korvane_ZEB/ZEB_T_Array.h>

ZEB_ASSUME_NONNULL_BEGIN

@interface ZEB_T_Vector (NSArray_Conversion)

/** Returns an autoreleased array of NSNumbers with exactly the values of the elements, NaN and infinities
    included; nil, after "Runtime error in allocate macro", if the platform cannot make it. */
- (NSArray *ZEB_NULLABLE)NSArray_value;

@end

@interface ZEB_T_Array (NSArray_Conversion)

/**
 * Replaces the contents with the values of NSNumbers and returns 1; nil counts as no numbers, and a link
 * becomes an owner, as with `set_TT_words:count:`. All are stored or none: "Not an array of numbers that are
 * in the range of the elements, no change made." is reported, and 0 returned, for an object that is no
 * NSArray, an element that is no NSNumber (NSNull, a string) and a number that does not fit.
 *
 * Integers take what has exactly their value, in whatever type: 3.0 and YES, not 3.5, NaN, or one beyond
 * their range; and NSDecimalNumbers below 2^53 in magnitude, the platform having no exact value of greater
 * ones. Floating-point elements take every number, rounded to the nearest, but for finite ones that would
 * become infinite.
 *
 * The numbers are those that the array has at the call, whatever happens to a mutable one meanwhile.
 */
- (uint8_t)set_from_NSArray:(NSArray *ZEB_NULLABLE)numbers;

@end

ZEB_ASSUME_NONNULL_END
