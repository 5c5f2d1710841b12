#pragma once

// Date arithmetic as plainly as it can be said, one statement per rule.

#include "calendar/engine/date_time.hpp"
#include "core/engine/namespace.hpp"
#include "tests/reference/calendar.hpp"
#include "tests/reference/number_text.hpp"

namespace reference
{

using engine::Date_Time;

inline void recompute(Date_Time &d)
{
    d.julian_day = julian_day(d.date);
    d.date = date_from_julian_day(d.julian_day);
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
