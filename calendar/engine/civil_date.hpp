/// The proleptic Gregorian calendar without limits: also correct for negative day numbers and for years
/// before -4800, unlike the older mappings of julian_day.hpp.
#pragma once

#include "calendar/engine/date_time.hpp"
#include "calendar/engine/julian_day.hpp"

#include <cstdint>

namespace zeb::engine
{

/// Whether the day has a date: its year fits in 32 bits.
bool has_civil_date(std::int64_t julian_day) noexcept;

/// Returns the date of a Julian day number that has one.
inline ZEB_Gregorian_Date civil_date_from_day(std::int64_t julian_day) noexcept
{
    constexpr std::int64_t cycles = 5368698; // enough to make every day that has a date positive
    constexpr std::int64_t offset = 32044 + cycles * days_per_400_years;
    return date_from_march_days(static_cast<std::uint64_t>(julian_day + offset),
                                static_cast<std::uint32_t>(-4800 - 400 * cycles));
}

/// Returns the Julian day number of a date. Months outside 1 to 12 and days outside the month count on.
std::int64_t day_from_civil_date(ZEB_Gregorian_Date date) noexcept;

/// Returns a date and time with the date's civil day number, wrapped around in 32 bits.
Date_Time make_civil_date_time(ZEB_Gregorian_Date date, ZEB_Time_Value time) noexcept;

/// Returns the seconds since 1970-01-01 00:00 of a date and time.
double civil_seconds_since_1970(ZEB_Gregorian_Date date, ZEB_Time_Value time) noexcept;

bool is_leap_year(std::int32_t year) noexcept;

/// Returns the last day of a month of 1 to 12; 0 for another month.
std::int32_t days_in_month(std::int32_t year, std::int32_t month) noexcept;

/// Returns the date `months` later (earlier if negative). A day that the new month does not have becomes its
/// last day: 31 January plus one month is 28 or 29 February. A month outside 1 to 12 counts on. The year
/// wraps around in 32 bits.
ZEB_Gregorian_Date add_months_clamped(ZEB_Gregorian_Date date, std::int32_t months) noexcept;

/// The same on a date and time, whose day number becomes the civil one; the time of day stays.
void add_months_clamped(Date_Time &value, std::int32_t months) noexcept;

} // namespace zeb::engine
