#include "calendar/engine/civil_date.hpp"

#include "calendar/engine/instant.hpp"

#include <algorithm>
#include <limits>

namespace zeb::engine
{
namespace
{

constexpr std::int64_t julian_day_of_march_1_of_year_0 = 1721120;

constexpr std::int64_t floor_divide(std::int64_t dividend, std::int64_t divisor) noexcept
{
    return dividend / divisor - (dividend % divisor < 0);
}

struct Month_Of_Year {
    std::int64_t year;
    std::int64_t month; // 1 to 12
};

constexpr Month_Of_Year month_of_year(std::int64_t year, std::int64_t month) noexcept
{
    const std::int64_t years = floor_divide(month - 1, 12);
    return {year + years, month - 12 * years};
}

constexpr std::int64_t day_from_any_civil_date(ZEB_Gregorian_Date date) noexcept
{
    const Month_Of_Year normal = month_of_year(date.year, date.month);
    const bool before_march = normal.month < 3;
    const std::int64_t year = normal.year - before_march; // begins in March
    const std::int64_t month = normal.month + 12 * before_march;
    const std::int64_t days_before_year =
        365 * year + floor_divide(year, 4) - floor_divide(year, 100) + floor_divide(year, 400);
    return days_before_year + (979 * month - 2919) / 32 + date.day - 1 + julian_day_of_march_1_of_year_0;
}

} // namespace

std::int64_t day_from_civil_date(ZEB_Gregorian_Date date) noexcept { return day_from_any_civil_date(date); }

bool has_civil_date(std::int64_t julian_day) noexcept
{
    constexpr std::int64_t first = day_from_any_civil_date({std::numeric_limits<std::int32_t>::min(), 1, 1});
    constexpr std::int64_t last = day_from_any_civil_date({std::numeric_limits<std::int32_t>::max(), 12, 31});
    return julian_day >= first && julian_day <= last;
}

Date_Time make_civil_date_time(ZEB_Gregorian_Date date, ZEB_Time_Value time) noexcept
{
    return {date, static_cast<std::int32_t>(day_from_civil_date(date)), time};
}

double civil_seconds_since_1970(ZEB_Gregorian_Date date, ZEB_Time_Value time) noexcept
{
    const std::int64_t days = day_from_civil_date(date) - julian_day_of_1970;
    return static_cast<double>(days) * seconds_per_day + static_cast<double>(time.second) +
           static_cast<double>(time.nanosecond) * 1e-9;
}

bool is_leap_year(std::int32_t year) noexcept
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

std::int32_t days_in_month(std::int32_t year, std::int32_t month) noexcept
{
    if (month < 1 || month > 12)
        return 0;
    if (month == 2)
        return is_leap_year(year) ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

ZEB_Gregorian_Date add_months_clamped(ZEB_Gregorian_Date date, std::int32_t months) noexcept
{
    const Month_Of_Year normal = month_of_year(date.year, std::int64_t{date.month} + months);
    const std::int32_t year = static_cast<std::int32_t>(normal.year);
    const std::int32_t month = static_cast<std::int32_t>(normal.month);
    return {year, month, std::min(date.day, days_in_month(year, month))};
}

void add_months_clamped(Date_Time &value, std::int32_t months) noexcept
{
    value = make_civil_date_time(add_months_clamped(value.date, months), value.time);
}

} // namespace zeb::engine
