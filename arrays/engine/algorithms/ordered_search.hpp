/// Binary searches in ascending elements. `compare` takes a pointer to the key and a pointer to an element,
/// and returns 1, 2 or 3 for a key equal to, less than or greater than the element; any other result is
/// unknown. Which elements are compared, and in which order, is fixed.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"

#include <cstdint>
#include <span>
#include <type_traits>

namespace zeb::engine
{

/// The end of a binary search.
struct Ordered_Probe {
    std::uint32_t index;   ///< the element compared last
    ZEB_Comparison answer; ///< its comparison; no_comparison if there was no element
};

inline constexpr ZEB_Comparison no_comparison = UINT32_MAX;

/// The result of an ordered search.
struct Ordered_Find {
    std::uint32_t index; ///< of the element, or ZEB_NOT_FOUND
    bool warns;          // an unknown comparison has to be reported
};

/// The result of the search half of an ordered insertion.
enum class Ordered_Insert_Outcome : std::uint8_t {
    Found,   ///< an equal element is at the index, or an unknown comparison ended the search there
    Inserts, ///< the element belongs at the index, 0 to count
};

struct Ordered_Insert {
    std::uint32_t index;
    Ordered_Insert_Outcome outcome;
    bool warns; ///< an unknown comparison has to be reported; the index is then the operation's result
};

namespace ordered_detail
{

/// Above this many elements the next probes are likely outside the cache and worth prefetching.
inline constexpr std::uint32_t prefetch_count = 65536;

/// Up to this many bytes the elements are assumed to fit in the cache.
inline constexpr std::size_t cached_bytes = std::size_t{1} << 20;

/// Returns the index compared between two known bounds.
constexpr std::uint32_t middle(std::uint32_t low, std::uint32_t high) noexcept
{
    return low + (high - low + 1) / 2;
}

/// Prefetches both elements that may be compared after this one.
template <class Element>
void prefetch_next(const Element *elements, std::uint32_t low, std::uint32_t high,
                   std::uint32_t probe) noexcept
{
    if (probe > low)
        __builtin_prefetch(elements + middle(low, probe - 1));
    if (probe < high)
        __builtin_prefetch(elements + middle(probe + 1, high));
}

/// Always inlined: the caller's test of `answer` then folds into the loop exits.
template <bool Prefetches, class Element, class Compare>
[[gnu::always_inline]] inline Ordered_Probe probe(const Element *elements, std::uint32_t count,
                                                  const Element &key, Compare &compare) noexcept
{
    std::uint32_t low = 0;
    std::uint32_t high = count - 1;
    for (;;) {
        const std::uint32_t index = middle(low, high);
        if constexpr (Prefetches)
            prefetch_next(elements, low, high, index);
        const ZEB_Comparison answer = compare(&key, elements + index);
        if (answer == ZEB_COMPARED_GREATER) {
            if (index == high)
                return {index, answer};
            low = index + 1;
        } else if (answer == ZEB_COMPARED_LESS) {
            if (index == low)
                return {index, answer};
            high = index - 1;
        } else {
            return {index, answer};
        }
    }
}

/// The same by the element's own order, for elements in the cache: the next half is chosen without a branch,
/// which would be mispredicted half the time. `length` elements from `low` remain.
template <class Element>
Ordered_Probe probe_without_branches(const Element *elements, std::uint32_t count,
                                     const Element &key) noexcept
{
    const Own_Less less;
    std::uint32_t low = 0;
    std::uint32_t length = count;
    while (length > 1) {
        const std::uint32_t half = length / 2;
        const std::uint32_t rest = length - half - 1;
        const std::uint32_t index = low + half;
        const std::uint32_t above = less(elements[index], key);
        const std::uint32_t below = less(key, elements[index]);
        if ((above | below) == 0) [[unlikely]]
            return {index, ZEB_COMPARED_EQUAL};
        // Arithmetic, because a conditional expression may become a branch again.
        low += (half + 1) & (0u - above);
        length = half - ((half - rest) & (0u - above));
    }
    // With nothing left, the last comparison led past the upper bound.
    if (length == 0)
        return {low - 1, ZEB_COMPARED_GREATER};
    return {low, Three_Way<>()(&key, elements + low)};
}

/// Whether a comparison returned none of the three results.
constexpr bool is_unknown(ZEB_Comparison answer) noexcept
{
    return answer < ZEB_COMPARED_EQUAL || answer > ZEB_COMPARED_GREATER;
}

} // namespace ordered_detail

/// The search shared by all ordered operations. It ends at the first comparison that is neither less nor
/// greater, or where the comparison leads past a bound.
template <class Element, class Compare>
Ordered_Probe ordered_probe(std::span<const Element> elements, const std::type_identity_t<Element> &key,
                            Compare compare) noexcept
{
    if (elements.empty())
        return {0, no_comparison};
    const std::uint32_t count = static_cast<std::uint32_t>(elements.size());
    if constexpr (has_order_kernel<Element, Own_Less> && std::is_same_v<Compare, Three_Way<>>)
        if (elements.size_bytes() <= ordered_detail::cached_bytes)
            return ordered_detail::probe_without_branches(elements.data(), count, key);
    if (count > ordered_detail::prefetch_count)
        return ordered_detail::probe<true>(elements.data(), count, key, compare);
    return ordered_detail::probe<false>(elements.data(), count, key, compare);
}

/// Returns the index of an element equal to the key. An unknown comparison returns the index of the element
/// compared; in a span of one element it is a miss, and warns if the result was 0.
template <class Element, class Compare = Three_Way<>>
Ordered_Find ordered_find(std::span<const Element> elements, const std::type_identity_t<Element> &key,
                          Compare compare = {}) noexcept
{
    if (elements.empty())
        return {ZEB_NOT_FOUND, false};
    const Ordered_Probe end = ordered_probe<Element>(elements, key, compare);
    if (elements.size() == 1)
        return {end.answer == ZEB_COMPARED_EQUAL ? 0 : ZEB_NOT_FOUND, end.answer == 0};
    const bool missed = end.answer == ZEB_COMPARED_LESS || end.answer == ZEB_COMPARED_GREATER;
    // ZEB_NOT_FOUND has every bit set; a conditional expression may become a branch.
    return {end.index | (0u - std::uint32_t{missed}), false};
}

/// The same, but a miss returns the index of the bound at which the search stopped; ZEB_NOT_FOUND only for an
/// empty span. One element returns 0 and warns of any unknown comparison.
template <class Element, class Compare = Three_Way<>>
Ordered_Find ordered_find_nearest(std::span<const Element> elements, const std::type_identity_t<Element> &key,
                                  Compare compare = {}) noexcept
{
    if (elements.empty())
        return {ZEB_NOT_FOUND, false};
    const Ordered_Probe end = ordered_probe<Element>(elements, key, compare);
    return {end.index, elements.size() == 1 && ordered_detail::is_unknown(end.answer)};
}

/// Returns where an element belongs, or the index of an equal one. One element warns of any unknown
/// comparison.
template <class Element, class Compare = Three_Way<>>
Ordered_Insert ordered_insert_position(std::span<const Element> elements,
                                       const std::type_identity_t<Element> &element,
                                       Compare compare = {}) noexcept
{
    using enum Ordered_Insert_Outcome;
    if (elements.empty())
        return {0, Inserts, false};
    const Ordered_Probe end = ordered_probe<Element>(elements, element, compare);
    if (end.answer == ZEB_COMPARED_LESS)
        return {end.index, Inserts, false};
    if (end.answer == ZEB_COMPARED_GREATER)
        return {end.index + 1, Inserts, false};
    return {end.index, Found, elements.size() == 1 && ordered_detail::is_unknown(end.answer)};
}

} // namespace zeb::engine
