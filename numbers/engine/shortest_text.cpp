#include "numbers/engine/shortest_text.hpp"

#include "numbers/engine/exponent_text.hpp"
#include "numbers/engine/powers_of_ten.hpp"
#include "numbers/engine/unsigned_text.hpp"

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

namespace zeb::engine
{
namespace
{

/// significand * 2^exponent. The number below is half as far away as the one above if `is_lowest`.
struct Binary_Number {
    std::uint64_t significand;
    int exponent;
    bool is_lowest;
};

/// digits * 10^exponent.
struct Decimal {
    std::uint64_t digits;
    int exponent;
};

/// Takes a number that is positive and finite apart. `Bits` is the unsigned integer of its size.
template <class Bits, class Number>
Binary_Number binary_number(Number x) noexcept
{
    constexpr int fraction_size = std::numeric_limits<Number>::digits - 1;
    constexpr int bias = std::numeric_limits<Number>::max_exponent - 1 + fraction_size;
    constexpr Bits hidden = Bits{1} << fraction_size;
    Bits bits;
    std::memcpy(&bits, &x, sizeof bits);
    const Bits fraction = bits & (hidden - 1);
    const int biased = static_cast<int>(bits >> fraction_size);
    if (biased == 0)
        return {fraction, 1 - bias, false};
    return {fraction | hidden, biased - bias, fraction == 0 && biased > 1};
}

/// Returns floor(log10(3/4 * 2^power)), exact for the exponents of doubles.
constexpr int floor_log10_of_three_quarters(int power) noexcept { return (power * 315653 - 131008) >> 20; }

/// Returns the leading 128 bits of 10^power, rounded up where they are not all of it.
inline Wide_Unsigned power_of_ten_from_above(int power) noexcept
{
    Wide_Unsigned bits = power_of_ten_bits(power);
    if (power < 0 || power > largest_exact_table_power)
        bits.high += ++bits.low == 0;
    return bits;
}

/// Returns value * scale / 2^128, truncated, with the lowest bit set if anything but the error of the scale
/// was cut off: comparisons with multiples of 2 are then those of the exact product.
inline std::uint64_t scaled_and_sticky(std::uint64_t value, Wide_Unsigned scale) noexcept
{
    const std::uint64_t carried = wide_product(value, scale.low).high;
    const Wide_Unsigned upper = wide_product(value, scale.high);
    const std::uint64_t rest = upper.low + carried;
    return (upper.high + (rest < carried)) | (rest > 1);
}

/// The number, and the limits up to which decimals round to it, in quarters of a unit of the last digit.
struct Scaled_Number {
    std::uint64_t low, value, high;
    bool without_limits; ///< the limits round to the neighbours

    bool reaches_down_to(std::uint64_t quarters) const noexcept { return low + without_limits <= quarters; }
    bool reaches_up_to(std::uint64_t quarters) const noexcept { return quarters + without_limits <= high; }
};

/// Scales by a power of ten for which the limits are between 1 and 10 units apart.
inline Scaled_Number scaled(Binary_Number number, int exponent) noexcept
{
    const Wide_Unsigned scale = power_of_ten_from_above(-exponent);
    const int shift = number.exponent + floor_log2_of_power_of_ten(-exponent) + 1; // 1 to 4
    const std::uint64_t quarters = 4 * number.significand;
    const auto scale_up = [&](std::uint64_t value) { return scaled_and_sticky(value << shift, scale); };
    return {scale_up(quarters - (number.is_lowest ? 1 : 2)), scale_up(quarters), scale_up(quarters + 2),
            (number.significand & 1) != 0};
}

/// The only limits that a scaled number is sure to reach: a multiple of `unit` quarters below and above.
/// Returns 0 for the lower, 1 for the upper one, -1 for both or none.
inline int only_reached(const Scaled_Number &number, std::uint64_t below, std::uint64_t unit) noexcept
{
    const bool is_low_in = number.reaches_down_to(below);
    return is_low_in == number.reaches_up_to(below + unit) ? -1 : !is_low_in;
}

/// Returns the shortest decimal that rounds to the number, perhaps with zeros at the end.
inline Decimal shortest_decimal(Binary_Number number) noexcept
{
    const int exponent = number.is_lowest ? floor_log10_of_three_quarters(number.exponent)
                                          : floor_log10_of_power_of_two(number.exponent);
    const Scaled_Number in_quarters = scaled(number, exponent);
    const std::uint64_t digits = in_quarters.value / 4;
    const std::uint64_t tens = digits / 10;
    const int ten = only_reached(in_quarters, 40 * tens, 40);
    if (ten >= 0 && digits >= 10)
        return {tens + static_cast<unsigned>(ten), exponent + 1};
    const int one = only_reached(in_quarters, 4 * digits, 4);
    if (one >= 0)
        return {digits + static_cast<unsigned>(one), exponent};
    const std::uint64_t middle = 4 * digits + 2;
    const bool rounds_up = in_quarters.value > middle || (in_quarters.value == middle && (digits & 1) != 0);
    return {digits + rounds_up, exponent};
}

/// Digits that are copied at a time, more than a number has.
constexpr int copied = 24;

/// Digits, their count, and the place of the decimal point: behind so many of them, or before so many zeros.
struct Digit_Text {
    char digits[2 * copied];
    int count;
    int point;
};

inline Digit_Text digit_text(Decimal decimal) noexcept
{
    Digit_Text text;
    std::memset(text.digits, '0', sizeof text.digits);
    text.count = static_cast<int>(put_unsigned_64(text.digits, decimal.digits) - text.digits);
    text.point = text.count + decimal.exponent;
    while (text.digits[text.count - 1] == '0')
        --text.count;
    return text;
}

inline char *put_exponent_text(char *out, const Digit_Text &text) noexcept
{
    std::memcpy(out + 1, text.digits, copied);
    out[0] = out[1];
    out[1] = '.';
    return put_exponent(out + (text.count == 1 ? 1 : text.count + 1), text.point - 1);
}

inline char *put_fixed_text(char *out, const Digit_Text &text) noexcept
{
    if (text.point <= 0) {
        std::memcpy(out, "0.000", 5);
        out += 2 - text.point;
        std::memcpy(out, text.digits, copied);
        return out + text.count;
    }
    std::memcpy(out, text.digits, copied); // zeros follow the digits
    if (text.point >= text.count)
        return out + text.point;
    out[text.point] = '.';
    std::memcpy(out + text.point + 1, text.digits + text.point, copied);
    return out + text.count + 1;
}

template <class Bits, class Number>
char *put_number(char *out, Number x) noexcept
{
    constexpr int first_point = -3, last_point = 16; // 0.0001 to below 10^16
    if (std::isnan(x)) {
        std::memcpy(out, "NaN", 3);
        return out + 3;
    }
    if (std::signbit(x))
        *out++ = '-';
    if (std::isinf(x)) {
        std::memcpy(out, "Inf", 3);
        return out + 3;
    }
    if (x == 0) {
        *out = '0';
        return out + 1;
    }
    const Digit_Text text = digit_text(shortest_decimal(binary_number<Bits>(std::fabs(x))));
    const bool is_fixed = text.point >= first_point && text.point <= last_point;
    return is_fixed ? put_fixed_text(out, text) : put_exponent_text(out, text);
}

} // namespace

char *put_shortest(char *out, double x) noexcept { return put_number<std::uint64_t>(out, x); }

char *put_shortest(char *out, float x) noexcept { return put_number<std::uint32_t>(out, x); }

} // namespace zeb::engine
