#pragma once

// Date arithmetic as plainly as it can be said, one statement per rule.

#include "calendar/engine/date_time.hpp"
#include "core/engine/namespace.hpp"
#include "tests/reference/calendar.hpp"
#include "tests/reference/number_text.hpp"

namespace reference
{

using engine::Date_Time;

inline std::int32_t plus(std::int32_t field, std::uint32_t amount)
{
    return cut(std::int64_t{field} + static_cast<std::int32_t>(amount));
}

inline void recompute(Date_Time &d)
{
    d.julian_day = julian_day(d.date);
    d.date = date_from_julian_day(d.julian_day);
}

inline void add_time_units(Date_Time &d, std::int32_t unit, std::uint32_t n)
{
    if (unit == 1)
        d.time.nanosecond += n;
    if (unit == 2)
        d.time.nanosecond += n * 1000U;
    if (unit == 3)
        d.time.nanosecond += n * 1000000U;
    if (unit == 4)
        d.time.second += n;
    if (unit == 5)
        d.time.second += n * 60U;
    if (unit == 6)
        d.time.second += n * 3600U;
    if (unit == 11)
        d.date.day = plus(d.date.day, n);
    if (unit == 12)
        d.date.day = plus(d.date.day, 7U * n);
    if (unit == 13)
        d.date.month = plus(d.date.month, n);
    if (unit == 14)
        d.date.month = plus(d.date.month, 3U * n);
    if (unit == 15)
        d.date.year = plus(d.date.year, n);
    if (d.time.nanosecond >= 1000000000) {
        d.time.nanosecond -= 1000000000;
        d.time.second += 1;
    }
    bool carried = false;
    if (d.time.second >= 86400) {
        d.time.second -= 86400;
        d.date.day = plus(d.date.day, 1);
        carried = true;
    }
    if (!carried && unit < 10)
        return;
    recompute(d);
}

inline void truncate_to_unit(Date_Time &d, std::int32_t unit)
{
    if (unit == 4 || unit == 5 || unit == 6)
        d.time.nanosecond = 0;
    if (unit == 5)
        d.time.second = d.time.second / 60 * 60;
    if (unit == 6)
        d.time.second = d.time.second / 3600 * 3600;
    if (unit < 10)
        return;
    if (unit >= 11 && unit <= 15)
        d.time = {0, 0};
    if (unit == 13 || unit == 14 || unit == 15)
        d.date.day = 1;
    if (unit == 14)
        d.date.month = 3 * (d.date.month / 3);
    if (unit == 15)
        d.date.month = 1;
    recompute(d);
}

inline void advance_to_unit_boundary(Date_Time &d, std::int32_t unit)
{
    const bool midnight = d.time.second == 0 && d.time.nanosecond == 0;
    if (unit == 4 && d.time.nanosecond != 0) {
        d.time.nanosecond = 0;
        d.time.second += 1;
    }
    if (unit == 5 || unit == 6) {
        const std::uint64_t step = unit == 5 ? 60 : 3600;
        if (d.time.second % step != 0) {
            d.time.nanosecond = 0;
            d.time.second = (d.time.second / step + 1) * step;
        }
        if (d.time.second >= 86400) {
            d.time.second -= 86400;
            d.date.day = plus(d.date.day, 1);
        }
    }
    if (unit == 11 && !midnight) {
        d.time = {0, 0};
        d.date.day = plus(d.date.day, 1);
    }
    if (unit == 12)
        d.time = {0, 0};
    if (unit == 13 && !(midnight && d.date.day < 2)) {
        d.time = {0, 0};
        d.date = {d.date.year, plus(d.date.month, 1), 1};
    }
    if (unit == 14 && !(midnight && d.date.day < 2 && d.date.month % 3 == 0)) {
        d.time = {0, 0};
        d.date = {d.date.year, 3 * (plus(d.date.month, 3) / 3), 1};
    }
    if (unit == 15 && !(midnight && d.date.day < 2 && d.date.month < 2)) {
        d.time = {0, 0};
        d.date = {plus(d.date.year, 1), 1, 1};
    }
    recompute(d);
}

inline bool is_daylight_saving_time(const Date_Time &d)
{
    const auto first_of = [&d](int month) { return std::int64_t{julian_day({d.date.year, month, 1})}; };
    const auto weekday = [](std::int64_t day) { return ((day + 1) % 7 + 7) % 7; };
    const auto past = [&d](std::int64_t day) {
        return d.julian_day == day ? d.time.second >= 7200 : d.julian_day > day;
    };
    const int month = d.date.month;
    if (d.date.year > 2006) {
        if (month < 3 || month > 11)
            return false;
        if (month >= 4 && month <= 10)
            return true;
        const std::int64_t first = first_of(month), w = weekday(first);
        return past(month == 3 ? first + (w == 0 ? 7 : 14 - w) : first + (w == 0 ? 0 : 7 - w));
    }
    if (month < 4 || month > 10)
        return false;
    if (month >= 5 && month <= 9)
        return true;
    if (month == 4) {
        const std::int64_t first = first_of(4), w = weekday(first);
        return past(first + (w == 0 ? 0 : 7 - w));
    }
    const std::int64_t first = first_of(11), w = weekday(first);
    return !past(first - (w == 0 ? 7 : w));
}

// For instants whose day number fits in 32 bits.
inline Date_Time date_from_seconds(double s)
{
    std::int64_t days = static_cast<std::int64_t>(std::trunc(s / 86400.0));
    if (s < 0)
        days -= 1;
    const double r = s - static_cast<double>(days) * 86400.0;
    const std::int32_t day = static_cast<std::int32_t>(days + 2440588);
    return {
        date_from_julian_day(day),
        day,
        {static_cast<std::uint64_t>(std::floor(r)), static_cast<std::uint64_t>((r - std::floor(r)) * 1e9)}};
}

inline std::string slash_text(const Date_Time &d)
{
    std::string text =
        std::to_string(d.date.month) + "/" + std::to_string(d.date.day) + "/" + std::to_string(d.date.year);
    const auto two = [](std::uint64_t value) { return (value < 10 ? "0" : "") + std::to_string(value); };
    if (d.time.second != 0)
        text += " " + two(d.time.second / 3600) + ":" + two(d.time.second % 3600 / 60) + ":" +
                two(d.time.second % 60);
    const double part = static_cast<double>(d.time.nanosecond) * 1e-9;
    if (d.time.nanosecond != 0)
        text += d.time.second != 0 ? fraction(12, part) : " " + fixed(12, part);
    return text;
}

inline Date_Time date_from_spaced_text(const std::string &text)
{
    int month = 0, day = 0, year = 0, hour = 0, minute = 0, second = 0, nanosecond = 0;
    std::sscanf(text.c_str(), " %d / %d / %d %d : %d : %d . %d", &month, &day, &year, &hour, &minute, &second,
                &nanosecond);
    const std::int64_t seconds = std::int64_t{minute} * 60 + std::int64_t{hour} * 3600 + second;
    Date_Time d{
        {year, month, day}, 0, {static_cast<std::uint64_t>(seconds), static_cast<std::uint64_t>(nanosecond)}};
    recompute(d);
    return d;
}

} // namespace reference
