/*
 * A day of the Gregorian calendar with a time of day.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Stream;
@class ZEB_String;

/**
 * A date in two forms that are kept in step, year, month and day beside the Julian day number, and the time
 * since that day's midnight. No time zone is applied, save where the local clock is read.
 *
 * Nothing is refused: fields out of their range are brought into it by way of the day number, where an
 * operation says so, and no operation reports an error. The time of day is never checked; some operations
 * leave it past the day's end. A nil date is read as one that was never set; it equals no date.
 */
ZEB_EXPORT
@interface ZEB_Date : ZEB_Object <NSCopying> {
    ZEB_PROTECTED
    ZEB_Gregorian_Date date;
    int32_t julian_day;
    ZEB_Time_Value time; /* since midnight */
}

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Makes a date that was never set, which reads year -4713, month 1, day 1, Julian day 0, midnight; the
    proleptic date of that day is another one. */
- (id)init;

/** Makes a date by `set_date_and_time:second:nanosecond:`. */
- (id)init_with_date_and_time:(ZEB_Gregorian_Date)gregorian
                       second:(uint64_t)second
                   nanosecond:(uint64_t)nanosecond;

/** Makes a date from another's date and time of day, with the day number that belongs to them. */
- (id)init_with_date:(ZEB_Date *)other;

/** Makes a date by `set_to_current_time`. */
- (id)init_with_current_time;

/** A copy of all fields as they stand. */
- (id)copyWithZone:(NSZone *)zone;

/** The fields. Years are astronomical: year 0 exists. The second counts from midnight. */
- (int32_t)year;
- (int32_t)month;
- (int32_t)day;
- (int32_t)julian_day;
- (uint64_t)second;
- (uint64_t)nanosecond;

/** Takes the local wall clock, to the microsecond. */
- (void)set_to_current_time;

/** Takes all fields of another date as they stand, also where its two forms are out of step. */
- (void)assign_date:(ZEB_Date *)other;

/** Takes the fields and computes the day number; the date is not derived from it again, so that a day
    outside its month stays what it is. */
- (void)set_date_and_time:(ZEB_Gregorian_Date)gregorian
                   second:(uint64_t)second
               nanosecond:(uint64_t)nanosecond;

/** Derives the date from the day number. */
- (void)update_date_from_julian_day;

/** Takes a day number and derives the date; the time of day stays. */
- (void)set_julian_day:(int32_t)day_number;

/** Takes an instant in seconds since 1970-01-01 00:00, cut to the nanosecond. A negative multiple of 86400
    counts one day further back and leaves second 86400. One that is not finite, or whose day number does
    not fit in 32 bits, changes nothing. */
- (void)set_seconds_since_1970:(double)seconds;

/** The instant in seconds since 1970-01-01 00:00, from the day number and the time. They know no zone: a
    date that took the local clock is off by the zone, a ZEB_Time_Stamp is not. */
- (double)seconds_since_1970;

@end

/** Comparing dates, and moving them by units of time. */
@interface ZEB_Date (Arithmetic)

/** The days from the other date to this one, wrapped around in 32 bits. */
- (int32_t)days_since:(ZEB_Date *)other;

/** 1 when day number, second and nanosecond are the same; year, month and day are not compared. */
- (uint8_t)is_equal_to_date:(ZEB_Date *)other;

/** 1 when this date is not later than the other by day number, then second, then nanosecond. */
- (uint8_t)is_at_or_before_date:(ZEB_Date *)other;

/** 1 when daylight saving time is in force by the rule of the United States: until 2006 from April's first
    Sunday to October's last, since then from March's second Sunday, always switching at 02:00. From 2007 on
    November is answered as March is: 0 before its first Sunday, 1 after it. */
- (uint8_t)is_daylight_saving_time;

/** Adds `n` units; a code that names no unit adds none. Then one second is carried out of the nanoseconds
    and one day out of the seconds, no more: more than a day's worth of seconds leaves a second past the
    day's end. A day that its month does not have spills into the next: 31 January and one month is 2 or 3
    March. Months and quarters that lead beyond February of the next year drift by days: 15 June and twelve
    months is 16 or 17 June. `add_months_clamped:` does neither; adding years does not drift. */
- (void)add_time_units:(ZEB_Time_Unit)unit n:(uint32_t)n;

