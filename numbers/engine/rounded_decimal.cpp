#include "numbers/engine/rounded_decimal.hpp"

#include "core/engine/ascii.hpp"
#include "numbers/engine/powers_of_ten.hpp"

#include <bit>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace zeb::engine
{
namespace
{

constexpr std::uint64_t integer_power_of_ten(int power) noexcept
{
    std::uint64_t result = 1;
    for (int i = 0; i < power; ++i)
        result *= 10;
    return result;
}

// The exact answer for what the multiplication below leaves open: next to a tie outside the exact powers.
template <int digit_count>
Rounded_Decimal decimal_by_c_library(double magnitude) noexcept
{
    char text[64]; // the widest decimal point of a locale is a few bytes
    std::snprintf(text, sizeof text, "%.*e", digit_count - 1, magnitude);
    Rounded_Decimal decimal{0, 0};
    const char *c = text;
    for (; *c != 'e' && *c != '\0'; ++c)
        if (is_ascii_digit(*c)) // not the decimal point, whatever the locale makes of it
            decimal.digits = decimal.digits * 10 + static_cast<std::uint64_t>(*c - '0');
    decimal.exponent = *c == 'e' ? std::atoi(c + 1) : 0;
    return decimal;
}

// A magnitude = mantissa * 2^exponent, with the mantissa's highest bit set.
struct Binary_Number {
    std::uint64_t mantissa;
    int exponent;
};

inline Binary_Number binary_number(double magnitude) noexcept
{
    std::uint64_t bits;
    std::memcpy(&bits, &magnitude, sizeof bits);
    const int biased = static_cast<int>(bits >> 52);
    const std::uint64_t fraction = bits & 0xFFFFFFFFFFFFF;
    if (biased == 0) { // subnormal
        const int shift = std::countl_zero(fraction);
        return {fraction << shift, -1074 - shift};
    }
    return {(fraction | std::uint64_t{1} << 52) << 11, biased - 1075 - 11};
}

enum class Rounding { down, up, unknown };

// How a number whose last kept digit is `odd` or even rounds, when what is cut off stands at `position` on a
// scale where `half` is a tie. An exact position has `rest` bits below it; any other is at most one too
// small.
inline Rounding rounding(std::uint64_t position, std::uint64_t half, bool rest, bool exact, bool odd) noexcept
{
    if (position > half)
        return Rounding::up;
    if (exact)
        return position == half && (rest || odd) ? Rounding::up : Rounding::down;
    return position + 2 < half ? Rounding::down : Rounding::unknown;
}

} // namespace

template <int digit_count>
Rounded_Decimal rounded_decimal(double magnitude) noexcept
{
    constexpr std::uint64_t upper_bound = integer_power_of_ten(digit_count);
    const Binary_Number number = binary_number(magnitude);
    // The exponent of ten, or one too small: the magnitude lies in [1, 20) * 10^exponent.
    int exponent = floor_log10_of_power_of_two(number.exponent + 63);
    const int power = digit_count - 1 - exponent;
    const Wide_Unsigned scale = power_of_ten_bits(power);
    const bool exact = power >= 0 && power <= largest_exact_table_power;

    // magnitude * 10^power as the 192 bits high, middle, low; an inexact product is too small by less than
    // one unit of the middle word.
    const Wide_Unsigned upper = wide_product(number.mantissa, scale.high);
    const Wide_Unsigned lower = wide_product(number.mantissa, scale.low);
    const std::uint64_t middle = upper.low + lower.high;
    const std::uint64_t high = upper.high + (middle < upper.low);

    // The integer part, below 2 * 10^digit_count, stands at the top of the high word; 64 bits of fraction
    // follow it. The shift is 12 to 18 for 15 digits, 42 to 47 for 6.
    const int shift = -(number.exponent + floor_log2_of_power_of_ten(power) + 1);
    std::uint64_t digits = high >> shift;
    std::uint64_t position = high << (64 - shift) | middle >> shift;
    std::uint64_t half = std::uint64_t{1} << 63;
    bool rest = (middle << (64 - shift) | lower.low) != 0;
    if (digits >= upper_bound) { // one digit too many: it leads the fraction
        rest = rest || (position & 15) != 0;
        position = (digits % 10) << 60 | position >> 4;
        half = std::uint64_t{5} << 60;
        digits /= 10;
        ++exponent;
    }
    const Rounding direction = rounding(position, half, rest, exact, digits & 1);
    if (direction == Rounding::unknown)
        return decimal_by_c_library<digit_count>(magnitude);
    digits += direction == Rounding::up;
    if (digits == upper_bound)
        return {upper_bound / 10, exponent + 1};
    return {digits, exponent};
}

template Rounded_Decimal rounded_decimal<15>(double) noexcept;
template Rounded_Decimal rounded_decimal<6>(double) noexcept;

} // namespace zeb::engine
