/// The special values among floating-point lanes, one lane at a time.
#pragma once

#include "arrays/engine/kernels/sort_scan.hpp"

#include <cmath>
#include <type_traits>

namespace zeb::engine::plain
{

struct Float_Scan {
    bool nan = false;
    bool positive_zero = false;
    bool negative_zero = false;
    bool infinite = false;

    template <class Lane>
    void add(const Lane *lanes, std::size_t count) noexcept
    {
        for (std::size_t index = 0; index < count; ++index) {
            const Lane lane = lanes[index];
            nan |= lane != lane;
            positive_zero |= lane == 0 && !std::signbit(lane);
            negative_zero |= lane == 0 && std::signbit(lane);
            infinite |= std::isinf(lane);
        }
    }

    bool is_ambiguous() const noexcept { return nan || (positive_zero && negative_zero); }
    kernels::Float_Order order() const noexcept
    {
        if (is_ambiguous())
            return kernels::Float_Order::Ambiguous;
        return infinite ? kernels::Float_Order::Infinite : kernels::Float_Order::Finite;
    }
};

template <class Lane>
kernels::Float_Order float_order(const Lane *lanes, std::size_t count) noexcept
{
    Float_Scan seen;
    if constexpr (std::is_floating_point_v<Lane>)
        seen.add(lanes, count);
    return seen.order();
}

} // namespace zeb::engine::plain
