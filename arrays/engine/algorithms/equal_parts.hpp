/// A range of numbers in parts of equal width side by side.
#pragma once

#include "arrays/engine/kernels/bins.hpp"

#include <cmath>
#include <cstdint>

namespace zeb::engine
{

class Equal_Parts
{
public:
    /// There is at least one part.
    Equal_Parts(double start, double end, std::uint32_t parts) noexcept
        : first(start), last(end), last_part(parts - 1), parts_per_unit(parts / (end - start))
    {
    }

    /// False for bounds in the wrong order or not finite, and where their distance or its inverse is not.
    bool are_usable() const noexcept
    {
        return first < last && std::isfinite(last - first) && std::isfinite(parts_per_unit);
    }

    kernels::Bins bins() const noexcept { return {first, last, parts_per_unit, last_part}; }

    bool begin_after(double number) const noexcept { return number < first; }
    bool end_before(double number) const noexcept { return number > last; }

    /// The part of a number, rounding cut at the last; of one that is outside the nearest, of NaN the first.
    std::uint32_t part_of(double number) const noexcept
    {
        const double place = (number - first) * parts_per_unit;
        const double cut = place < last_part ? place : last_part;
        return static_cast<std::uint32_t>(cut > 0 ? cut : 0); // positive, so the conversion is a floor
    }

private:
    double first, last;
    double last_part;
    double parts_per_unit;
};

} // namespace zeb::engine
