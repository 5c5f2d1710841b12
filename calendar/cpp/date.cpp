#include <Korvane_ZEB_engine/date.hpp>

#include "calendar/engine/civil_date.hpp"
#include "calendar/engine/date_scanning.hpp"
#include "calendar/engine/instant.hpp"
#include "calendar/engine/iso8601.hpp"
#include "calendar/engine/local_time.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zeb
{
namespace
{

std::uint32_t scanned_length(std::string_view text) noexcept
{
    return static_cast<std::uint32_t>(std::min<std::size_t>(text.size(), UINT32_MAX));
}

bool is_in_range(const engine::Scanned_Date &scanned) noexcept
{
    const auto [year, month, day] = scanned.date;
    return day >= 1 && day <= days_in_month(year, month) && scanned.hours >= 0 && scanned.hours < 24 &&
           scanned.minutes >= 0 && scanned.minutes < 60 && scanned.seconds >= 0 && scanned.seconds < 60;
}

} // namespace

std::int64_t julian_day(Gregorian_Date date) noexcept { return engine::day_from_civil_date(date); }

std::optional<Gregorian_Date> date_of_julian_day(std::int64_t day) noexcept
{
    if (!engine::has_civil_date(day))
        return std::nullopt;
    return engine::civil_date_from_day(day);
}

std::uint32_t weekday(Gregorian_Date date) noexcept
{
    const std::int64_t day = julian_day(date) % 7; // Julian day 0 is a Monday
    return static_cast<std::uint32_t>(day < 0 ? day + 7 : day);
}

bool is_leap_year(std::int32_t year) noexcept { return engine::is_leap_year(year); }

std::int32_t days_in_month(std::int32_t year, std::int32_t month) noexcept
{
    return engine::days_in_month(year, month);
}

Gregorian_Date add_months(Gregorian_Date date, std::int32_t months) noexcept
{
    return engine::add_months_clamped(date, months);
}

double seconds_since_1970(const Date_And_Time &instant) noexcept
{
    return engine::civil_seconds_since_1970(instant.date, instant.time);
}

std::optional<Date_And_Time> date_of_seconds_since_1970(double seconds) noexcept
{
    engine::Split_Instant split;
    if (!engine::split_any_instant(seconds, split))
        return std::nullopt;
    // An instant before 1970 that is a whole number of days leaves all of the day before.
    const bool is_full = split.remainder >= engine::seconds_per_day;
    const double remainder = is_full ? 0 : split.remainder;
    const std::optional<Gregorian_Date> date = date_of_julian_day(split.julian_day + is_full);
    if (!date)
        return std::nullopt;
    const auto second = static_cast<std::uint64_t>(remainder);
    const auto nanosecond = static_cast<std::uint64_t>((remainder - static_cast<double>(second)) * 1e9);
    return Date_And_Time{*date, {second, nanosecond}};
}

Number_Text iso_text(Gregorian_Date date) noexcept
{
    return Number_Text::made_by([=](char *out) { return engine::write_iso8601_date(out, date); });
}

Number_Text iso_text(const Date_And_Time &instant) noexcept
{
    return Number_Text::made_by(
        [&](char *out) { return engine::write_iso8601(out, julian_day(instant.date), instant.time); });
}

std::size_t scan_iso_text(std::string_view text, Date_And_Time &result) noexcept
{
    return engine::scan_iso8601(text.data(), scanned_length(text), result.date, result.time);
}

std::size_t scan_slash_text(std::string_view text, Date_And_Time &result) noexcept
{
    engine::Scanned_Date scanned;
    const std::uint32_t count = engine::scan_date(text.data(), scanned_length(text), scanned);
    if (count == 0 || !is_in_range(scanned))
        return 0;
    const double whole = std::floor(scanned.seconds);
    const auto minutes = static_cast<std::uint64_t>(scanned.hours * 60 + scanned.minutes);
    result = {scanned.date,
              {minutes * 60 + static_cast<std::uint64_t>(whole),
               static_cast<std::uint64_t>((scanned.seconds - whole) * 1e9)}};
    return count;
}

Time_Value current_time() noexcept { return engine::current_time_value(); }

std::optional<Date_And_Time> local_time(Time_Value instant) noexcept
{
    if (instant.second > static_cast<std::uint64_t>(std::numeric_limits<std::time_t>::max()))
        return std::nullopt;
    const engine::Date_Time local =
        engine::local_date_time(static_cast<std::time_t>(instant.second), instant.nanosecond);
    if (local.julian_day == engine::unset_date_time.julian_day)
        return std::nullopt;
    return Date_And_Time{local.date, local.time};
}

} // namespace zeb
