/// A date with a time of day, its conversions and comparisons.
#pragma once

#include "core/engine/hash.hpp"

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>

namespace zeb::engine
{

/// A date in both forms, and a time of day, which may be past the end of the day where an operation says so.
struct Date_Time {
    ZEB_Gregorian_Date date;
    std::int32_t julian_day;
    ZEB_Time_Value time; // since midnight
};

/// The value of a date never set. Its date is the conventional first day of Julian day 0, although the
/// mapping gives another one.
inline constexpr Date_Time unset_date_time{{-4713, 1, 1}, 0, {0, 0}};

/// Returns the fields with the day number computed from them. The date is not normalised: a day outside its
/// month stays.
Date_Time make_date_time(ZEB_Gregorian_Date date, std::uint64_t second, std::uint64_t nanosecond) noexcept;

/// Computes the date from the day number.
void update_date(Date_Time &value) noexcept;

/// Normalises the date: computes the day number from it, and the date from that.
void normalise_date(Date_Time &value) noexcept;

/// Sets day, date and time from an instant, which may leave second 86400 (see split_instant); nanoseconds are
/// truncated. Returns false, with `value` unchanged, for an instant that split_instant refuses.
bool set_seconds_since_1970(Date_Time &value, double seconds) noexcept;

/// Returns the seconds since 1970-01-01 00:00 of the day number and the time; year, month and day are
/// ignored.
double seconds_since_1970(const Date_Time &value) noexcept;

/// Returns the days from `other` to `value`, wrapped around in 32 bits.
std::int32_t days_between(const Date_Time &value, const Date_Time &other) noexcept;

/// Whether day number, second and nanosecond are all equal.
bool is_equal(const Date_Time &a, const Date_Time &b) noexcept;

/// Whether `a` is not later than `b`, by day number, then second, then nanosecond.
bool is_at_or_before(const Date_Time &a, const Date_Time &b) noexcept;

/// Returns a hash that agrees with equality, for hash tables in memory.
inline std::uint64_t hash_of(const ZEB_Time_Value &time) noexcept
{
    return mix(mix(0, time.second), time.nanosecond);
}

inline std::uint64_t hash_of(const Date_Time &value) noexcept
{
    return mix(hash_of(value.time), static_cast<std::uint32_t>(value.julian_day));
}

} // namespace zeb::engine
