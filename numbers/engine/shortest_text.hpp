/// The shortest text that reads back as the same number.
///
/// Of all decimals that round to the number, the one with the fewest digits and, of those, the one nearest to
/// it; of two at the same distance, the one with the even last digit. From 0.0001 to below 10^16 in fixed
/// notation, else in exponent form with a sign and at least two digits: "0.1", "1234567", "1e+22", "1.5e-07".
/// Zero is "0" or "-0"; infinity "Inf" or "-Inf", NaN "NaN". The decimal point is '.' in every locale.
#pragma once

namespace zeb::engine
{

/// The most characters that the writers below may write to. No text is longer than 24 characters.
inline constexpr int longest_shortest_text = 48;

/// Write no terminating null; return the position after the last character.
char *put_shortest(char *out, double x) noexcept;
char *put_shortest(char *out, float x) noexcept;

} // namespace zeb::engine
