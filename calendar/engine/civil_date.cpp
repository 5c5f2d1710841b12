#include "calendar/engine/civil_date.hpp"

#include <algorithm>

namespace zeb
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

} // namespace

std::int64_t day_from_civil_date(ZEB_Gregorian_Date date) noexcept
{
    const Month_Of_Year normal = month_of_year(date.year, date.month);
    const bool before_march = normal.month < 3;
    const std::int64_t year = normal.year - before_march; // begins in March
    const std::int64_t month = normal.month + 12 * before_march;
    const std::int64_t days_before_year =
        365 * year + floor_divide(year, 4) - floor_divide(year, 100) + floor_divide(year, 400);
    return days_before_year + (979 * month - 2919) / 32 + date.day - 1 + julian_day_of_march_1_of_year_0;
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
    value.date = add_months_clamped(value.date, months);
    value.julian_day = julian_day_from_date(value.date);
}

} // namespace zeb
