/// Ordered search and insertion with the reports of vectors and arrays.
#pragma once

#include "arrays/engine/algorithms/ordered_search.hpp"
#include "arrays/engine/storage/insertion.hpp"

namespace zeb::engine
{

/// Reports the unknown-comparison warning if `found.warns`, and returns `found.index`.
template <class Report>
std::uint32_t report_and_index(Ordered_Find found, Report report) noexcept
{
    if (found.warns)
        report(notes::find_on_unknown_comparison);
    return found.index;
}

/// Returns the index of an element equal to `element`. Without one, inserts `element` in order if `inserts`
/// is set and returns its index, else returns ZEB_NOT_FOUND. Only the insertion tests for a link.
template <class Kind, class Compare, class Report>
std::uint32_t ordered_insert(Array_Storage<Kind> array, typename Kind::Element element, Compare compare,
                             bool inserts, Report report) noexcept
{
    using Element = typename Kind::Element;
    const Ordered_Insert place =
        ordered_insert_position(std::span<const Element>(array.elements()), element, compare);
    if (place.warns)
        report(notes::insert_on_unknown_comparison);
    if (place.outcome == Ordered_Insert_Outcome::Found)
        return place.index;
    if (!inserts)
        return ZEB_NOT_FOUND;
    const std::uint32_t count = array.count;
    insert_element(array, element, place.index, report);
    return array.count == count ? ZEB_NOT_FOUND : place.index;
}

} // namespace zeb::engine
