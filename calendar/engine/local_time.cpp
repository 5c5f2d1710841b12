#include "calendar/engine/local_time.hpp"

#include "calendar/engine/wrapping.hpp"

#include <sys/time.h>

namespace zeb
{

ZEB_Time_Value current_time_value() noexcept
{
    timeval now{};
    gettimeofday(&now, nullptr);
    return {static_cast<std::uint64_t>(now.tv_sec), static_cast<std::uint64_t>(now.tv_usec) * 1000};
}

Date_Time local_date_time(std::time_t instant, std::uint64_t nanosecond) noexcept
{
    std::tm fields{};
    tzset(); // localtime_r need not notice that the time zone changed
    if (!localtime_r(&instant, &fields))
        return unset_date_time;
    const ZEB_Gregorian_Date date{wrapping_add(fields.tm_year, 1900), fields.tm_mon + 1, fields.tm_mday};
    const int second = fields.tm_hour * 3600 + fields.tm_min * 60 + fields.tm_sec;
    return make_date_time(date, static_cast<std::uint64_t>(second), nanosecond);
}

Date_Time current_local_date_time() noexcept
{
    const std::uint64_t nanosecond = current_time_value().nanosecond;
    return local_date_time(std::time(nullptr), nanosecond);
}

std::size_t format_with_strftime(char (&text)[strftime_limit], const char *format,
                                 const Date_Time &value) noexcept
{
    const std::uint64_t second = value.time.second;
    std::tm fields{};
    fields.tm_sec = static_cast<int>(second % 60);
    fields.tm_min = static_cast<int>(second / 60 % 60);
    fields.tm_hour = static_cast<int>(second / 3600);
    fields.tm_mday = value.date.day;
    fields.tm_mon = wrapping_subtract(value.date.month, 1);
    fields.tm_year = wrapping_subtract(value.date.year, 1900);
    (void)std::mktime(&fields); // where it fails the fields stay as they are
    return std::strftime(text, sizeof text, format, &fields);
}

} // namespace zeb
