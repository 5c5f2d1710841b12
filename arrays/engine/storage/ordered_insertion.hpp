/// The ordered operations of vectors and arrays: a search, and what is told and inserted after it.
#pragma once

#include "arrays/engine/algorithms/ordered_search.hpp"
#include "arrays/engine/storage/insertion.hpp"

namespace zeb::engine
{

/// Answers what was found, after the warning that it calls for.
template <class Report>
std::uint32_t told(Ordered_Find found, Report report) noexcept
{
    if (found.warns)
        report(notes::find_on_unknown_comparison);
    return found.index;
}

/// Answers the index of an element equal to `element`; without one, inserts it where it belongs if
/// `inserts` says so, and answers its index, else ZEB_NOT_FOUND. The link test comes at the insertion.
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
