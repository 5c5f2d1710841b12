/// Numbers read from the start of a text, in the syntax of the C library's "C" locale, whatever locale is
/// set.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zeb
{

/// Each reads a number, behind white space if there is any, from the first 31 characters, and returns how
/// many characters were read; 0, with `result` unchanged, if there is no number. Exponents, hexadecimal
/// forms, "inf" and "nan" are read.
std::size_t scan_number(std::string_view text, double &result) noexcept;
std::size_t scan_number(std::string_view text, float &result) noexcept;

/// The same for integers, in a base of 2 to 36, or in that of their prefix for 0; with another base nothing
/// is read. A number beyond 64 bits becomes the nearest; 32-bit results are its lower half.
std::size_t scan_number(std::string_view text, std::int32_t &result, int base = 10) noexcept;
std::size_t scan_number(std::string_view text, std::uint32_t &result, int base = 10) noexcept;
std::size_t scan_number(std::string_view text, std::int64_t &result, int base = 10) noexcept;
std::size_t scan_number(std::string_view text, std::uint64_t &result, int base = 10) noexcept;

} // namespace zeb
