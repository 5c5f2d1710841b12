/*
 * A Gregorian date with a time of day.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Stream;
@class ZEB_String;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * A date in two forms, year, month and day as well as the Julian day number, and the time since midnight of
 * that day. No time zone is applied, except when the local clock is read.
 *
 * Nothing is refused and no operation reports an error: fields out of range are normalised through the day
 * number where an operation says so. The time of day is never checked; some operations leave it past the end
 * of the day. A nil date is read as one that was never set; it equals no date.
 *
 * Different objects may be used on different threads; ZEB_Object.h says what may not.
 */
ZEB_EXPORT
@interface ZEB_Date : ZEB_Object <NSCopying> {
    ZEB_PROTECTED
    ZEB_Gregorian_Date date;
    int32_t julian_day;
    ZEB_Time_Value time; /* since midnight */
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises a date that was never set: year -4713, month 1, day 1, Julian day 0, midnight. The proleptic
    date of that day is a different one. */
- (instancetype)init;

/** Initialises a date with `set_date_and_time:second:nanosecond:`. */
- (instancetype)init_with_date_and_time:(ZEB_Gregorian_Date)gregorian
                                 second:(uint64_t)second
                             nanosecond:(uint64_t)nanosecond;

/** Initialises a date with the date and time of another, and the day number computed from them. */
- (instancetype)init_with_date:(ZEB_Date *ZEB_NULLABLE)other;

/** Initialises a date with `set_to_current_time`. */
- (instancetype)init_with_current_time;

/** Returns a copy of all fields, unchanged. */
- (id)copyWithZone:(NSZone *ZEB_NULLABLE)zone;

/** The fields. Years are astronomical: year 0 exists. The second counts from midnight. */
- (int32_t)year;
- (int32_t)month;
- (int32_t)day;
- (int32_t)julian_day;
- (uint64_t)second;
- (uint64_t)nanosecond;

/** Sets the date to the local wall clock, to the microsecond. */
- (void)set_to_current_time;

/** Copies all fields of another date, even if its two forms disagree. */
- (void)assign_date:(ZEB_Date *ZEB_NULLABLE)other;

/** Sets the fields and computes the day number. The date is not normalised: a day outside its month stays. */
- (void)set_date_and_time:(ZEB_Gregorian_Date)gregorian
                   second:(uint64_t)second
               nanosecond:(uint64_t)nanosecond;

/** Computes the date from the day number. */
- (void)update_date_from_julian_day;

/** Sets the day number and computes the date; the time of day stays. */
- (void)set_julian_day:(int32_t)day_number;

/** Sets the date from seconds since 1970-01-01 00:00, truncated to the nanosecond. A negative multiple of
    86400 counts one day further back, with second 86400. An instant that is not finite, or whose day number
    does not fit in 32 bits, changes nothing. */
- (void)set_seconds_since_1970:(double)seconds;

/** Returns the seconds since 1970-01-01 00:00 of the day number and the time. No zone is applied: a date set
    from the local clock differs by the zone's offset, unlike a ZEB_Time_Stamp. */
- (double)seconds_since_1970;

@end

/** Comparing dates and adding units of time. */
@interface ZEB_Date (Arithmetic)

/** Returns the days from the other date to this one, wrapped around in 32 bits. */
- (int32_t)days_since:(ZEB_Date *ZEB_NULLABLE)other;

/** Returns 1 if day number, second and nanosecond are equal, else 0; year, month and day are not compared. */
- (uint8_t)is_equal_to_date:(ZEB_Date *ZEB_NULLABLE)other;

/** Returns 1 if this date is not later than the other, by day number, then second, then nanosecond, else
    0. */
- (uint8_t)is_at_or_before_date:(ZEB_Date *ZEB_NULLABLE)other;

/** Returns 1 if daylight saving time is in force by the rules of the United States, else 0: until 2006 from
    the first Sunday of April to the last of October, from 2007 on from the second Sunday of March, always
    changing at 02:00. From 2007 on November follows the rule of March: 0 before its first Sunday, 1 after
    it. */
- (uint8_t)is_daylight_saving_time;

/** Adds `n` units; a code that names no unit adds none. Then one second is carried out of the nanoseconds and
    one day out of the seconds, but no more: adding more than a day of seconds leaves a second past the end of
    the day. A day that its month does not have runs into the next month: 31 January plus one month is 2 or 3
    March. Months and quarters that lead beyond February of the next year drift by days: 15 June plus twelve
    months is 16 or 17 June. `add_months_clamped:` does neither, and adding years does not drift. */
- (void)add_time_units:(ZEB_Time_Unit)unit n:(uint32_t)n;

/** Adds months, or subtracts them if negative. A day that the new month does not have becomes its last day:
    31 January plus one month is 28 or 29 February. The time of day stays; the day number becomes that of the
    civil calendar. */
- (void)add_months_clamped:(int32_t)months;

/** Sets the date to the start of its second, minute, hour, day (also for a week), month, quarter or year.
    Quarters begin in the months divisible by three, so January and February go back to December. Other codes
    change nothing, except that those from 10 on normalise the date. */
- (void)truncate_to_unit:(ZEB_Time_Unit)unit;

/** Advances the date to the next start of a second, minute, hour, day, month, quarter or year, unless it is
    at one. A week only clears the time of day; a second is not carried into the day, and a full minute or
    hour keeps its nanoseconds. From December the next quarter drifts by days, to 2 or 3 March; truncating to
    the month and then `add_months_clamped:` does not. */
- (void)advance_to_unit_boundary:(ZEB_Time_Unit)unit;

@end

/** Writing dates as text and reading them. */
@interface ZEB_Date (Text)

/** Appends the platform's strftime text of the date in the current locale, up to 2047 characters; a longer
    text is not appended. The fields are the date's own, normalised and not moved by a time zone; zone letters
    describe the local zone at that time. A null format is "%m/%d/%Y %H:%M:%S". */
- (void)append_strftime_text:(ZEB_String *ZEB_NULLABLE)string format:(const char *ZEB_NULLABLE)format;

/** The same with the string's own characters as the format; they stay, and the text follows them. */
- (void)append_strftime_text:(ZEB_String *ZEB_NULLABLE)string;

/** Sets the string to month/day/year, followed by hours:minutes:seconds if the second is not 0, and by the
    fraction if the nanosecond is not 0: "3/4/2021 10:20:30.5", or "3/4/2021 0.5" right after midnight. */
- (void)write_text:(ZEB_String *ZEB_NULLABLE)string;

/** Appends the same text. */
- (void)append_text:(ZEB_String *ZEB_NULLABLE)string;

/** Reads "month / day / year hours : minutes : seconds . nanoseconds" from a string; the last is a count of
    nanoseconds (".5" is five). The field at which reading stops, and all after it, are 0; then the date is
    normalised. */
- (void)assign_from_text:(ZEB_String *ZEB_NULLABLE)string;

/* ISO 8601 supports every 32-bit year: its texts use year, month and day in the civil calendar and ignore the
   day number. Before 1 March -4800 and after the end of 1465072 the civil day number differs from that of
   `set_date_and_time:second:nanosecond:`; beyond the year 5874898 it wraps around in 32 bits. */

/** Appends the date by ISO 8601, such as "2021-03-04T10:20:30.5", in every locale, with up to nine decimals.
    Years outside 0 to 9999 have a sign and at least six digits. A day outside its month, and a time past the
    end of the day, count on; nothing is appended if the year then does not fit in 32 bits. */
- (void)append_iso8601_text:(ZEB_String *ZEB_NULLABLE)string;

/** Appends "2021-03-04" from year, month and day, unchecked. */
- (void)append_iso8601_date_text:(ZEB_String *ZEB_NULLABLE)string;

/** Reads an ISO 8601 date, and a valid time after 'T', 't' or a space, from the start of a string; a zone
    ("Z", "+01:00") is not read. Returns the number of characters read; 0, with nothing changed, if there is
    no valid date. The day number becomes that of the civil calendar. */
- (uint32_t)assign_from_iso8601_text:(ZEB_String *ZEB_NULLABLE)string;

/** Writes the strftime text by the stream's date format; nothing if that is empty or too long. */
- (void)send_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;
- (void)send_text_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;
- (void)send_contents_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;

@end

/** Archiving dates: 32-bit integers, under keys if the coder supports them. An unarchived object has the
    fields and the day number of the original (second and nanosecond truncated to 32 bits); if the archive
    holds only the five values of `encode:`, the day number is computed from them. An archive that ends before
    it does, or has another kind of value in the place of one, reports "Archive lacks a value or has another
    kind of value in its place, no object made.": no object comes back, and `decode:` changes nothing. */
@interface ZEB_Date (Coding) <NSSecureCoding>

/** Answers YES: an archived date holds integers alone. */
+ (BOOL)supportsSecureCoding;

/** Writes nanosecond, second (both truncated to 32 bits), day, month and year. */
- (void)encode:(NSCoder *ZEB_NULLABLE)coder;

/** Reads what `encode:` wrote; a missing key leaves its field unchanged. Then the date is normalised. */
- (void)decode:(NSCoder *ZEB_NULLABLE)coder;

@end

ZEB_ASSUME_NONNULL_END
