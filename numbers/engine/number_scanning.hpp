/// Scanning numbers at the start of a counted array, of which at most 31 characters are read.
///
/// Each scanner returns the number of characters consumed, including leading white space, and stores the
/// number; if there is no number it returns 0 and leaves `result` unchanged. The syntax is that of the C
/// library in its "C" locale, whatever locale is set: the real scanners accept exponents, hexadecimal forms,
/// "inf" and "nan", and the decimal point is '.'.
#pragma once

#include <cstdint>

namespace zeb::engine
{

std::uint32_t scan_double(const char *chars, std::uint32_t length, double &result) noexcept;
std::uint32_t scan_float(const char *chars, std::uint32_t length, float &result) noexcept;

/// Integers in a base of 2 to 36, or in that of their prefix (base 0); any other base reads nothing. A number
/// beyond 64 bits becomes the nearest that fits; a 32-bit scanner stores its lower 32 bits. A '-' before an
/// unsigned number negates it.

std::uint32_t scan_int(const char *chars, std::uint32_t length, int base, std::int32_t &result) noexcept;
std::uint32_t scan_unsigned(const char *chars, std::uint32_t length, int base,
                            std::uint32_t &result) noexcept;
std::uint32_t scan_int_64(const char *chars, std::uint32_t length, int base, std::int64_t &result) noexcept;
std::uint32_t scan_unsigned_64(const char *chars, std::uint32_t length, int base,
                               std::uint64_t &result) noexcept;

} // namespace zeb::engine
