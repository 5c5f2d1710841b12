/*
 * The Gregorian calendar without objects: day numbers, instants and date text.
 *
 * Instants are seconds since 1970-01-01 00:00, the start of Julian day 2440588. No time zone is applied.
 */
#ifndef ZEB_CALENDAR_FUNCTIONS_H
#define ZEB_CALENDAR_FUNCTIONS_H

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_ASSUME_NONNULL_BEGIN

ZEB_EXTERN_C_BEGIN

/** Size of a buffer for every text of the date writers. */
#define ZEB_DATE_TEXT_SIZE 64

/** Returns the Julian day number of a Gregorian date. No field is checked: days outside the month and the
    months 0, 13 and 14 count on from their neighbours (month 0 is December of the year before). For months
    further out the formula still gives a number, but not that of a calendar month: month 18 is a day or two
    late (ZC_map_civil_date_to_julian_day and ZC_add_months_clamped handle every month). Correct from 1 March
    of the year -4800 to the end of 1465072. */
ZEB_EXPORT int32_t ZC_map_gregorian_date_to_julian_day(ZEB_Gregorian_Date date);

/** Returns the Gregorian date of a Julian day number. A negative day number is read as unsigned and gives a
    year beyond eleven million. */
ZEB_EXPORT ZEB_Gregorian_Date ZC_map_julian_day_to_gregorian_date(int32_t julian_day);

/** Writes month/day/year, followed by a space and hours:minutes:seconds unless the instant is midnight to the
    microsecond. The seconds have at most six decimals, without trailing zeros. An instant that is not finite,
    or whose Julian day number does not fit in 32 bits, gives the empty text. The decimal point is '.' in
    every locale. The buffer needs ZEB_DATE_TEXT_SIZE bytes; returns a pointer to the terminating null. */
ZEB_EXPORT char *ZC_pretty_format_gregorian_date_from_seconds(char *buffer, double seconds_since_1970);

/** Returns the number of characters at the start of a counted array that form a date and time, including
    leading white space: month / day / year, followed by hours : minutes : seconds if that is complete, with
    white space allowed around every number; 0 if there is no date. No field is checked for its range. At most
    1023 characters are read after leading white space. The seconds are read as the C library reads a double
    in its "C" locale. */
ZEB_EXPORT uint32_t ZC_skip_valid_gregorian_date_char_c_array(const char *ZEB_NULLABLE chars,
                                                              uint32_t length);

/** Reads the same text, stores its instant and returns the number of characters read; 0, with nothing stored,
    if there is no date. */
ZEB_EXPORT uint32_t ZC_assign_seconds_from_gregorian_date_char_c_array(const char *ZEB_NULLABLE chars,
                                                                       uint32_t length,
                                                                       double *seconds_since_1970);

/* The civil calendar and ISO 8601: correct for every 32-bit year, with 64-bit day numbers, unlike the
   mappings above. */

/** Returns the date of a Julian day number, also of a negative one; 0 in every field if the year does not fit
    in 32 bits. */
ZEB_EXPORT ZEB_Gregorian_Date ZC_map_julian_day_to_civil_date(int64_t julian_day);

/** Returns the Julian day number of a date; months outside 1 to 12 and days outside the month count on. */
ZEB_EXPORT int64_t ZC_map_civil_date_to_julian_day(ZEB_Gregorian_Date date);

/** Returns the last day of a month; 0 for a month outside 1 to 12. */
ZEB_EXPORT int32_t ZC_days_in_month(int32_t year, int32_t month);

/** Returns the date `months` later, or earlier if negative. A day that the new month does not have becomes
    its last day: 31 January plus one month is 28 or 29 February. The year wraps around in 32 bits. */
ZEB_EXPORT ZEB_Gregorian_Date ZC_add_months_clamped(ZEB_Gregorian_Date date, int32_t months);

/* The writers of ISO 8601 text need a buffer of ZEB_DATE_TEXT_SIZE bytes and return a pointer to the
   terminating null. Years outside 0 to 9999 have a sign and at least six digits. */

/** Writes "2021-03-04" from the fields, unchecked. */
ZEB_EXPORT char *ZC_format_iso8601_date(char *buffer, ZEB_Gregorian_Date date);

/** Writes "2021-03-04T10:20:30.5" with up to nine decimals. A time past the end of the day is carried into
    the day; the text is empty if the year then does not fit in 32 bits. */
ZEB_EXPORT char *ZC_format_iso8601_date_and_time(char *buffer, int64_t julian_day,
                                                 ZEB_Time_Value time_of_day);

/** The same for seconds since 1970, rounded to the microsecond; empty for an instant that is not finite or
    whose year does not fit in 32 bits. */
ZEB_EXPORT char *ZC_format_iso8601_from_seconds(char *buffer, double seconds_since_1970);

/** Reads a date, and a valid time after 'T', 't' or a space, from the start of a counted array. The fraction
    of the seconds follows '.' or ','; nine of its decimals count. A year has four digits, or a sign and four
    to ten. A zone ("Z", "+01:00") is not read. Returns the number of characters read; 0, with nothing stored,
    if there is no valid date. time_of_day may be null. */
ZEB_EXPORT uint32_t ZC_assign_date_from_iso8601_char_c_array(const char *ZEB_NULLABLE chars, uint32_t length,
                                                             ZEB_Gregorian_Date *date,
                                                             ZEB_Time_Value *ZEB_NULLABLE time_of_day);

/** The same, stored as seconds since 1970-01-01 00:00. */
ZEB_EXPORT uint32_t ZC_assign_seconds_from_iso8601_char_c_array(const char *ZEB_NULLABLE chars,
                                                                uint32_t length, double *seconds_since_1970);

ZEB_EXTERN_C_END

ZEB_ASSUME_NONNULL_END

#endif
