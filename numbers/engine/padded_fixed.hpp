#pragma once

#include <cstdint>

namespace zeb::engine
{

/// Puts what the C library makes of "%-20.*f" for a finite number, with '.' as decimal point in every locale.
/// `size` (at most 64) is the size of the place, all of which may be written to: a text that does not fit
/// with its terminating null counts as failed. Returns the length of the text, padding included; 0 for a
/// failure.
std::uint32_t put_padded_fixed(char *out, std::uint32_t size, std::uint32_t decimals, double x) noexcept;

/// The length that is left of a text without the white space at its end.
std::uint32_t length_without_padding(const char *text, std::uint32_t length) noexcept;

} // namespace zeb::engine
