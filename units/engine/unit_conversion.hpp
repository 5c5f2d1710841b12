/// Values of one unit in another.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <optional>
#include <span>

namespace zeb::engine
{

/// A value v of one unit is (v * multiplier + addend) / divisor of another.
///
/// Multiplier and divisor are whole numbers without a common factor, over the same power of 2, so that only
/// the product and the quotient are rounded: once in all where either number is a power of 2, or the product
/// has 53 bits at most, else twice, and the error is below 1.5 units in the last place. A factor that itself
/// needs more than 53 bits is rounded too: below 2.5 units. That holds from magnitude 2^-1021 of value and
/// result on. The multiplier is at most 1, so that nothing overflows but a result.
struct Unit_Conversion {
    double multiplier;
    double addend; // 0, but between temperatures
    double divisor;
};

/// Returns the conversion between two units; none unless both are units of one dimension that measure.
std::optional<Unit_Conversion> conversion_between(ZEB_Unit_Identity from, ZEB_Unit_Identity to) noexcept;

/// Converts values in place, NaN and infinities as they are.
void convert(std::span<double> values, const Unit_Conversion &conversion) noexcept;

/// The same between two units. Returns false, with nothing changed, where there is no conversion.
bool convert(std::span<double> values, ZEB_Unit_Identity from, ZEB_Unit_Identity to) noexcept;

} // namespace zeb::engine
