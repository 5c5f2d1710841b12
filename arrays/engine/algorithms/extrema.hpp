/// Smallest and largest element. The search starts from element 0 and moves on a strict difference only: of
/// equal elements (-0.0 and 0.0) the first is returned, and NaN only if it is at index 0.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "arrays/engine/kernels/extrema.hpp"

#include <span>

namespace zeb::engine
{

template <class Element>
struct Extrema {
    Element minimum;
    Element maximum;
};

namespace extrema_detail
{

/// Returns the first element that no later one precedes. `precedes` takes a later element and the best so
/// far.
template <class Element, class Precedes>
Element foremost(std::span<const Element> elements, Precedes precedes) noexcept
{
    Element best = elements[0];
    for (const Element &element : elements)
        if (precedes(element, best))
            best = element;
    return best;
}

} // namespace extrema_detail

/// Returns the smallest element; zero (null for pointers) for an empty span.
template <class Element, class Less = Own_Less>
Element minimum(std::span<const Element> elements, Less less = {}) noexcept
{
    if (elements.empty())
        return Element{};
    if constexpr (has_order_kernel<Element, Less>) {
        using Lane = Order_Lane<Element>;
        return lane_of<Element>(kernels::minimum(lanes_of<Lane>(elements.data()), elements.size()));
    } else {
        return extrema_detail::foremost(elements, less);
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
        return lane_of<Element>(kernels::maximum(lanes_of<Lane>(elements.data()), elements.size()));
    } else {
        return extrema_detail::foremost(
            elements, [&less](const Element &later, const Element &best) { return less(best, later); });
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
        Lane low, high;
        kernels::minimum_and_maximum(lanes_of<Lane>(elements.data()), elements.size(), low, high);
        return {lane_of<Element>(low), lane_of<Element>(high)};
    } else {
        return {minimum(elements, less), maximum(elements, less)};
    }
}

} // namespace zeb::engine
