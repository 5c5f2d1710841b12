/// Swapping, moving and reversing elements.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "arrays/engine/kernels/stores.hpp"

#include <algorithm>
#include <span>
#include <utility>

namespace zeb::engine
{

/// Exchanges two elements. An index outside the span changes nothing.
template <class Element>
void swap_elements(std::span<Element> elements, std::uint32_t first, std::uint32_t second) noexcept
{
    if (first < elements.size() && second < elements.size())
        std::swap(elements[first], elements[second]);
}

/// Moves an element to index `to`; those between shift by one towards its old index. An index outside the
/// span changes nothing.
template <class Element>
void move_element(std::span<Element> elements, std::uint32_t from, std::uint32_t to) noexcept
{
    if (from >= elements.size() || to >= elements.size() || from == to)
        return;
    Element *const data = elements.data();
    const Element moved = data[from];
    if (from < to)
        std::copy(data + from + 1, data + to + 1, data + from);
    else
        std::copy_backward(data + to, data + from, data + from + 1);
    data[to] = moved;
}

/// Reverses the order.
template <class Element>
void reverse_elements(std::span<Element> elements) noexcept
{
    if (elements.size() < 2)
        return;
    if constexpr (has_lane<Element>)
        kernels::stores<Bits_Lane<Element>>().reverse(lanes_of<Bits_Lane<Element>>(elements.data()),
                                                      elements.size());
    else
        std::reverse(elements.begin(), elements.end());
}

/// Reverses the order, except that an even count keeps the order of its middle pair: a, b, c, d becomes
/// d, b, c, a.
template <class Element>
void reverse(std::span<Element> elements) noexcept
{
    const std::size_t count = elements.size();
    reverse_elements(elements);
    if (count >= 2 && count % 2 == 0)
        std::swap(elements[count / 2 - 1], elements[count / 2]);
}

} // namespace zeb::engine
