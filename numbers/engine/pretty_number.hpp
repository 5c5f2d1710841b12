/// Formats a number for display.
///
/// Fixed notation from 0.0001 to below 1000000, with at most 12 decimals below 1 and 10 above (4 for a
/// float); else the exponent form with 15 significant digits (6 for a float); no trailing zeros. 0 is "0",
/// infinity of either sign "Inf", NaN "NaN". The decimal point is '.' in every locale.
///
/// The text is terminated with a null, nothing is written after it, and a pointer to it is returned. A buffer
/// of 32 bytes suffices for every argument.
#pragma once

namespace zeb::engine
{

char *write_pretty_double(char *buffer, double x) noexcept;
char *write_pretty_float(char *buffer, float x) noexcept;

} // namespace zeb::engine
