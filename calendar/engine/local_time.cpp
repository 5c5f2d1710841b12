#include "calendar/engine/local_time.hpp"

#include "calendar/engine/civil_date.hpp"
#include "calendar/engine/wrapping.hpp"

#include <sys/time.h>

namespace zeb::engine
{
namespace
{

constexpr std::uint64_t seconds_per_whole_day = 86400;

/// Returns the date as struct tm, with normalised fields; with the fields unchanged if the year does not fit.
std::tm tm_of(const Date_Time &value) noexcept
{
    const std::uint64_t second = value.time.second % seconds_per_whole_day;
    const std::int64_t day = day_from_civil_date(value.date) +
                             static_cast<std::int64_t>(value.time.second / seconds_per_whole_day);
    const bool fits = has_civil_date(day);
    const ZEB_Gregorian_Date date = fits ? civil_date_from_day(day) : value.date;
    std::tm fields{};
    fields.tm_sec = static_cast<int>(second % 60);
    fields.tm_min = static_cast<int>(second / 60 % 60);
    fields.tm_hour = static_cast<int>(second / 3600);
    fields.tm_mday = date.day;
    fields.tm_mon = wrapping_subtract(date.month, 1);
    fields.tm_year = wrapping_subtract(date.year, 1900);
    fields.tm_wday = fits ? static_cast<int>(((day + 1) % 7 + 7) % 7) : 0;
    fields.tm_yday = fits ? static_cast<int>(day - day_from_civil_date({date.year, 1, 1})) : 0;
    return fields;
}

/// Sets the zone fields to the local zone at that local time; the hour does not change.
void set_zone_fields(std::tm &fields) noexcept
{
    std::tm local = fields;
    local.tm_isdst = -1; // determined by mktime
    local.tm_wday = -1;  // unchanged if mktime fails
    (void)std::mktime(&local);
    if (local.tm_wday < 0)
        return;
    fields.tm_isdst = local.tm_isdst;
    fields.tm_gmtoff = local.tm_gmtoff;
    fields.tm_zone = local.tm_zone;
}

} // namespace

ZEB_Time_Value current_time_value() noexcept
{
    timeval now{};
    gettimeofday(&now, nullptr);
    return {static_cast<std::uint64_t>(now.tv_sec), static_cast<std::uint64_t>(now.tv_usec) * 1000};
}

Date_Time local_date_time(std::time_t instant, std::uint64_t nanosecond) noexcept
{
    std::tm fields{};
    tzset(); // localtime_r may not notice a change of the time zone
    if (!localtime_r(&instant, &fields))
        return unset_date_time;
    const ZEB_Gregorian_Date date{wrapping_add(fields.tm_year, 1900), fields.tm_mon + 1, fields.tm_mday};
    const int second = fields.tm_hour * 3600 + fields.tm_min * 60 + fields.tm_sec;
    return make_date_time(date, static_cast<std::uint64_t>(second), nanosecond);
}

Date_Time current_local_date_time() noexcept
{
    const ZEB_Time_Value now = current_time_value(); // read once: a second reading may differ
    return local_date_time(static_cast<std::time_t>(now.second), now.nanosecond);
}

std::size_t format_with_strftime(char (&text)[strftime_limit], const char *format,
                                 const Date_Time &value) noexcept
{
    std::tm fields = tm_of(value);
    set_zone_fields(fields);
    return std::strftime(text, sizeof text, format, &fields);
}

} // namespace zeb::engine
