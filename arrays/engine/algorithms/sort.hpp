/// Sorting in ascending order. Every method gives the result of one Shell sort, element for element. A count
/// below 2 or above INT32_MAX changes nothing.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "arrays/engine/kernels/shell_sort.hpp"
#include "arrays/engine/kernels/sort.hpp"
#include "arrays/engine/overlap.hpp"

#include <span>
#include <utility>

namespace zeb::engine
{

namespace sort_detail
{

constexpr bool sorts(std::size_t count) noexcept { return count >= 2 && count <= INT32_MAX; }

template <class Element, class Precedes>
void sort_by_swaps(std::span<Element> elements, Precedes precedes) noexcept
{
    Element *const data = elements.data();
    if (sorts(elements.size()))
        shell::sort(
            elements.size(),
            [=](std::size_t later, std::size_t earlier) { return precedes(data + later, data + earlier); },
            [=](std::size_t later, std::size_t earlier) { std::swap(data[later], data[earlier]); });
}

template <class Element, class Precedes>
void sort_by_swaps(std::span<Element> elements, std::uint32_t *indexes, Precedes precedes) noexcept
{
    Element *const data = elements.data();
    if (sorts(elements.size()))
        shell::sort(
            elements.size(),
            [=](std::size_t later, std::size_t earlier) { return precedes(data + later, data + earlier); },
            [=](std::size_t later, std::size_t earlier) {
                std::swap(data[later], data[earlier]);
                std::swap(indexes[later], indexes[earlier]);
            });
}

/// A strict order, called with pointers.
template <class Less>
struct By_Order {
    Less less;
    template <class Element>
    bool operator()(const Element *later, const Element *earlier) const noexcept
    {
        return less(*later, *earlier);
    }
};

/// A comparison function, called with pointers: only ZEB_COMPARED_LESS exchanges.
template <class Compare>
struct By_Comparison {
    Compare compare;
    template <class Element>
    bool operator()(const Element *later, const Element *earlier) const noexcept
    {
        return compare(later, earlier) == ZEB_COMPARED_LESS;
    }
};

/// Whether the indexes overlap the elements, so that no exchange could be made in both.
template <class Element>
bool overlap_elements(std::span<std::uint32_t> indexes, std::span<Element> elements) noexcept
{
    return overlaps<std::uint32_t>(indexes, elements.data(), elements.size_bytes());
}

} // namespace sort_detail

/// Sorts by a strict order, by default the element's own.
template <class Element, class Less = Own_Less>
void sort(std::span<Element> elements, Less less = {}) noexcept
{
    if constexpr (has_order_kernel<Element, Less>) {
        if (sort_detail::sorts(elements.size()))
            kernels::sort(lanes_of<Order_Lane<Element>>(elements.data()), elements.size());
    } else {
        sort_detail::sort_by_swaps(elements, sort_detail::By_Order<Less>{less});
    }
}

/// Sorts by a comparison that takes a pointer to the later and one to the earlier element, both into the
/// span, and exchanges them if it returns ZEB_COMPARED_LESS. The pairs and their order are those of the Shell
/// sort.
template <class Element, class Compare>
void sort_by(std::span<Element> elements, Compare compare) noexcept
{
    sort_detail::sort_by_swaps(elements, sort_detail::By_Comparison<Compare>{compare});
}

/// Sorts, and makes every exchange in `indexes` as well: if they were 0, 1, 2, ..., index i becomes the
/// former position of element i. Returns false, with nothing changed, if there are fewer indexes than
/// elements. Indexes that overlap the elements are sorted as elements and not exchanged separately.
template <class Element, class Less = Own_Less>
bool sort_with_permutation(std::span<Element> elements, std::span<std::uint32_t> indexes,
                           Less less = {}) noexcept
{
    if (indexes.size() < elements.size())
        return false;
    if (sort_detail::overlap_elements(indexes, elements)) {
        sort(elements, less);
    } else if constexpr (has_order_kernel<Element, Less>) {
        if (sort_detail::sorts(elements.size()))
            kernels::sort(lanes_of<Order_Lane<Element>>(elements.data()), indexes.data(), elements.size());
    } else {
        sort_detail::sort_by_swaps(elements, indexes.data(), sort_detail::By_Order<Less>{less});
    }
    return true;
}

/// The same by a caller's comparison, called as in `sort_by`.
template <class Element, class Compare>
bool sort_with_permutation_by(std::span<Element> elements, std::span<std::uint32_t> indexes,
                              Compare compare) noexcept
{
    if (indexes.size() < elements.size())
        return false;
    if (sort_detail::overlap_elements(indexes, elements))
        sort_by(elements, compare);
    else
        sort_detail::sort_by_swaps(elements, indexes.data(), sort_detail::By_Comparison<Compare>{compare});
    return true;
}

} // namespace zeb::engine
