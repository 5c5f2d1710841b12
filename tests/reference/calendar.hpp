#pragma once

// The mappings between dates and day numbers as plainly as they can be said.

#include <Korvane_ZEB/ZEB_Types.h>

#include <chrono>
#include <cstdint>

namespace reference
{

// Signed 32-bit results of arithmetic carried out in 64 bits.
inline std::int32_t cut(std::int64_t value)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

// The formula for any fields, every step of which wraps around in 32 bits.
inline std::int32_t julian_day(ZEB_Gregorian_Date date)
{
    const std::int64_t month = date.month;
    const std::int32_t a = cut(month - 14) / 12;
    const std::int32_t year = cut(std::int64_t{date.year} + a);
    const std::int32_t years = cut(std::int64_t{1461} * cut(std::int64_t{year} + 4800)) / 4;
    const std::int32_t months = cut(std::int64_t{367} * cut(month - 2 - std::int64_t{12} * a)) / 12;
    const std::int32_t centuries = cut(std::int64_t{3} * (cut(std::int64_t{year} + 4900) / 100)) / 4;
    return cut(std::int64_t{years} + months - centuries + date.day - 32075);
}

// By the standard library's calendar, moved by whole cycles of 400 years into its range.
inline ZEB_Gregorian_Date date_from_julian_day(std::int32_t julian_day)
{
    const auto cycles = static_cast<int>(static_cast<std::uint32_t>(julian_day) / 146097),
               day = static_cast<int>(static_cast<std::uint32_t>(julian_day) % 146097);
    const std::chrono::year_month_day date = std::chrono::sys_days(std::chrono::days(day - 2440588));
    return {int{date.year()} + 400 * cycles, static_cast<int>(unsigned{date.month()}),
            static_cast<int>(unsigned{date.day()})};
}

} // namespace reference
