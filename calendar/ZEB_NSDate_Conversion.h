/*
 * Conversions between the framework's dates and NSDate. Returned NSDates are autoreleased.
 *
 * An NSDate is a double of seconds since 2001 in UTC. In our years its steps are some 0.1 microseconds, so
 * that nanoseconds do not survive the way there and back, and microseconds do if they are rounded again; in
 * the year 10000 the steps are 30 microseconds or so. The nanoseconds set are those of its double, to the
 * nearest.
 *
 * What is refused changes nothing and reports "No date or time zone, or an instant out of range, no change
 * made." or "No time zone, or an instant out of range, no date made.": nil and objects that are no NSDate or
 * NSTimeZone, an NSDate whose time is not a number or infinite, and what does not fit.
 */
#import <Korvane_ZEB/ZEB_Date.h>
#import <Korvane_ZEB/ZEB_Time_Stamp.h>

ZEB_ASSUME_NONNULL_BEGIN

/** A date is what the clocks of a time zone show; nil is UTC. One that was set from the local clock belongs
    to the zone of that clock, `[NSTimeZone defaultTimeZone]`. */
@interface ZEB_Date (NSDate_Conversion)

/** Returns the instant at which the clocks of the zone show year, month, day and time, in the civil calendar;
    what exceeds its month or day counts on, and the day number is not read. Of a time that occurs twice, when
    clocks are set back, it is the first; one that is left out, when they are set forward, counts on from
    before. Nil, after a report, beyond 1e18 seconds, which only an unchecked time reaches. */
- (NSDate *ZEB_NULLABLE)NSDate_value_in_time_zone:(NSTimeZone *ZEB_NULLABLE)zone;

/** Sets the date and time that the clocks of the zone show at an instant, and the day number of the civil
    calendar. Returns 1; 0 if it is refused, also because its year does not fit in 32 bits. */
- (uint8_t)set_from_NSDate:(NSDate *ZEB_NULLABLE)instant time_zone:(NSTimeZone *ZEB_NULLABLE)zone;

@end

@interface ZEB_Time_Stamp (NSDate_Conversion)

/** Returns the instant; nil, after a report, beyond 1e18 seconds. */
- (NSDate *ZEB_NULLABLE)NSDate_value;

/** Sets the instant. Returns 1; 0 if it is refused, also because it lies before 1970. */
- (uint8_t)set_from_NSDate:(NSDate *ZEB_NULLABLE)instant;

@end

ZEB_ASSUME_NONNULL_END
