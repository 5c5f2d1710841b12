/// Numbers as printf's "%g" prints them.
#pragma once

namespace zeb::engine
{

/// The most characters that put_general may write to.
inline constexpr int longest_general_text = 32;

/// Writes any number with at most six significant digits, rounded as the C library rounds: fixed from 0.0001
/// to below 1000000, else in exponent form, without trailing zeros. Infinity and NaN are written as the C
/// library writes them. The decimal point is '.' in every locale. Writes no terminating null; returns the
/// position after the last character.
char *put_general(char *out, double x) noexcept;

} // namespace zeb::engine
