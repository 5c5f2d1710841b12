/// Smallest and largest element. The search starts from element 0 and moves on a strict difference only: of
/// equal elements (-0.0 and 0.0) the first is returned, and NaN only if it is at index 0.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "arrays/engine/kernels/extrema.hpp"
#include "arrays/engine/kernels/plain_loops.hpp"

#include <span>

namespace zeb::engine
{

template <class Element>
struct Extrema {
    Element minimum;
    Element maximum;
};

/// Returns the smallest element; zero (null for pointers) for an empty span.
template <class Element, class Less = Own_Less>
Element minimum(std::span<const Element> elements, Less less = {}) noexcept
{
    if (elements.empty())
        return Element{};
    if constexpr (has_order_kernel<Element, Less>) {
        using Lane = Order_Lane<Element>;
        return lane_of<Element>(
            kernels::extrema<Lane>().minimum(lanes_of<Lane>(elements.data()), elements.size()));
    } else {
        return plain::minimum(elements.data(), elements.size(), less);
    }
}

/// Returns the largest element; zero (null for pointers) for an empty span.
template <class Element, class Less = Own_Less>
Element maximum(std::span<const Element> elements, Less less = {}) noexcept
{
    if (elements.empty())
        return Element{};
    if constexpr (has_order_kernel<Element, Less>) {
        using Lane = Order_Lane<Element>;
        return lane_of<Element>(
            kernels::extrema<Lane>().maximum(lanes_of<Lane>(elements.data()), elements.size()));
    } else {
        return plain::maximum(elements.data(), elements.size(), less);
    }
}

/// Returns both after one pass; zeros for an empty span.
template <class Element, class Less = Own_Less>
Extrema<Element> minimum_and_maximum(std::span<const Element> elements, Less less = {}) noexcept
{
    if constexpr (has_order_kernel<Element, Less>) {
        if (elements.empty())
            return {};
        using Lane = Order_Lane<Element>;
        const kernels::Lane_Extrema<Lane> both =
            kernels::extrema<Lane>().minimum_and_maximum(lanes_of<Lane>(elements.data()), elements.size());
        return {lane_of<Element>(both.low), lane_of<Element>(both.high)};
    } else {
        return {minimum(elements, less), maximum(elements, less)};
    }
}

} // namespace zeb::engine
