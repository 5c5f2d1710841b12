/// Instants in seconds since 1970-01-01 00:00: splitting, rounding and writing them.
#pragma once

#include <cstdint>

namespace zeb::engine
{

inline constexpr double seconds_per_day = 86400.0;

/// An instant as a day and the remaining seconds.
struct Split_Instant {
    std::int64_t julian_day; // not limited to 32 bits
    double remainder;        // 0 to 86400, both included
};

/// Splits the seconds since 1970-01-01 00:00. An instant before 1970 always counts one day further back, so a
/// negative multiple of 86400 leaves a remainder of 86400. Returns false, with `split` unchanged, if the
/// instant is not finite or more than 1e17 seconds away, which is beyond every date.
bool split_any_instant(double seconds_since_1970, Split_Instant &split) noexcept;

/// The same; also returns false if the Julian day number does not fit in 32 bits.
bool split_instant(double seconds_since_1970, Split_Instant &split) noexcept;

/// Returns a fraction of a second (0 to below 1) in microseconds, 0 to 1000000: the exact value rounded to
/// nearest, ties to even, as the C library rounds to six decimals.
std::uint32_t rounded_microseconds(double fraction) noexcept;

/// Writes the instant as month/day/year, followed by hours:minutes:seconds unless it is midnight to the
/// microsecond; the seconds have at most six decimals, without trailing zeros. An instant that split_instant
/// refuses gives the empty text. The decimal point is '.' in every locale. The buffer needs 64 bytes; nothing
/// is written after the terminating null, a pointer to which is returned.
char *write_pretty_date(char *buffer, double seconds_since_1970) noexcept;

} // namespace zeb::engine
