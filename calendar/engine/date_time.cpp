#include "calendar/engine/date_time.hpp"

#include "calendar/engine/instant.hpp"
#include "calendar/engine/julian_day.hpp"
#include "calendar/engine/wrapping.hpp"

namespace zeb::engine
{

Date_Time make_date_time(ZEB_Gregorian_Date date, std::uint64_t second, std::uint64_t nanosecond) noexcept
{
    return {date, julian_day_from_date(date), {second, nanosecond}};
}

void update_date(Date_Time &value) noexcept { value.date = date_from_julian_day(value.julian_day); }

void normalise_date(Date_Time &value) noexcept
{
    value.julian_day = julian_day_from_date(value.date);
    update_date(value);
}

bool set_seconds_since_1970(Date_Time &value, double seconds) noexcept
{
    Split_Instant split;
    if (!split_instant(seconds, split))
        return false;
    const std::uint64_t second = static_cast<std::uint64_t>(split.remainder);
    const double fraction = split.remainder - static_cast<double>(second);
    value.time = {second, static_cast<std::uint64_t>(fraction * 1e9)};
    value.julian_day = static_cast<std::int32_t>(split.julian_day);
    update_date(value);
    return true;
}

double seconds_since_1970(const Date_Time &value) noexcept
{
    const double days = wrapping_subtract(value.julian_day, julian_day_of_1970);
    return days * seconds_per_day + static_cast<double>(value.time.second) +
           static_cast<double>(value.time.nanosecond) * 1e-9;
}

std::int32_t days_between(const Date_Time &value, const Date_Time &other) noexcept
{
    return wrapping_subtract(value.julian_day, other.julian_day);
}

bool is_equal(const Date_Time &a, const Date_Time &b) noexcept
{
    return a.julian_day == b.julian_day && a.time.second == b.time.second &&
           a.time.nanosecond == b.time.nanosecond;
}

bool is_at_or_before(const Date_Time &a, const Date_Time &b) noexcept
{
    if (a.julian_day != b.julian_day)
        return a.julian_day < b.julian_day;
    if (a.time.second != b.time.second)
        return a.time.second < b.time.second;
    return a.time.nanosecond <= b.time.nanosecond;
}

} // namespace zeb::engine
