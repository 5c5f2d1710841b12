/// Fixed decimals as the C library prints them, padded to 20 characters.
#pragma once

#include <cstdint>

namespace zeb::engine
{

/// Writes "%-20.*f" of a finite number, with '.' as decimal point in every locale. All of the `size` bytes
/// (at most 64) may be written to; a text that does not fit with its terminating null is a failure. Returns
/// the length of the text with its padding; 0 for a failure.
std::uint32_t put_padded_fixed(char *out, std::uint32_t size, std::uint32_t decimals, double x) noexcept;

/// Returns the length of a text without its trailing spaces.
std::uint32_t length_without_padding(const char *text, std::uint32_t length) noexcept;

} // namespace zeb::engine
