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

/// Rounds exactly with the C library, for the cases near a tie that the multiplication below leaves open.
template <int digit_count>
Rounded_Decimal decimal_by_c_library(double magnitude) noexcept
{
    char text[64]; // a locale's decimal point has a few bytes at most
    std::snprintf(text, sizeof text, "%.*e", digit_count - 1, magnitude);
    Rounded_Decimal decimal{0, 0};
    const char *c = text;
    for (; *c != 'e' && *c != '\0'; ++c)
        if (is_ascii_digit(*c)) // skips the locale's decimal point
            decimal.digits = decimal.digits * 10 + static_cast<std::uint64_t>(*c - '0');
    decimal.exponent = *c == 'e' ? std::atoi(c + 1) : 0;
    return decimal;
}

/// magnitude = mantissa * 2^exponent, with the highest bit of the mantissa set.
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

/// Returns how a number with an odd or even last digit rounds if the rest stands at `position` on a scale
/// whose tie is `half`. An exact position has further bits below it if `rest`; any other is too small by at
/// most one.
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
    constexpr std::uint64_t upper_bound = integer_powers_of_ten[digit_count];
    const Binary_Number number = binary_number(magnitude);
    // The exponent of ten, or one less: the magnitude lies in [1, 20) * 10^exponent.
    int exponent = floor_log10_of_power_of_two(number.exponent + 63);
    const int power = digit_count - 1 - exponent;
    const Wide_Unsigned scale = power_of_ten_bits(power);
    const bool exact = power >= 0 && power <= largest_exact_table_power;

    // magnitude * 10^power as 192 bits in high, middle and low; an inexact product is too small by less than
    // one unit of the middle word.
    const Wide_Unsigned upper = wide_product(number.mantissa, scale.high);
    const Wide_Unsigned lower = wide_product(number.mantissa, scale.low);
    const std::uint64_t middle = upper.low + lower.high;
    const std::uint64_t high = upper.high + (middle < upper.low);

    // The integer part, below 2 * 10^digit_count, is at the top of the high word; 64 bits of fraction follow.
    // The shift is 12 to 18 for 15 digits, 42 to 47 for 6.
    const int shift = -(number.exponent + floor_log2_of_power_of_ten(power) + 1);
    std::uint64_t digits = high >> shift;
    std::uint64_t position = high << (64 - shift) | middle >> shift;
    std::uint64_t half = std::uint64_t{1} << 63;
    bool rest = (middle << (64 - shift) | lower.low) != 0;
    if (digits >= upper_bound) { // one digit too many: it becomes the first of the fraction
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
