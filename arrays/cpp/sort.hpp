/// Sorting in ascending order, in place.
#pragma once

#include <Korvane_ZEB_engine/elements.hpp>

namespace zeb
{

namespace detail
{
template <Element Type>
void sort(std::span<Type> values) noexcept;
template <Element Type>
bool sort(std::span<Type> values, std::span<std::uint32_t> companions) noexcept;
template <Element Type>
void sort_by_total_order(std::span<Type> values) noexcept;
template <Element Type>
bool sort_by_total_order(std::span<Type> values, std::span<std::uint32_t> companions) noexcept;
} // namespace detail

/// Sorts by `<`. Numbers that are equal (-0.0 and 0.0) may change places; where there is a NaN, no order is
/// promised: see sort_by_total_order. No memory is needed.
template <Writable_Elements Range>
void sort(Range &&values) noexcept
{
    detail::sort(detail::elements_of(values));
}

/// Sorts by `<` and moves `companions` alike: where they were 0, 1, 2, ..., each becomes the index that its
/// element had. Returns false, with nothing changed, if there are fewer companions than elements. Companions
/// that overlap the elements are sorted as elements.
template <Writable_Elements Range>
bool sort(Range &&values, std::span<std::uint32_t> companions) noexcept
{
    return detail::sort(detail::elements_of(values), companions);
}

/// Sorts with -0.0 before 0.0 and NaN of either sign last; NaN keep their order among themselves.
template <Writable_Elements Range>
void sort_by_total_order(Range &&values) noexcept
{
    detail::sort_by_total_order(detail::elements_of(values));
}

/// The same with companions, which keep their order where elements are equal. Returns false, with nothing
/// changed, if there are too few companions or allocation fails.
template <Writable_Elements Range>
bool sort_by_total_order(Range &&values, std::span<std::uint32_t> companions) noexcept
{
    return detail::sort_by_total_order(detail::elements_of(values), companions);
}

} // namespace zeb
