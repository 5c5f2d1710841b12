/// Replacing every element equal to a value.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "arrays/engine/kernels/plain_loops.hpp"
#include "arrays/engine/kernels/stores.hpp"

#include <span>
#include <type_traits>

namespace zeb::engine
{

/// Replaces every element equal to `value` and returns their number. Other elements are not written.
template <class Element, class Equality = Own_Equality>
std::uint32_t replace_equal(std::span<Element> elements, const std::type_identity_t<Element> &value,
                            const std::type_identity_t<Element> &replacement, Equality equal = {}) noexcept
{
    const std::size_t count = elements.size();
    if constexpr (has_equality_kernel<Element, Equality>) {
        using Lane = Equality_Lane<Element>;
        return static_cast<std::uint32_t>(kernels::stores<Lane>().replace_equal(
            lanes_of<Lane>(elements.data()), count, lane_of<Lane>(value), lane_of<Lane>(replacement)));
    } else {
        return static_cast<std::uint32_t>(
            plain::replace_equal(elements.data(), count, value, replacement, equal));
    }
}

} // namespace zeb::engine
