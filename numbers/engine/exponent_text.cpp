#include "numbers/engine/exponent_text.hpp"

#include "numbers/engine/digits.hpp"

#include <cmath>

namespace zeb::engine
{
namespace
{

char *put_mantissa(char *out, std::uint64_t fifteen_digits) noexcept
{
    constexpr std::uint64_t first_unit = 100000000000000; // 10^14
    *out++ = static_cast<char>('0' + fifteen_digits / first_unit);
    const std::uint64_t decimals = fifteen_digits % first_unit;
    if (decimals == 0)
        return out;
    *out++ = '.';
    return store_kept(out, sixteen_digits(decimals * 100));
}

} // namespace

char *put_exponent(char *out, int exponent) noexcept
{
    *out++ = 'e';
    *out++ = exponent < 0 ? '-' : '+';
    unsigned magnitude = static_cast<unsigned>(exponent < 0 ? -exponent : exponent);
    if (magnitude >= 100) {
        *out++ = static_cast<char>('0' + magnitude / 100);
        magnitude %= 100;
    }
    *out++ = static_cast<char>('0' + magnitude / 10);
    *out++ = static_cast<char>('0' + magnitude % 10);
    return out;
}

template <int significant_digits>
char *put_exponent_form(char *out, Rounded_Decimal decimal) noexcept
{
    constexpr std::uint64_t to_15_digits = significant_digits == 15 ? 1 : 1000000000;
    out = put_mantissa(out, decimal.digits * to_15_digits);
    return put_exponent(out, decimal.exponent);
}

template <int significant_digits>
char *put_exponent_form(char *out, double x) noexcept
{
    if (x < 0)
        *out++ = '-';
    return put_exponent_form<significant_digits>(out, rounded_decimal<significant_digits>(std::fabs(x)));
}

template char *put_exponent_form<6>(char *, Rounded_Decimal) noexcept;

template char *put_exponent_form<15>(char *, double) noexcept;
template char *put_exponent_form<6>(char *, double) noexcept;

} // namespace zeb::engine
