#include "calendar/engine/daylight_saving.hpp"

#include "calendar/engine/julian_day.hpp"

namespace zeb::engine
{
namespace
{

constexpr std::uint64_t switching_second = 7200;

std::int64_t first_day_of_month(std::int32_t year, std::int32_t month) noexcept
{
    return julian_day_from_date({year, month, 1});
}

/// Returns the day of the week; 0 is Sunday.
std::int64_t weekday(std::int64_t julian_day) noexcept
{
    const std::int64_t remainder = (julian_day + 1) % 7;
    return remainder < 0 ? remainder + 7 : remainder;
}

std::int64_t first_sunday(std::int32_t year, std::int32_t month) noexcept
{
    const std::int64_t first_day = first_day_of_month(year, month);
    return first_day + (7 - weekday(first_day)) % 7;
}

std::int64_t last_sunday_of_october(std::int32_t year) noexcept
{
    const std::int64_t first_of_november = first_day_of_month(year, 11);
    const std::int64_t day_of_week = weekday(first_of_november);
    return first_of_november - (day_of_week == 0 ? 7 : day_of_week);
}

bool is_past_switch(const Date_Time &value, std::int64_t switching_day) noexcept
{
    if (value.julian_day != switching_day)
        return value.julian_day > switching_day;
    return value.time.second >= switching_second;
}

} // namespace

bool is_daylight_saving_time(const Date_Time &value) noexcept
{
    const std::int32_t year = value.date.year;
    const std::int32_t month = value.date.month;
    if (year > 2006) {
        if (month == 3)
            return is_past_switch(value, first_sunday(year, 3) + 7);
        if (month == 11)
            return is_past_switch(value, first_sunday(year, 11));
        return month > 3 && month < 11;
    }
    if (month == 4)
        return is_past_switch(value, first_sunday(year, 4));
    if (month == 10)
        return !is_past_switch(value, last_sunday_of_october(year));
    return month > 4 && month < 10;
}

} // namespace zeb::engine
