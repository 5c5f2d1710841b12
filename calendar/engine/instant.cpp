#include "calendar/engine/instant.hpp"

#include "calendar/engine/date_text.hpp"
#include "calendar/engine/julian_day.hpp"
#include "numbers/engine/fixed_text.hpp"
#include "numbers/engine/unsigned_text.hpp"
#include "numbers/engine/wide_product.hpp"

#include <cstdint>
#include <limits>

namespace zeb::engine
{
namespace
{

constexpr bool fits_in_32_bits(std::int64_t value) noexcept
{
    return value >= std::numeric_limits<std::int32_t>::min() &&
           value <= std::numeric_limits<std::int32_t>::max();
}

struct Clock_Time {
    std::uint32_t hours;
    std::uint32_t minutes;
    double seconds;
};

Clock_Time clock_time(double remainder) noexcept
{
    const std::uint32_t hours = static_cast<std::uint32_t>(remainder / 3600.0);
    const double hour_seconds = hours * 3600.0;
    const std::uint32_t minutes = static_cast<std::uint32_t>((remainder - hour_seconds) / 60.0);
    return {hours, minutes, remainder - minutes * 60.0 - hour_seconds};
}

/// Writes the seconds, after a '0' if the value before rounding is below 10: 9.9999999 gives "010".
char *put_seconds(char *out, double seconds) noexcept
{
    if (seconds < 10.0)
        *out++ = '0';
    std::uint32_t whole = static_cast<std::uint32_t>(seconds);
    std::uint32_t microseconds = rounded_microseconds(seconds - whole);
    if (microseconds == 1000000) {
        microseconds = 0;
        ++whole;
    }
    return put_decimals(put_unsigned(out, whole), microseconds, 6);
}

char *put_clock_time(char *out, std::uint32_t hour, Clock_Time time) noexcept
{
    *out++ = ' ';
    out = put_two_digits_at_least(out, hour);
    *out++ = ':';
    out = put_two_digits_at_least(out, time.minutes);
    *out++ = ':';
    return put_seconds(out, time.seconds);
}

} // namespace

bool split_any_instant(double seconds_since_1970, Split_Instant &split) noexcept
{
    // Far inside the range of 64-bit integers, and false for NaN.
    if (!(seconds_since_1970 > -1e17 && seconds_since_1970 < 1e17))
        return false;
    const std::int64_t days =
        static_cast<std::int64_t>(seconds_since_1970 / seconds_per_day) - (seconds_since_1970 < 0);
    split.julian_day = days + julian_day_of_1970;
    // The product is exact: a multiple of 128 below 2^60.
    split.remainder = seconds_since_1970 - static_cast<double>(days) * seconds_per_day;
    return true;
}

bool split_instant(double seconds_since_1970, Split_Instant &split) noexcept
{
    Split_Instant any;
    if (!split_any_instant(seconds_since_1970, any) || !fits_in_32_bits(any.julian_day))
        return false;
    split = any;
    return true;
}

std::uint32_t rounded_microseconds(double fraction) noexcept
{
    // The fixed-point scale keeps every bit of a fraction of at least a microsecond.
    const bool is_small = fraction < 0x1p-12;
    const double scale = is_small ? 0x1p76 : 0x1p64;
    const Wide_Unsigned product = wide_product(static_cast<std::uint64_t>(fraction * scale), 1000000);
    const std::uint64_t whole = is_small ? product.high >> 12 : product.high;
    // The bits dropped here never decide: no double is that close to a tie without being one.
    const std::uint64_t rest = is_small ? product.high << 52 | product.low >> 12 : product.low;
    constexpr std::uint64_t half = std::uint64_t{1} << 63;
    const bool up = rest > half || (rest == half && (whole & 1));
    return static_cast<std::uint32_t>(whole + up);
}

char *write_pretty_date(char *buffer, double seconds_since_1970) noexcept
{
    char *end = buffer;
    Split_Instant split;
    if (split_instant(seconds_since_1970, split)) {
        const Clock_Time time = clock_time(split.remainder);
        // A remainder of a whole day is midnight of the next one.
        const bool next_day = time.hours == 24;
        const std::uint32_t hour = next_day ? 0 : time.hours;
        const std::int64_t julian_day = split.julian_day + next_day;
        if (fits_in_32_bits(julian_day)) {
            end = put_slash_date(end, date_from_julian_day(static_cast<std::int32_t>(julian_day)));
            if (hour != 0 || time.minutes != 0 || !(time.seconds < 1e-6))
                end = put_clock_time(end, hour, time);
        }
    }
    *end = '\0';
    return end;
}

} // namespace zeb::engine
