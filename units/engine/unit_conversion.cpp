#include "units/engine/unit_conversion.hpp"

#include "numbers/engine/wide_product.hpp"
#include "units/engine/unit_table.hpp"

#include <bit>
#include <cmath>
#include <numeric>
#include <utility>

namespace zeb::engine
{

namespace
{

/// Returns number * 5^exponent to the last place. The table's products stay below 2^128.
double times_power_of_five(uint64_t number, int exponent) noexcept
{
    Wide_Unsigned product{0, number};
    for (; exponent > 0; --exponent) {
        const Wide_Unsigned low = wide_product(product.low, 5);
        product = {product.high * 5 + low.high, low.low};
    }
    if (product.high == 0)
        return static_cast<double>(product.low);
    // What is left out of 64 bits moves the rounding by less than a thousandth of the last place.
    const int shift = 64 - std::countl_zero(product.high); // 1 to 64
    const uint64_t top = shift == 64 ? product.high : product.high << (64 - shift) | product.low >> shift;
    return std::ldexp(static_cast<double>(top), shift);
}

/// times / over * 10^tens * 2^twos, and in hundredths what is added before `over` divides.
struct Ratio {
    uint64_t times;
    uint64_t over;
    int fives;
    int twos;
    int64_t addend;
};

/// Divides a number by 5 as often as it and the exponent allow.
void cancel_fives(uint64_t &number, int &exponent) noexcept
{
    for (; exponent > 0 && number % 5 == 0; --exponent)
        number /= 5;
}

/// Takes hundredths to wholes.
void reduce_addend(Ratio &ratio) noexcept
{
    ratio.times *= 100;
    ratio.over *= 100;
    const uint64_t common = std::gcd(std::gcd(ratio.times, ratio.over),
                                     static_cast<uint64_t>(ratio.addend < 0 ? -ratio.addend : ratio.addend));
    ratio.times /= common;
    ratio.over /= common;
    ratio.addend /= static_cast<int64_t>(common);
}

/// Returns the ratio of two sizes in lowest terms. Common factors go first, so that the products have 64
/// bits.
Ratio ratio_of(const Unit_Scale &from, const Unit_Scale &to) noexcept
{
    const uint64_t times_common = std::gcd(from.times, to.times), over_common = std::gcd(from.over, to.over);
    Ratio ratio{from.times / times_common * (to.over / over_common),
                from.over / over_common * (to.times / times_common), from.tens - to.tens,
                from.tens - to.tens + from.twos - to.twos, 0};
    const uint64_t common = std::gcd(ratio.times, ratio.over);
    ratio.times /= common;
    ratio.over /= common;
    if (from.zero != 0 || to.zero != 0)
        ratio.addend =
            from.zero * static_cast<int64_t>(ratio.times) - to.zero * static_cast<int64_t>(ratio.over);
    if (ratio.addend != 0)
        reduce_addend(ratio);
    return ratio;
}

} // namespace

std::optional<Unit_Conversion> conversion_between(ZEB_Unit_Identity from, ZEB_Unit_Identity to) noexcept
{
    const Unit *const source = find_unit(from), *const target = find_unit(to);
    if (source == nullptr || target == nullptr || source->group != target->group ||
        source->scale.times == 0 || target->scale.times == 0)
        return std::nullopt;
    Ratio ratio = ratio_of(source->scale, target->scale);
    int opposite = -ratio.fives;
    cancel_fives(ratio.over, ratio.fives);
    cancel_fives(ratio.times, opposite);
    const double times = times_power_of_five(ratio.times, ratio.fives);
    const double over = times_power_of_five(ratio.over, opposite);
    int exponent;
    // A mantissa of 1/2 becomes 1, so that a unit's own values pass unchanged.
    const double mantissa = std::frexp(times, &exponent);
    const bool is_power = mantissa == 0.5;
    exponent -= is_power ? 1 : 0;
    return Unit_Conversion{is_power ? 1 : mantissa, std::ldexp(static_cast<double>(ratio.addend), -exponent),
                           std::ldexp(over, -exponent - ratio.twos)};
}

void convert(std::span<double> values, const Unit_Conversion &conversion) noexcept
{
    const auto [multiplier, addend, divisor] = conversion;
    if (addend == 0) { // adding it would lose the sign of -0.0
        for (double &value : values)
            value = value * multiplier / divisor;
    } else {
        for (double &value : values)
            value = (value * multiplier + addend) / divisor;
    }
}

bool convert(std::span<double> values, ZEB_Unit_Identity from, ZEB_Unit_Identity to) noexcept
{
    const std::optional<Unit_Conversion> conversion = conversion_between(from, to);
    if (conversion)
        convert(values, *conversion);
    return conversion.has_value();
}

} // namespace zeb::engine
