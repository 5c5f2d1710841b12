/// Mappings between Gregorian dates and Julian day numbers, in 32 bits.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>

namespace zeb::engine
{

/// The Julian day number of 1970-01-01.
inline constexpr std::int32_t julian_day_of_1970 = 2440588;

/// The days of the Gregorian cycle of 400 years.
inline constexpr std::int32_t days_per_400_years = 146097;

/// Returns the result of julian_day_from_date for any fields, in 32-bit arithmetic that wraps; slower.
std::int32_t julian_day_from_any_fields(ZEB_Gregorian_Date date) noexcept;

/// Returns the Julian day number of a Gregorian date. No field is validated: day 0, day 40, and the months 0,
/// 13 and 14 count on from their neighbours. For months further out the formula gives a number, but not that
/// of a calendar month. Correct from 1 March of the year -4800 to the end of 1,465,072: earlier the divisions
/// round the wrong way, later the 32-bit arithmetic wraps.
inline std::int32_t julian_day_from_date(ZEB_Gregorian_Date date) noexcept
{
    const std::uint32_t shifted_year = static_cast<std::uint32_t>(date.year) + 4799; // 0 is -4799
    const std::uint32_t month = static_cast<std::uint32_t>(date.month);
    if (shifted_year > 1399998 || month - 1 > 11)
        return julian_day_from_any_fields(date);
    // Years begin in March, so that the leap day is the last of its year.
    const std::uint32_t before_march = month < 3;
    const std::uint32_t year = shifted_year + 1 - before_march;                              // 0 to 1,399,999
    const std::uint32_t century = year / 100;                                                // 0 to 13,999
    const std::uint32_t days_before_year = year * 1461 / 4 - century + century / 4;          // below 2^30
    const std::uint32_t days_before_month = (979 * (month + 12 * before_march) - 2919) >> 5; // 0 to 337
    return static_cast<std::int32_t>(days_before_year + days_before_month +
                                     static_cast<std::uint32_t>(date.day) - 32045U);
}

/// Returns the date of day `days` (below 2^62) after 1 March of `first_year`, which must be divisible by 400.
inline ZEB_Gregorian_Date date_from_march_days(std::uint64_t days, std::uint32_t first_year) noexcept
{
    const std::uint64_t quarter_days = 4 * days + 3;
    const std::uint64_t century = quarter_days / 146097;
    const std::uint32_t day_of_century = static_cast<std::uint32_t>(quarter_days % 146097) / 4; // 0 to 36,524
    // 2939745 / 2^32 is just above 1 / 1461: the upper half of the product is the year of the century, the
    // lower half its fraction.
    const std::uint64_t year_product = std::uint64_t{2939745} * (4 * day_of_century + 3);
    const std::uint32_t year_of_century = static_cast<std::uint32_t>(year_product >> 32);     // 0 to 99
    const std::uint32_t day_of_year = static_cast<std::uint32_t>(year_product) / 2939745 / 4; // 0 to 365
    // 2141 / 2^16 is just above 1 / 30.61, the reciprocal of the mean length of a month.
    const std::uint32_t month_product = 2141 * day_of_year + 197913;
    const std::uint32_t after_december = day_of_year >= 306;
    const std::uint32_t month = (month_product >> 16) - 12 * after_december; // 1 to 12
    const std::uint32_t day = (month_product & 0xFFFF) / 2141 + 1;           // 1 to 31
    const std::uint32_t year = 100 * static_cast<std::uint32_t>(century) + year_of_century + after_december;
    return {static_cast<std::int32_t>(year + first_year), static_cast<std::int32_t>(month),
            static_cast<std::int32_t>(day)};
}

/// Returns the Gregorian date of a Julian day number read as unsigned: day -1 is day 4294967295, in a year
/// beyond eleven million. civil_date_from_day handles negative numbers.
inline ZEB_Gregorian_Date date_from_julian_day(std::int32_t julian_day) noexcept
{
    // Day -32044 is 1 March of the year -4800.
    return date_from_march_days(std::uint64_t{static_cast<std::uint32_t>(julian_day)} + 32044,
                                static_cast<std::uint32_t>(-4800));
}

} // namespace zeb::engine
