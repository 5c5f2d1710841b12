/// Dates of the proleptic Gregorian calendar, their Julian day numbers and texts, and the clock.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <Korvane_ZEB_engine/number_text.hpp>

#include <cstdint>
#include <optional>
#include <string_view>

namespace zeb
{

/// A year (year 0 exists), a month (1 is January) and a day of the month, from 1.
using Gregorian_Date = ZEB_Gregorian_Date;

/// Seconds and nanoseconds: since midnight as a time of day, since 1970-01-01 00:00 UTC from the clock.
using Time_Value = ZEB_Time_Value;

/// A date and a time of day.
struct Date_And_Time {
    Gregorian_Date date;
    Time_Value time;
};

/// Returns the Julian day number; months outside 1 to 12 and days outside the month count on.
std::int64_t julian_day(Gregorian_Date date) noexcept;

/// Returns the date of a Julian day number; none where its year does not fit in 32 bits.
std::optional<Gregorian_Date> date_of_julian_day(std::int64_t day) noexcept;

/// Returns the day of the week, 0 (Monday) to 6.
std::uint32_t weekday(Gregorian_Date date) noexcept;

bool is_leap_year(std::int32_t year) noexcept;

/// Returns the number of days of a month; 0 for another one than 1 to 12.
std::int32_t days_in_month(std::int32_t year, std::int32_t month) noexcept;

/// Returns the date so many months later, earlier if negative. A day that the new month does not have becomes
/// its last one: 31 January plus one month is 28 or 29 February.
Gregorian_Date add_months(Gregorian_Date date, std::int32_t months) noexcept;

/// Returns the seconds since 1970-01-01 00:00 of a date and time.
double seconds_since_1970(const Date_And_Time &instant) noexcept;

/// Returns the date and time of such seconds, nanoseconds truncated; none of what is not finite or beyond
/// every date.
std::optional<Date_And_Time> date_of_seconds_since_1970(double seconds) noexcept;

/// Returns year-month-day, and year-month-dayThours:minutes:seconds with a fraction unless it is 0: ISO 8601.
/// Years outside of 0 to 9999 have a sign and at least six digits. A time past the end of the day is carried
/// into the day; a date that then has no year of 32 bits gives the empty text.
Number_Text iso_text(Gregorian_Date date) noexcept;
Number_Text iso_text(const Date_And_Time &instant) noexcept;

/// Reads such a text, of which the time may be missing, from the start of a longer one, and returns how many
/// characters were read; 0, with `result` unchanged, if there is no date. Every field must be in its range. A
/// zone behind it is not read.
std::size_t scan_iso_text(std::string_view text, Date_And_Time &result) noexcept;

/// The same for month/day/year, with hours:minutes:seconds behind it if they are complete: "7/14/1789
/// 17:30:00". White space may stand before every number.
std::size_t scan_slash_text(std::string_view text, Date_And_Time &result) noexcept;

/// Returns the clock's time, UTC.
Time_Value current_time() noexcept;

/// Returns the wall clock of an instant in the local time zone; none if the platform has none.
std::optional<Date_And_Time> local_time(Time_Value instant) noexcept;

} // namespace zeb
