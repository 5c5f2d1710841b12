#include "numbers/engine/general_text.hpp"

#include "numbers/engine/exponent_text.hpp"
#include "numbers/engine/fixed_text.hpp"
#include "numbers/engine/powers_of_ten.hpp"
#include "numbers/engine/rounded_decimal.hpp"
#include "numbers/engine/unsigned_text.hpp"

#include <cmath>
#include <cstdio>

namespace zeb::engine
{
namespace
{

constexpr int digit_count = 6;

/// For exponents from -4 to 5.
char *put_fixed_form(char *out, Rounded_Decimal decimal) noexcept
{
    const auto decimals = static_cast<std::uint32_t>(digit_count - 1 - decimal.exponent);
    const std::uint64_t unit = integer_powers_of_ten[decimals];
    out = put_unsigned(out, static_cast<std::uint32_t>(decimal.digits / unit));
    return put_decimals(out, decimal.digits % unit, decimals);
}

} // namespace

char *put_general(char *out, double x) noexcept
{
    if (!std::isfinite(x))
        return out + std::snprintf(out, longest_general_text, "%g", x);
    if (std::signbit(x))
        *out++ = '-';
    if (x == 0) {
        *out = '0';
        return out + 1;
    }
    const Rounded_Decimal decimal = rounded_decimal<digit_count>(std::fabs(x));
    const bool is_fixed = decimal.exponent >= -4 && decimal.exponent < digit_count;
    return is_fixed ? put_fixed_form(out, decimal) : put_exponent_form<digit_count>(out, decimal);
}

} // namespace zeb::engine
