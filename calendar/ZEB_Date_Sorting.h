/*
 * The order of dates and time stamps for the platform's sorts.
 */
#import <Korvane_ZEB/ZEB_Date.h>
#import <Korvane_ZEB/ZEB_Time_Stamp.h>

ZEB_ASSUME_NONNULL_BEGIN

@interface ZEB_Date (Sorting)

/** Compares day number, then second, then nanosecond, for sort descriptors and `sortedArrayUsingSelector:`.
    Nil and an object of another class compare as a date that was never set. */
- (NSComparisonResult)platform_compare:(ZEB_Date *ZEB_NULLABLE)other;

@end

@interface ZEB_Time_Stamp (Sorting)

/** Compares seconds, then nanoseconds, in the same way. Nil and an object of another class compare as the
    start of 1970. */
- (NSComparisonResult)platform_compare:(ZEB_Time_Stamp *ZEB_NULLABLE)other;

@end

ZEB_ASSUME_NONNULL_END
