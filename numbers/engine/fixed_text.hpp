#pragma once

#include <cstdint>

namespace zeb::engine
{

/// Fixed-point text without needless digits: |x| * 10^decimals is rounded by adding 0.5 and cutting, trailing
/// zero decimals are dropped, and a point that nothing follows is dropped too. The decimal point is '.' in
/// every locale. Decimals above 13 count as 13.
///
/// A number too large for that product (at 13 decimals from 922337.2 on) is written in the exponent form of
/// the pretty numbers; infinity gives "Inf", not a number "NaN", both without sign.
///
/// Each writer ends the text with a null, writes nothing after it, and returns a pointer to it. A buffer of
/// 32 bytes is enough for every argument.

/// With "0" before a leading point and '-' before a negative number; a number that rounds to 0 is "0".
char *write_fixed(char *buffer, std::uint32_t decimals, double x) noexcept;

/// Without sign and without the "0" before a leading point; a number that rounds to 0 is the empty text.
char *write_fraction(char *buffer, std::uint32_t decimals, double x) noexcept;

/// As write_fixed; the arithmetic is that of double, only the exponent form has six digits.
char *write_fixed_float(char *buffer, std::uint32_t decimals, float x) noexcept;

/// For magnitudes from 0.0001 to below 1000000: write_fixed with 12 decimals below 1 and 10 from there on.
char *write_fixed_in_pretty_range(char *buffer, double x) noexcept;

/// Puts '.' and the decimals of `fraction`, which is below 10^decimals (0 to 16), without its trailing zeros;
/// puts nothing for 0. No terminating null; returns the position after the last character.
char *put_decimals(char *out, std::uint64_t fraction, std::uint32_t decimals) noexcept;

} // namespace zeb::engine
