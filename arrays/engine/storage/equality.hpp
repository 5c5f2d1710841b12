/// Equality of two vectors of one family, and a hash that agrees with it.
#pragma once

#include "arrays/engine/algorithms/equality.hpp"
#include "core/engine/hash.hpp"

#include <span>

namespace zeb::engine
{

/// Compares plain elements and references bytewise, and objects that the array made by their contents.
template <class Kind>
bool equals_as_vector(std::span<const typename Kind::Element> left,
                      std::span<const typename Kind::Element> right) noexcept
{
    if constexpr (Kind::holds_objects)
        return same_values(left, right, typename Kind::Equality());
    else
        return same_memory(left, right);
}

/// Returns a hash that is equal for equal vectors; for objects that the array made it is built from theirs.
template <class Kind>
std::uint64_t hash_as_vector(std::span<const typename Kind::Element> elements) noexcept
{
    if constexpr (Kind::holds_objects) {
        std::uint64_t hash = mix(0, elements.size());
        for (const typename Kind::Element element : elements)
            hash = mix(hash, Kind::hash(element));
        return hash;
    } else {
        return hash_bytes(elements.data(), elements.size_bytes());
    }
}

} // namespace zeb::engine
