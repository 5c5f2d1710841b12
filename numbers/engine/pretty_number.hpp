#pragma once

namespace zeb::engine
{

/// The shortest honest text of a number for a reader: fixed notation from 0.0001 to below 1000000, with at
/// most 12 decimals below 1 and 10 above (4 for a float), the exponent form with 15 significant digits (6 for
/// a float) outside; no trailing zeros in either. 0 is "0", infinity of either sign "Inf", not a number
/// "NaN". The decimal point is '.' in every locale.
///
/// The text ends with a null, nothing is written after it, and a pointer to it is returned. A buffer of 32
/// bytes is enough for every argument.

char *write_pretty_double(char *buffer, double x) noexcept;
char *write_pretty_float(char *buffer, float x) noexcept;

} // namespace zeb::engine
