#include "calendar/engine/date_arithmetic.hpp"

#include "calendar/engine/wrapping.hpp"

namespace zeb::engine
{
namespace
{

constexpr std::uint64_t nanoseconds_per_second = 1000000000;
constexpr std::uint64_t seconds_per_whole_day = 86400;
constexpr std::uint64_t seconds_per_minute = 60;
constexpr std::uint64_t seconds_per_hour = 3600;
constexpr ZEB_Time_Unit first_code_of_days = 10; // not a unit, but it belongs to the day units

void add_to_field(std::int32_t &field, std::uint32_t amount) noexcept
{
    field = static_cast<std::int32_t>(static_cast<std::uint32_t>(field) + amount);
}

void add_to_unit_field(Date_Time &value, ZEB_Time_Unit unit, std::uint32_t count) noexcept
{
    switch (unit) {
    case ZEB_UNIT_NANOSECOND:
        value.time.nanosecond += count;
        break;
    case ZEB_UNIT_MICROSECOND:
        value.time.nanosecond += count * 1000U;
        break;
    case ZEB_UNIT_MILLISECOND:
        value.time.nanosecond += count * 1000000U;
        break;
    case ZEB_UNIT_SECOND:
        value.time.second += count;
        break;
    case ZEB_UNIT_MINUTE:
        value.time.second += count * 60U;
        break;
    case ZEB_UNIT_HOUR:
        value.time.second += count * 3600U;
        break;
    case ZEB_UNIT_DAY:
        add_to_field(value.date.day, count);
        break;
    case ZEB_UNIT_WEEK:
        add_to_field(value.date.day, count * 7U);
        break;
    case ZEB_UNIT_MONTH:
        add_to_field(value.date.month, count);
        break;
    case ZEB_UNIT_QUARTER:
        add_to_field(value.date.month, count * 3U);
        break;
    case ZEB_UNIT_YEAR:
        add_to_field(value.date.year, count);
        break;
    default:
        break;
    }
}

/// Carries one day out of the seconds; returns whether there was one.
bool carry_day(Date_Time &value) noexcept
{
    if (value.time.second < seconds_per_whole_day)
        return false;
    value.time.second -= seconds_per_whole_day;
    add_to_field(value.date.day, 1);
    return true;
}

void set_date(Date_Time &value, std::int32_t year, std::int32_t month, std::int32_t day) noexcept
{
    value.date = {year, month, day};
    value.time = {0, 0};
}

void truncate_time(Date_Time &value, std::uint64_t seconds) noexcept
{
    value.time.nanosecond = 0;
    value.time.second -= value.time.second % seconds;
}

void advance_time(Date_Time &value, std::uint64_t seconds) noexcept
{
    if (const std::uint64_t past = value.time.second % seconds) {
        value.time.nanosecond = 0;
        value.time.second += seconds - past;
    }
    carry_day(value);
}

bool is_midnight(const Date_Time &value) noexcept
{
    return value.time.second == 0 && value.time.nanosecond == 0;
}

void advance_day(Date_Time &value) noexcept
{
    if (is_midnight(value))
        return;
    value.time = {0, 0};
    add_to_field(value.date.day, 1);
}

void advance_second(Date_Time &value) noexcept
{
    if (value.time.nanosecond == 0)
        return;
    value.time.nanosecond = 0;
    ++value.time.second;
}

void advance_month(Date_Time &value, ZEB_Time_Unit unit) noexcept
{
    const auto [year, month, day] = value.date;
    const bool at_first = is_midnight(value) && day < 2;
    if (unit == ZEB_UNIT_MONTH && !at_first)
        set_date(value, year, wrapping_add(month, 1), 1);
    if (unit == ZEB_UNIT_QUARTER && !(at_first && month % 3 == 0))
        set_date(value, year, 3 * (wrapping_add(month, 3) / 3), 1);
    if (unit == ZEB_UNIT_YEAR && !(at_first && month < 2))
        set_date(value, wrapping_add(year, 1), 1, 1);
}

} // namespace

void add_time_units(Date_Time &value, ZEB_Time_Unit unit, std::uint32_t count) noexcept
{
    add_to_unit_field(value, unit, count);
    if (value.time.nanosecond >= nanoseconds_per_second) {
        value.time.nanosecond -= nanoseconds_per_second;
        ++value.time.second;
    }
    if (carry_day(value) || unit >= first_code_of_days)
        normalise_date(value);
}

void truncate_to_unit(Date_Time &value, ZEB_Time_Unit unit) noexcept
{
    const auto [year, month, day] = value.date;
    switch (unit) {
    case ZEB_UNIT_SECOND:
        value.time.nanosecond = 0;
        break;
    case ZEB_UNIT_MINUTE:
        truncate_time(value, seconds_per_minute);
        break;
    case ZEB_UNIT_HOUR:
        truncate_time(value, seconds_per_hour);
        break;
    case ZEB_UNIT_DAY:
    case ZEB_UNIT_WEEK:
        set_date(value, year, month, day);
        break;
    case ZEB_UNIT_MONTH:
        set_date(value, year, month, 1);
        break;
    case ZEB_UNIT_QUARTER:
        set_date(value, year, 3 * (month / 3), 1);
        break;
    case ZEB_UNIT_YEAR:
        set_date(value, year, 1, 1);
        break;
    default:
        break;
    }
    if (unit >= first_code_of_days)
        normalise_date(value);
}

void advance_to_unit_boundary(Date_Time &value, ZEB_Time_Unit unit) noexcept
{
    switch (unit) {
    case ZEB_UNIT_SECOND:
        advance_second(value);
        break;
    case ZEB_UNIT_MINUTE:
        advance_time(value, seconds_per_minute);
        break;
    case ZEB_UNIT_HOUR:
        advance_time(value, seconds_per_hour);
        break;
    case ZEB_UNIT_DAY:
        advance_day(value);
        break;
    case ZEB_UNIT_WEEK:
        value.time = {0, 0};
        break;
    case ZEB_UNIT_MONTH:
    case ZEB_UNIT_QUARTER:
    case ZEB_UNIT_YEAR:
        advance_month(value, unit);
        break;
    default:
        break;
    }
    normalise_date(value);
}

} // namespace zeb::engine
