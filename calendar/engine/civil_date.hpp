#pragma once

#include "calendar/engine/date_time.hpp"
#include "calendar/engine/julian_day.hpp"

#include <cstdint>

namespace zeb::engine
{

/// The proleptic Gregorian calendar without limits of its own: right for day numbers below 0 and years before
/// -4800 too, where the older mappings of julian_day.hpp are not.

/// Whether the day has a date: its year fits in 32 bits.
bool has_civil_date(std::int64_t julian_day) noexcept;

/// The date of a Julian day number that has one.
inline ZEB_Gregorian_Date civil_date_from_day(std::int64_t julian_day) noexcept
{
    constexpr std::int64_t cycles = 5368698; // enough to lift every day that has a date above 0
    constexpr std::int64_t offset = 32044 + cycles * days_per_400_years;
    return date_from_march_days(static_cast<std::uint64_t>(julian_day + offset),
                                static_cast<std::uint32_t>(-4800 - 400 * cycles));
}

/// The Julian day number of a date. Months outside 1 to 12 and days outside the month count on.
std::int64_t day_from_civil_date(ZEB_Gregorian_Date date) noexcept;

/// A date and time with the date's civil day number, which wraps around in 32 bits as the field does.
Date_Time make_civil_date_time(ZEB_Gregorian_Date date, ZEB_Time_Value time) noexcept;

/// The seconds since 1970-01-01 00:00 of a date and time.
double civil_seconds_since_1970(ZEB_Gregorian_Date date, ZEB_Time_Value time) noexcept;

bool is_leap_year(std::int32_t year) noexcept;

/// The last day of a month of 1 to 12; 0 for another month.
std::int32_t days_in_month(std::int32_t year, std::int32_t month) noexcept;

/// The date so many months later (earlier when negative); a day that the month does not have becomes the
/// month's last one: 31 January and one month is 28 or 29 February. A month outside 1 to 12 counts on. The
/// year wraps around in 32 bits.
ZEB_Gregorian_Date add_months_clamped(ZEB_Gregorian_Date date, std::int32_t months) noexcept;

/// The same on a date and time, whose day number becomes the civil one; the time of day stays.
void add_months_clamped(Date_Time &value, std::int32_t months) noexcept;

} // namespace zeb::engine
