#pragma once

// The calendar as plainly as it can be said: one statement per step, the C library for all text.

#include <Korvane_ZEB/ZEB_Types.h>

#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace reference
{

// Signed 32-bit results of arithmetic carried out in 64 bits.
inline std::int32_t cut(std::int64_t value)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

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

inline ZEB_Gregorian_Date date_from_julian_day(std::int32_t julian_day)
{
    const double J = static_cast<double>(static_cast<std::uint32_t>(julian_day));
    const double x = std::floor(J + 0.5);
    double l = x + 68569.0;
    const double n = std::floor(4.0 * l / 146097.0);
    l = l - std::floor((146097.0 * n + 3.0) * 0.25);
    const double i = std::floor(4000.0 * (l + 1.0) / 1461001.0);
    l = l - std::floor(1461.0 * i * 0.25) + 31.0;
    const double j = std::floor(80.0 * l / 2447.0);
    const double day = l - std::floor(2447.0 * j / 80.0);
    l = std::floor(j / 11.0);
    const double month = j + 2.0 - 12.0 * l;
    const double year = 100.0 * (n - 49.0) + i + l;
    return {static_cast<std::int32_t>(year), static_cast<std::int32_t>(month),
            static_cast<std::int32_t>(day)};
}

// Both date scanners at once.
inline std::uint32_t assign_seconds(const char *chars, std::uint32_t length, double *result)
{
    std::uint32_t skipped = 0;
    while (skipped < length && std::isspace(static_cast<unsigned char>(chars[skipped])))
        ++skipped;
    if (skipped == length)
        return 0;
    char text[1024];
    std::uint32_t copied = length - skipped;
    if (copied > 1023)
        copied = 1023;
    std::memcpy(text, chars + skipped, copied);
    text[copied] = '\0';
    int month = 0, day = 0, year = 0, date_count = 0;
    if (std::sscanf(text, "%d / %d / %d%n", &month, &day, &year, &date_count) != 3 || date_count <= 0)
        return 0;
    int hours = 0, minutes = 0, time_count = 0;
    double seconds = 0.0;
    if (std::sscanf(text + date_count, "%d : %d : %lf%n", &hours, &minutes, &seconds, &time_count) != 3 ||
        time_count <= 0) {
        hours = minutes = time_count = 0;
        seconds = 0.0;
    }
    const std::int32_t days = cut(std::int64_t{julian_day({year, month, day})} - 2440588);
    *result = days * 86400.0 + hours * 3600.0 + minutes * 60.0 + seconds;
    return skipped + static_cast<std::uint32_t>(date_count) + static_cast<std::uint32_t>(time_count);
}

} // namespace reference
