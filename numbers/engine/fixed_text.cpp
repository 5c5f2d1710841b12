#include "numbers/engine/fixed_text.hpp"

#include "numbers/engine/digits.hpp"
#include "numbers/engine/exponent_text.hpp"
#include "numbers/engine/powers_of_ten.hpp"
#include "numbers/engine/unsigned_text.hpp"

#include <algorithm>
#include <cmath>

namespace zeb::engine
{
namespace
{

constexpr std::uint32_t max_decimals = 13;

struct Fixed_Style {
    bool with_sign;
    bool with_leading_zero;
    bool with_zero_value;
};

constexpr Fixed_Style fixed_style{true, true, true};
constexpr Fixed_Style fraction_style{false, false, false};

/// Writes what has no fixed-point text; x is not 0.
template <int significant_digits>
char *put_without_fixed_form(char *out, double x) noexcept
{
    if (std::isinf(x) || std::isnan(x)) {
        std::memcpy(out, std::isnan(x) ? "NaN" : "Inf", 3);
        return out + 3;
    }
    return put_exponent_form<significant_digits>(out, x);
}

char *put_scaled(char *out, std::uint64_t scaled, std::uint32_t decimals, Fixed_Style style) noexcept
{
    const std::uint64_t unit = integer_powers_of_ten[decimals];
    const std::uint64_t whole = scaled / unit;
    if (whole != 0 || style.with_leading_zero)
        out = put_unsigned_64(out, whole);
    return put_decimals(out, scaled % unit, decimals);
}

template <int significant_digits>
char *write_fixed_in_style(char *buffer, std::uint32_t decimals, double x, Fixed_Style style) noexcept
{
    decimals = std::min(decimals, max_decimals);
    char *out = buffer;
    const double rounded = std::fabs(x) * static_cast<double>(integer_powers_of_ten[decimals]) + 0.5;
    if (!(rounded < 0x1p63)) {
        out = put_without_fixed_form<significant_digits>(out, style.with_sign ? x : std::fabs(x));
    } else {
        const std::uint64_t scaled = static_cast<std::uint64_t>(rounded);
        if (scaled != 0 || style.with_zero_value) {
            if (x < 0 && scaled != 0 && style.with_sign)
                *out++ = '-';
            out = put_scaled(out, scaled, decimals, style);
        }
    }
    *out = '\0';
    return out;
}

} // namespace

char *write_fixed(char *buffer, std::uint32_t decimals, double x) noexcept
{
    return write_fixed_in_style<15>(buffer, decimals, x, fixed_style);
}

char *write_fraction(char *buffer, std::uint32_t decimals, double x) noexcept
{
    return write_fixed_in_style<15>(buffer, decimals, x, fraction_style);
}

char *write_fixed_float(char *buffer, std::uint32_t decimals, float x) noexcept
{
    return write_fixed_in_style<6>(buffer, decimals, static_cast<double>(x), fixed_style);
}

char *write_fixed_in_pretty_range(char *buffer, double x) noexcept
{
    // Without branches on the magnitude or the sign: in mixed data they would be mispredicted too often.
    static constexpr struct {
        double scale;
        std::uint64_t unit;
        std::uint64_t to_sixteen_digits;
    } rows[] = {{1e10, 10000000000, 1000000}, {1e12, 1000000000000, 10000}};
    const double magnitude = std::fabs(x);
    const bool below_one = magnitude < 1.0;
    const auto &row = rows[below_one];
    const std::uint64_t scaled = static_cast<std::uint64_t>(magnitude * row.scale + 0.5); // at most 10^16
    const std::uint32_t tens_of_billions = static_cast<std::uint32_t>(scaled / 10000000000);
    const std::uint32_t whole = below_one ? tens_of_billions >= 100 : tens_of_billions; // at most 10^6
    const Sixteen_Digits decimals = sixteen_digits((scaled - whole * row.unit) * row.to_sixteen_digits);
    const std::uint64_t whole_digits = eight_digits(whole);
    const std::uint32_t skipped = leading_zero_digits(whole_digits | std::uint64_t{1} << 56);
    const std::uint64_t whole_text = (whole_digits | ascii_zeros) >> 8 * skipped;

    char *out = buffer;
    *out = '-';
    out += x < 0;
    if (decimals.kept >= 8) {
        store_low_bytes<std::uint64_t>(out, whole_text); // the point and the decimals overwrite the excess
        out += 8 - skipped;
        *out++ = '.';
        out = store_eight_or_more(out, decimals);
    } else {
        out = store_bytes(out, whole_text, 8 - skipped);
        if (decimals.kept != 0) {
            *out++ = '.';
            out = store_bytes(out, decimals.first | ascii_zeros, decimals.kept);
        }
    }
    *out = '\0';
    return out;
}

char *put_decimals(char *out, std::uint64_t fraction, std::uint32_t decimals) noexcept
{
    if (fraction == 0)
        return out;
    *out++ = '.';
    return store_kept(out, sixteen_digits(fraction * integer_powers_of_ten[16 - decimals]));
}

} // namespace zeb::engine
