#pragma once

#include "calendar/engine/date_time.hpp"

#include <cstddef>
#include <ctime>

namespace zeb::engine
{

/// The two places where the platform's clock and its notion of local time come in.

/// Seconds since 1970-01-01 00:00 UTC, with the clock's microseconds as nanoseconds.
ZEB_Time_Value current_time_value() noexcept;

/// The wall-clock fields that the platform gives an instant in the local time zone, and the nanoseconds as
/// they are; the unset date where the platform knows none.
Date_Time local_date_time(std::time_t instant, std::uint64_t nanosecond) noexcept;

/// The local wall clock now.
Date_Time current_local_date_time() noexcept;

/// What strftime may write, its terminating null included.
inline constexpr std::size_t strftime_limit = 2048;

/// Formats a date with the platform's strftime, in the locale in force. The text is the date's own fields,
/// each brought into its range by the civil calendar; no time zone moves them, and the zone letters of a
/// format give what the platform says of that local time. Returns the length of the text in `text`; 0 when it
/// is empty or does not fit.
std::size_t format_with_strftime(char (&text)[strftime_limit], const char *format,
                                 const Date_Time &value) noexcept;

} // namespace zeb::engine
