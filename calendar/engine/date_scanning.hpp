#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>

namespace zeb::engine
{

/// A date and time of day as they stood in a text; no field is checked for its range.
struct Scanned_Date {
    ZEB_Gregorian_Date date;
    std::int32_t hours;
    std::int32_t minutes;
    double seconds;
};

/// Reads "month / day / year" and, when it is complete, "hours : minutes : seconds" from the start of a
/// counted array; white space may stand in front of every number and around '/' and ':'. The seconds may have
/// a fraction and an exponent: anything but plain digits and a point is left to the C library, in its "C"
/// locale. At most 1023 characters from the first that is no white space are looked at; a number too large
/// for its field is cut to 32 bits. Returns how many characters were read, white space in front included; 0,
/// with `result` unchanged, when no date stands there. Without a complete time the date alone is read and the
/// time is 0.
std::uint32_t scan_date(const char *chars, std::uint32_t length, Scanned_Date &result) noexcept;

/// The seconds since 1970-01-01 00:00 of what scan_date read.
double seconds_since_1970(const Scanned_Date &scanned) noexcept;

} // namespace zeb::engine
