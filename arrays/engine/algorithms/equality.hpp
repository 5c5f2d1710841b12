/// Bytewise equality and equality by value of runs of elements. Two empty runs are equal.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "arrays/engine/kernels/plain_loops.hpp"
#include "arrays/engine/kernels/search.hpp"

#include <cstring>
#include <span>

namespace zeb::engine
{

/// Whether both hold the same bytes: 0.0 and -0.0 differ, NaN equals itself.
template <class Element>
bool same_memory(std::span<const Element> left, std::span<const std::type_identity_t<Element>> right) noexcept
{
    return left.size() == right.size() &&
           (left.empty() || std::memcmp(left.data(), right.data(), left.size_bytes()) == 0);
}

/// Whether both hold equal elements in the same order. With the own equality 0.0 equals -0.0, and NaN equals
/// nothing.
template <class Element, class Equality = Own_Equality>
bool same_values(std::span<const Element> left, std::span<const std::type_identity_t<Element>> right,
                 Equality equal = {}) noexcept
{
    if (left.size() != right.size())
        return false;
    if constexpr (!has_equality_kernel<Element, Equality>)
        return plain::all_equal(left.data(), right.data(), left.size(), equal);
    else if constexpr (std::is_floating_point_v<Element>)
        return kernels::search<Element>().all_equal(left.data(), right.data(), left.size());
    else
        return same_memory<Element>(left, right);
}

} // namespace zeb::engine
