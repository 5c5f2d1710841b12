/// Linear searches. Every functor takes (element, value). The element's own equality uses vector
/// instructions.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "arrays/engine/kernels/plain_loops.hpp"
#include "arrays/engine/kernels/search.hpp"

#include <span>
#include <type_traits>

namespace zeb::engine
{

namespace search_detail
{
/// Converts a kernel's "count" to ZEB_NOT_FOUND.
inline std::uint32_t index_or_not_found(std::size_t index, std::size_t count) noexcept
{
    return index == count ? ZEB_NOT_FOUND : static_cast<std::uint32_t>(index);
}
} // namespace search_detail

/// Returns the index of the first element equal to the value, or ZEB_NOT_FOUND.
template <class Element, class Equality = Own_Equality>
std::uint32_t first_index_of(std::span<const Element> elements, const std::type_identity_t<Element> &value,
                             Equality equal = {}) noexcept
{
    const std::size_t count = elements.size();
    if constexpr (has_equality_kernel<Element, Equality>) {
        using Lane = Equality_Lane<Element>;
        const std::size_t index =
            kernels::search<Lane>().first_equal(lanes_of<Lane>(elements.data()), count, lane_of<Lane>(value));
        return search_detail::index_or_not_found(index, count);
    } else {
        return search_detail::index_or_not_found(plain::first_equal(elements.data(), count, value, equal),
                                                 count);
    }
}

/// Returns the index of the last element equal to the value, or ZEB_NOT_FOUND.
template <class Element, class Equality = Own_Equality>
std::uint32_t last_index_of(std::span<const Element> elements, const std::type_identity_t<Element> &value,
                            Equality equal = {}) noexcept
{
    const std::size_t count = elements.size();
    if constexpr (has_equality_kernel<Element, Equality>) {
        using Lane = Equality_Lane<Element>;
        const std::size_t index =
            kernels::search<Lane>().last_equal(lanes_of<Lane>(elements.data()), count, lane_of<Lane>(value));
        return search_detail::index_or_not_found(index, count);
    } else {
        return search_detail::index_or_not_found(plain::last_equal(elements.data(), count, value, equal),
                                                 count);
    }
}

/// Returns the start of the first occurrence of the pattern at or after index `from`, including one that ends
/// with the last element, or ZEB_NOT_FOUND. An empty pattern has no occurrences.
template <class Element, class Equality = Own_Equality>
std::uint32_t find_occurrence(std::span<const Element> elements,
                              std::span<const std::type_identity_t<Element>> pattern, std::uint32_t from = 0,
                              Equality equal = {}) noexcept
{
    if (pattern.empty() || from >= elements.size() || pattern.size() > elements.size() - from)
        return ZEB_NOT_FOUND;
    const Element *begin = elements.data() + from;
    const std::size_t count = elements.size() - from;
    std::size_t start;
    if constexpr (has_equality_kernel<Element, Equality>) {
        using Lane = Equality_Lane<Element>;
        start = kernels::search<Lane>().find_run(lanes_of<Lane>(begin), count, lanes_of<Lane>(pattern.data()),
                                                 pattern.size());
    } else {
        start = plain::find_run(begin, count, pattern.data(), pattern.size(), equal);
    }
    return start == count ? ZEB_NOT_FOUND : from + static_cast<std::uint32_t>(start);
}

/// Returns the start of the first occurrence of the pattern, or ZEB_NOT_FOUND. The last possible start, count
/// - length, is never tried: an occurrence that ends with the last element is not found.
template <class Element, class Equality = Own_Equality>
std::uint32_t first_index_of_subsequence(std::span<const Element> elements,
                                         std::span<const std::type_identity_t<Element>> pattern,
                                         Equality equal = {}) noexcept
{
    if (elements.empty())
        return ZEB_NOT_FOUND;
    return find_occurrence<Element>(elements.first(elements.size() - 1), pattern, 0, equal);
}

} // namespace zeb::engine
