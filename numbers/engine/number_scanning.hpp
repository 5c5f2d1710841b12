#pragma once

#include <cstdint>

namespace zeb::engine
{

/// Numbers from the start of a counted array, of which the first 31 characters are looked at. Each scanner
/// returns how many characters it consumed, white space in front included, and stores the number; when no
/// number stands there it returns 0 and leaves `result` untouched. The C library in its "C" locale is the
/// judge of what a number is, whatever locale is in force: the real scanners know its exponents, hexadecimal
/// forms, "inf" and "nan", and the decimal point is '.'.

std::uint32_t scan_double(const char *chars, std::uint32_t length, double &result) noexcept;
std::uint32_t scan_float(const char *chars, std::uint32_t length, float &result) noexcept;

/// Integers in a base of 2 to 36, or in the one that their own prefix names (base 0); any other base reads
/// nothing. A number beyond 64 bits becomes the nearest that fits, and the lower 32 bits are what a 32-bit
/// scanner stores. A '-' before an unsigned number negates it.

std::uint32_t scan_int(const char *chars, std::uint32_t length, int base, std::int32_t &result) noexcept;
std::uint32_t scan_unsigned(const char *chars, std::uint32_t length, int base,
                            std::uint32_t &result) noexcept;
std::uint32_t scan_int_64(const char *chars, std::uint32_t length, int base, std::int64_t &result) noexcept;
std::uint32_t scan_unsigned_64(const char *chars, std::uint32_t length, int base,
                               std::uint64_t &result) noexcept;

} // namespace zeb::engine
