/// Storing one value into many elements.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "arrays/engine/kernels/stores.hpp"

#include <algorithm>
#include <span>

namespace zeb::engine
{

/// Stores the value into every element.
template <class Element>
void fill(std::span<Element> elements, const std::type_identity_t<Element> &value) noexcept
{
    if constexpr (has_lane<Element>) {
        // The platform's own fill of bytes is the fastest while they fit into the caches.
        if (sizeof(Element) == 1 && elements.size() <= kernels::streaming_bytes)
            return std::fill(elements.begin(), elements.end(), value);
        using Lane = Bits_Lane<Element>;
        kernels::stores<Lane>().fill(lanes_of<Lane>(elements.data()), elements.size(), lane_of<Lane>(value));
    } else {
        std::fill(elements.begin(), elements.end(), value);
    }
}

/// Stores the value into an inclusive range, which is cut at the last element; one that starts after its end
/// is empty.
template <class Element>
void fill_range(std::span<Element> elements, ZEB_Index_Range range,
                const std::type_identity_t<Element> &value) noexcept
{
    if (range.start > range.end || range.start >= elements.size())
        return;
    const std::size_t length = std::size_t{range.end} - range.start + 1;
    fill<Element>(elements.subspan(range.start, std::min(length, elements.size() - range.start)), value);
}

} // namespace zeb::engine
