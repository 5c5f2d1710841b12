/// Numbers in fixed notation without needless digits.
///
/// The product |x| * 10^decimals is rounded by adding 0.5 and truncating; trailing zero decimals and a
/// trailing point are omitted. The decimal point is '.' in every locale. More than 13 decimals count as 13. A
/// number too large for that product (with 13 decimals from 922337.2 on) is written in the exponent form of
/// the pretty numbers; infinity is "Inf" and NaN "NaN", both without a sign.
///
/// Each writer terminates the text with a null, writes nothing after it, and returns a pointer to it. A
/// buffer of 32 bytes suffices for every argument.
#pragma once

#include <cstdint>

namespace zeb::engine
{

/// Writes "0" before a leading point and '-' before a negative number; a number that rounds to 0 is "0".
char *write_fixed(char *buffer, std::uint32_t decimals, double x) noexcept;

/// Writes no sign and no "0" before a leading point; a number that rounds to 0 is the empty text.
char *write_fraction(char *buffer, std::uint32_t decimals, double x) noexcept;

/// Same as write_fixed, computed in double; only the exponent form has six digits.
char *write_fixed_float(char *buffer, std::uint32_t decimals, float x) noexcept;

/// Writes a magnitude from 0.0001 to below 1000000: write_fixed with 12 decimals below 1 and 10 above.
char *write_fixed_in_pretty_range(char *buffer, double x) noexcept;

/// Writes '.' and the decimals of `fraction`, which is below 10^decimals (0 to 16), without trailing zeros;
/// nothing for 0. Writes no terminating null; returns the position after the last character.
char *put_decimals(char *out, std::uint64_t fraction, std::uint32_t decimals) noexcept;

} // namespace zeb::engine
