/// Reading dates with slashes.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>

namespace zeb::engine
{

/// A date and time of day as read from a text; no field is checked for its range.
struct Scanned_Date {
    ZEB_Gregorian_Date date;
    std::int32_t hours;
    std::int32_t minutes;
    double seconds;
};

/// Reads "month / day / year" and, if it is complete, "hours : minutes : seconds" from the start of a counted
/// array; white space is allowed before every number and around '/' and ':'. The seconds may have a fraction
/// and an exponent: anything but plain digits and a point is read by the C library, in its "C" locale. At
/// most 1023 characters are read after leading white space; a number too large for its field is truncated to
/// 32 bits. Returns the number of characters read, including leading white space; 0, with `result` unchanged,
/// if there is no date. Without a complete time only the date is read and the time is 0.
std::uint32_t scan_date(const char *chars, std::uint32_t length, Scanned_Date &result) noexcept;

/// Returns the seconds since 1970-01-01 00:00 of a scanned date.
double seconds_since_1970(const Scanned_Date &scanned) noexcept;

} // namespace zeb::engine
