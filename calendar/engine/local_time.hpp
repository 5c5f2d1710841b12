/// The platform's clock and local time.
#pragma once

#include "calendar/engine/date_time.hpp"

#include <cstddef>
#include <ctime>

namespace zeb::engine
{

/// Returns the seconds since 1970-01-01 00:00 UTC, with the clock's microseconds as nanoseconds.
ZEB_Time_Value current_time_value() noexcept;

/// Returns the wall-clock fields of an instant in the local time zone, with the nanoseconds unchanged; the
/// unset date if the platform has none.
Date_Time local_date_time(std::time_t instant, std::uint64_t nanosecond) noexcept;

/// Returns the local wall clock now.
Date_Time current_local_date_time() noexcept;

/// The size of the text of strftime, its terminating null included.
inline constexpr std::size_t strftime_limit = 2048;

/// Formats a date with the platform's strftime in the current locale. The fields are the date's own,
/// normalised by the civil calendar and not moved by a time zone; zone letters describe the local zone at
/// that time. Returns the length of the text in `text`; 0 if it is empty or does not fit.
std::size_t format_with_strftime(char (&text)[strftime_limit], const char *format,
                                 const Date_Time &value) noexcept;

} // namespace zeb::engine
