/// Numbers rounded to a fixed count of significant decimal digits.
#pragma once

#include <cstdint>

namespace zeb::engine
{

/// digits * 10^(exponent - number of digits + 1), with a fixed number of significant digits, the first of
/// which is not 0.
struct Rounded_Decimal {
    std::uint64_t digits;
    int exponent;
};

/// Returns the magnitude, which must be finite and not 0, rounded to `digit_count` significant digits (15 or
/// 6): the exact value, ties to even, as the C library rounds.
template <int digit_count>
Rounded_Decimal rounded_decimal(double magnitude) noexcept;

extern template Rounded_Decimal rounded_decimal<15>(double) noexcept;
extern template Rounded_Decimal rounded_decimal<6>(double) noexcept;

} // namespace zeb::engine
