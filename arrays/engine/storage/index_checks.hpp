/// Single elements by indexes that are checked in debug builds alone: with ZEB_CHECK_INDEXES defined as 1.
#pragma once

#include "arrays/engine/storage/checked_access.hpp"

#include <algorithm>

namespace zeb::engine
{

#if ZEB_CHECK_INDEXES
inline constexpr bool indexes_are_checked = true;
#else
inline constexpr bool indexes_are_checked = false;
#endif

/// Returns the number of slots that may be stored in: of an array that is no link also those of the room
/// above the count, which `set_count:` then makes elements.
template <class Kind>
std::uint32_t slots_of(Array_Storage<Kind> array) noexcept
{
    return array.is_link() ? array.count : std::max(array.count, array.capacity);
}

/// Returns an element.
template <class Kind, class Report>
typename Kind::Element element_at(Vector_Storage<Kind> vector, std::uint32_t index, Report report)
{
    if constexpr (indexes_are_checked)
        return checked_element(vector, index, report);
    else
        return vector.data[index];
}

/// Stores an element in one of `slots` slots.
template <class Kind, class Report>
void set_element_at(Vector_Storage<Kind> vector, std::uint32_t slots, std::uint32_t index,
                    const typename Kind::Element &element, Report report)
{
    if (indexes_are_checked && index >= slots)
        return report(notes::index_of_no_slot);
    vector.kind.assign(vector.data + index, &element, 1);
}

/// Returns the address of one of `slots` slots, or of the end of them.
template <class Kind, class Report>
auto slot_at(Vector_Storage<Kind> vector, std::uint32_t slots, std::uint32_t index, Report report)
    -> decltype(vector.data + 0)
{
    if (!indexes_are_checked || index <= slots)
        return vector.data + index;
    report(notes::index_of_no_element);
    return nullptr;
}

} // namespace zeb::engine
