#pragma once

#include "calendar/engine/date_time.hpp"
#include "calendar/engine/julian_day.hpp"

#include <cstdint>

namespace zeb
{

/// The proleptic Gregorian calendar without limits of its own: right for day numbers below 0 and years before
/// -4800 too, where the older mappings of julian_day.hpp are not.

/// The date of a Julian day number.
inline ZEB_Gregorian_Date civil_date_from_day(std::int32_t julian_day) noexcept
{
    constexpr std::int64_t cycles = 14700; // enough to lift every 32-bit day number above 0
    constexpr std::int64_t offset = 32044 + cycles * days_per_400_years;
    return date_from_march_days(static_cast<std::uint64_t>(julian_day + offset),
                                static_cast<std::uint32_t>(-4800 - 400 * cycles));
}

/// The Julian day number of a date. Months outside 1 to 12 and days outside the month count on.
std::int64_t day_from_civil_date(ZEB_Gregorian_Date date) noexcept;

bool is_leap_year(std::int32_t year) noexcept;

/// The last day of a month of 1 to 12; 0 for another month.
std::int32_t days_in_month(std::int32_t year, std::int32_t month) noexcept;

/// The date so many months later (earlier when negative); a day that the month does not have becomes the
/// month's last one: 31 January and one month is 28 or 29 February. A month outside 1 to 12 counts on. The
/// year wraps around in 32 bits.
ZEB_Gregorian_Date add_months_clamped(ZEB_Gregorian_Date date, std::int32_t months) noexcept;

/// The same on a date and time, whose day number follows; the time of day stays.
void add_months_clamped(Date_Time &value, std::int32_t months) noexcept;

} // namespace zeb
