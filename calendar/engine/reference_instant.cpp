#include "calendar/engine/reference_instant.hpp"

#include "calendar/engine/civil_date.hpp"

#include <cmath>

namespace zeb::engine
{
namespace
{

constexpr std::int64_t day_size = 86400;
constexpr std::int64_t seconds_from_1970_to_2001 = 978307200;
constexpr std::uint32_t nanoseconds_per_second = 1000000000;

constexpr std::int64_t floor_of_days(std::int64_t seconds) noexcept
{
    return seconds / day_size - (seconds % day_size < 0);
}

/// Adds a time of any size to the start of a day within 1e17 seconds.
bool add_time(std::int64_t second, ZEB_Time_Value time, Exact_Instant &instant) noexcept
{
    const std::uint64_t carried = time.nanosecond / nanoseconds_per_second;
    constexpr auto limit = static_cast<std::uint64_t>(greatest_reference_time);
    if (time.second > limit - carried)
        return false;
    instant = {second + static_cast<std::int64_t>(time.second + carried),
               static_cast<std::uint32_t>(time.nanosecond % nanoseconds_per_second)};
    return true;
}

} // namespace

bool split_reference_time(double seconds_since_2001, Exact_Instant &instant) noexcept
{
    if (!(std::fabs(seconds_since_2001) <= greatest_reference_time))
        return false;
    const double whole = std::floor(seconds_since_2001);
    // The difference is exact.
    const auto nanosecond = static_cast<std::uint32_t>(std::rint((seconds_since_2001 - whole) * 1e9));
    const bool carries = nanosecond == nanoseconds_per_second;
    instant = {static_cast<std::int64_t>(whole) + seconds_from_1970_to_2001 + carries,
               carries ? 0 : nanosecond};
    return true;
}

double reference_time(Exact_Instant instant) noexcept
{
    return static_cast<double>(instant.second - seconds_from_1970_to_2001) + instant.nanosecond / 1e9;
}

bool set_to_instant(Date_Time &value, Exact_Instant instant) noexcept
{
    const std::int64_t days = floor_of_days(instant.second);
    const std::int64_t julian_day = days + julian_day_of_1970;
    if (!has_civil_date(julian_day))
        return false;
    const auto second = static_cast<std::uint64_t>(instant.second - days * day_size);
    value = make_civil_date_time(civil_date_from_day(julian_day), {second, instant.nanosecond});
    return true;
}

bool get_instant(const Date_Time &value, Exact_Instant &instant) noexcept
{
    return add_time((day_from_civil_date(value.date) - julian_day_of_1970) * day_size, value.time, instant);
}

bool get_instant(ZEB_Time_Value time_since_1970, Exact_Instant &instant) noexcept
{
    return add_time(0, time_since_1970, instant);
}

} // namespace zeb::engine
