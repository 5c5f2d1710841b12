/// Numbers in exponent form.
#pragma once

#include "numbers/engine/rounded_decimal.hpp"

namespace zeb::engine
{

/// Writes a finite number other than 0 as d.ddde+dd with 15 or 6 significant digits, rounded as the C library
/// rounds, without trailing zeros and without a trailing point. The exponent has a sign and two or three
/// digits. The decimal point is '.' in every locale. Writes at most 22 characters and no terminating null;
/// returns the position after the last character.
template <int significant_digits>
char *put_exponent_form(char *out, double x) noexcept;

/// Writes 'e', a sign and two or three digits; returns the position after the last one.
char *put_exponent(char *out, int exponent) noexcept;

/// Writes a number already rounded to that many digits in the same form.
template <int significant_digits>
char *put_exponent_form(char *out, Rounded_Decimal decimal) noexcept;

extern template char *put_exponent_form<6>(char *, Rounded_Decimal) noexcept;
extern template char *put_exponent_form<15>(char *, double) noexcept;
extern template char *put_exponent_form<6>(char *, double) noexcept;

} // namespace zeb::engine
