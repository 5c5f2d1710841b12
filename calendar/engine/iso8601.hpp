/// Dates and times in the extended form of ISO 8601, the same in every locale, in the calendar of
/// civil_date.hpp. Years from 0 to 9999 have four digits; others have a sign and at least six.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>

namespace zeb::engine
{

/// Size of a buffer for every text below.
inline constexpr std::uint32_t iso8601_text_size = 64;

/// Writes year-month-day from the fields, which should be in range: a negative month or day is written as a
/// large number. Returns a pointer to the terminating null.
char *write_iso8601_date(char *buffer, ZEB_Gregorian_Date date) noexcept;

/// Writes year-month-dayThours:minutes:seconds, and a fraction of up to nine decimals unless the nanoseconds
/// are 0. A time past the end of the day is carried into the day; a day whose year does not fit in 32 bits
/// gives the empty text. Returns a pointer to the terminating null.
char *write_iso8601(char *buffer, std::int64_t julian_day, ZEB_Time_Value time) noexcept;

/// The same for seconds since 1970-01-01 00:00, rounded to the microsecond; empty for an instant that is not
/// finite or whose year does not fit in 32 bits.
char *write_iso8601_instant(char *buffer, double seconds_since_1970) noexcept;

/// Reads a date from the start of a counted array, and a time if 'T', 't' or a space and hours:minutes or
/// hours:minutes:seconds follow; the seconds may have a fraction after '.' or ',', of which nine decimals
/// count. A year has four digits, or a sign and four to ten. Every field must be in range (the year in 32
/// bits, hours 0 to 23, seconds 0 to 59). A zone ("Z", "+01:00") is not read: the count ends before it.
/// Returns the number of characters read; 0, with nothing stored, if there is no date. Without a valid time
/// only the date is read and the time is 0.
std::uint32_t scan_iso8601(const char *chars, std::uint32_t length, ZEB_Gregorian_Date &date,
                           ZEB_Time_Value &time) noexcept;

} // namespace zeb::engine
