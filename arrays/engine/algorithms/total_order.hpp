/// Sorting by a total order, in which equal elements keep theirs.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "arrays/engine/kernels/total_order.hpp"
#include "arrays/engine/overlap.hpp"

#include <span>

namespace zeb::engine
{

/// Sorts by value, -0.0 before 0.0 and NaN last.
template <class Element>
void sort_by_total_order(std::span<Element> elements) noexcept
{
    kernels::sort_totally(lanes_of<Order_Lane<Element>>(elements.data()), elements.size());
}

/// The same with the indexes moved alike; with fewer indexes than elements nothing changes. Indexes that
/// overlap the elements are sorted as elements. Returns false, nothing changed, if allocation fails.
template <class Element>
bool sort_by_total_order(std::span<Element> elements, std::span<std::uint32_t> indexes) noexcept
{
    if (indexes.size() < elements.size())
        return true;
    if (overlaps<std::uint32_t>(indexes, elements.data(), elements.size_bytes()))
        return sort_by_total_order(elements), true;
    return kernels::sort_totally(lanes_of<Order_Lane<Element>>(elements.data()), indexes.data(),
                                 elements.size());
}

} // namespace zeb::engine
