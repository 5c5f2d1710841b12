/// Instants as the platform counts them, in seconds since 2001-01-01 00:00 UTC, split without a loss.
#pragma once

#include "calendar/engine/date_time.hpp"

#include <cstdint>

namespace zeb::engine
{

/// An instant in seconds since 1970-01-01 00:00, rounded down, and the nanoseconds after them.
struct Exact_Instant {
    std::int64_t second;
    std::uint32_t nanosecond; // 0 to 999999999
};

/// The instants that are split and joined: far more than every date has, and far inside 64 bits.
inline constexpr double greatest_reference_time = 1e18;

/// Splits an instant of the platform's, whose fraction is rounded to the nearest nanosecond. Returns false,
/// with `instant` unchanged, for NaN and what is further away than 1e18 seconds.
bool split_reference_time(double seconds_since_2001, Exact_Instant &instant) noexcept;

/// Returns an instant as the platform counts it, rounded to a double: in our years to 0.1 microseconds or so.
double reference_time(Exact_Instant instant) noexcept;

/// Sets the fields, and the civil day number, wrapped around in 32 bits. Returns false, with `value`
/// unchanged, if the year does not fit in 32 bits.
bool set_to_instant(Date_Time &value, Exact_Instant instant) noexcept;

/// Reads year, month, day and time in the civil calendar; what exceeds its month or day counts on. Returns
/// false, with `instant` unchanged, if the time is further away than 1e18 seconds.
bool get_instant(const Date_Time &value, Exact_Instant &instant) noexcept;
bool get_instant(ZEB_Time_Value time_since_1970, Exact_Instant &instant) noexcept;

/// Returns the instant at which the clocks of a zone show the local time. `offset_at` returns the seconds by
/// which they are ahead at an instant. Of a local time that occurs twice it is the first; a local time that
/// is left out counts on from the one before.
template <class Offset_At>
Exact_Instant instant_of_local_time(Exact_Instant local, Offset_At offset_at)
{
    // No zone is further ahead or behind than a day, nor changes twice within one.
    constexpr std::int64_t day = 86400;
    const std::int64_t before = local.second - offset_at(local.second - day);
    if (offset_at(before) == local.second - before)
        return {before, local.nanosecond};
    const std::int64_t after = local.second - offset_at(local.second + day);
    const bool is_after = offset_at(after) == local.second - after;
    return {is_after ? after : before, local.nanosecond};
}

} // namespace zeb::engine