/** Adds months, or takes them away when negative; a day that its month does not have becomes the month's
    last: 31 January and one month is 28 or 29 February. The time of day stays, the day number becomes
    the civil one. */
- (void)add_months_clamped:(int32_t)months;

/** Goes back to the start of the second, minute, hour, day (a week means the same), month, quarter or year.
    Quarters begin in the months that three divides, so that January and February go back to December. Other
    codes change nothing, save that those from 10 on bring the date into its range. */
- (void)truncate_to_unit:(ZEB_Time_Unit)unit;

/** Goes forward to the next start of a second, minute, hour, day, month, quarter or year, unless it is
    there. A week only drops the time of day; a second is not carried into the day, and a full minute or
    hour keeps its nanoseconds. From December the next quarter drifts by days, to 2 or 3 March: truncating
    to the month and then `add_months_clamped:` does not. */
- (void)advance_to_unit_boundary:(ZEB_Time_Unit)unit;

@end

/** Dates as text, and out of it. */
@interface ZEB_Date (Text)

/** Appends what the platform's strftime makes of the date in the locale in force, up to 2047 characters;
    what is longer appends nothing. The fields are the date's own, brought into their ranges and moved by no
    time zone; zone letters give what the platform says of that local time. A null format is
    "%m/%d/%Y %H:%M:%S". */
- (void)append_strftime_text:(ZEB_String *)string format:(const char *)format;

/** The same, with the string's own characters as the format, which stay in front of the text. */
- (void)append_strftime_text:(ZEB_String *)string;

/** Makes the string month/day/year, followed by hours:minutes:seconds when the second is not 0, and by the
    fraction when the nanosecond is not 0: "3/4/2021 10:20:30.5", or "3/4/2021 0.5" right after midnight. */
- (void)write_text:(ZEB_String *)string;

/** Appends the same text. */
- (void)append_text:(ZEB_String *)string;

/** Takes "month / day / year hours : minutes : seconds . nanoseconds" from a string; the last is a count of
    nanoseconds (".5" is five of them). Every field where the reading stopped, and all after it, is 0; then
    the date is brought into its range. */
- (void)assign_from_text:(ZEB_String *)string;

/* ISO 8601 knows every year of 32 bits: its texts are made of year, month and day by the civil calendar, and
   the day number does not count. Far out, beyond 1 March -4800 and the end of 1465072, the civil day number
   differs from the one of `set_date_and_time:second:nanosecond:`; beyond 5874898 it wraps around in 32
   bits. */

/** Appends "2021-03-04T10:20:30.5", the date by ISO 8601 in every locale, with up to nine decimals; years
    outside 0 to 9999 have a sign and at least six digits. A day outside its month, and time past the day's
    end, count on; nothing is appended when the year then does not fit in 32 bits. */
- (void)append_iso8601_text:(ZEB_String *)string;

/** Appends "2021-03-04" from year, month and day as they stand. */
- (void)append_iso8601_date_text:(ZEB_String *)string;

/** Takes an ISO 8601 date, and the time after 'T' or a space if it is valid, from the start of a string; a
    zone ("Z", "+01:00") is not read. Answers how many characters were read: 0, with nothing changed, when
    no valid date stands there. The day number is the civil one. */
- (uint32_t)assign_from_iso8601_text:(ZEB_String *)string;

/** Writes the text of strftime by the stream's date format; nothing where that is empty or too long. */
- (void)send_to_stream:(ZEB_Stream *)stream;
- (void)send_text_to_stream:(ZEB_Stream *)stream;
- (void)send_contents_to_stream:(ZEB_Stream *)stream;

@end

/** Dates in archives: 32-bit integers, under keys where the coder has them. An archived object comes back
    with its fields and its day number as they stood (second and nanosecond cut to 32 bits); where the
    archive holds the five values of `encode:` alone, the day number is the one that belongs to them. */
@interface ZEB_Date (Coding) <NSCoding>

/** Writes nanosecond, second (both cut to 32 bits), day, month and year. */
- (void)encode:(NSCoder *)coder;

/** Reads what `encode:` wrote; a key that is missing leaves its field. Then the date is brought into its
    range. */
- (void)decode:(NSCoder *)coder;

@end
