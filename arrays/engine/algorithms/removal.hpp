/// Removing plain elements. The result is the new count; elements at and above it keep their values.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "arrays/engine/kernels/plain_loops.hpp"
#include "arrays/engine/kernels/removal.hpp"

#include <span>

namespace zeb::engine
{

/// Removes every element equal to the value; the others keep their order.
template <class Element, class Equality = Own_Equality>
std::uint32_t remove_equal(std::span<Element> elements, const std::type_identity_t<Element> &value,
                           Equality equal = {}) noexcept
{
    const std::size_t count = elements.size();
    if constexpr (has_equality_kernel<Element, Equality>) {
        using Lane = Equality_Lane<Element>;
        return static_cast<std::uint32_t>(kernels::removal<Lane>().remove_equal(
            lanes_of<Lane>(elements.data()), count, lane_of<Lane>(value)));
    } else {
        return static_cast<std::uint32_t>(plain::remove_equal(elements.data(), count, value, equal));
    }
}

} // namespace zeb::engine
