/// Taking elements out of a run of plain values. The answers are the new counts; elements at and beyond
/// a new count stay as they were.
#pragma once

#include "arrays/engine/kernel_lanes.hpp"
#include "arrays/engine/plain_loops.hpp"
#include "arrays/engine/removal_kernels.hpp"

#include <algorithm>
#include <span>

namespace zeb
{

/// Removes every element equal to the value and keeps the order of the rest.
template <class Element, class Equality = Own_Equality>
std::uint32_t remove_equal(std::span<Element> elements, const std::type_identity_t<Element> &value,
                           Equality equal = {}) noexcept
{
    const std::size_t count = elements.size();
    if constexpr (has_equality_kernel<Element, Equality>) {
        using Lane = Equality_Lane<Element>;
        return static_cast<std::uint32_t>(
            kernels::remove_equal(lanes_of<Lane>(elements.data()), count, lane_of<Lane>(value)));
    } else {
        return static_cast<std::uint32_t>(plain::remove_equal(elements.data(), count, value, equal));
    }
}

/// Removes the elements of the range, both ends included; start is not after end, and what lies beyond
/// the last element is left out.
template <class Element>
std::uint32_t remove_range(std::span<Element> elements, ZEB_Index_Range range) noexcept
{
    const std::size_t count = elements.size();
    if (range.start >= count)
        return static_cast<std::uint32_t>(count);
    const std::size_t after = std::min(count, std::size_t{range.end} + 1);
    std::copy(elements.begin() + after, elements.end(), elements.begin() + range.start);
    return static_cast<std::uint32_t>(count - (after - range.start));
}

/// Puts one element in place of the range, under the same conditions. A range that starts beyond the
/// last element changes nothing.
template <class Element>
std::uint32_t replace_range(std::span<Element> elements, ZEB_Index_Range range,
                            const std::type_identity_t<Element> &element) noexcept
{
    if (range.start >= elements.size())
        return static_cast<std::uint32_t>(elements.size());
    elements[range.start] = element;
    if (range.end == range.start)
        return static_cast<std::uint32_t>(elements.size());
    return remove_range<Element>(elements, {range.start + 1, range.end});
}

} // namespace zeb
