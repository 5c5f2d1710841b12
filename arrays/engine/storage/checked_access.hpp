/// Single elements by indexes that are compared with the count first.
#pragma once

#include "arrays/engine/storage/array_notes.hpp"
#include "arrays/engine/storage/array_storage.hpp"

namespace zeb::engine
{

/// Returns the index from the front of one from the end; of one that no element has, one that none has.
constexpr std::uint32_t index_from_front(std::uint32_t count, std::uint32_t index_from_end) noexcept
{
    return count - 1 - index_from_end; // wraps to the count at least
}

/// Returns the address of an element; null, after a report, if there is none.
template <class Kind, class Report>
auto checked_pointer(Vector_Storage<Kind> vector, std::uint32_t index, Report report)
    -> decltype(vector.data + 0)
{
    if (index < vector.count) [[likely]]
        return vector.data + index;
    report(notes::index_of_no_element);
    return nullptr;
}

/// Returns an element; what an empty vector answers, after a report, if there is none.
template <class Kind, class Report>
typename Kind::Element checked_element(Vector_Storage<Kind> vector, std::uint32_t index, Report report)
{
    auto *const element = checked_pointer(vector, index, report);
    return element != nullptr ? *element : typename Kind::Element();
}

/// Stores an element; reports if there is none in its place.
template <class Kind, class Report>
void set_checked_element(Vector_Storage<Kind> vector, std::uint32_t index,
                         const typename Kind::Element &element, Report report)
{
    if (index >= vector.count)
        return report(notes::index_of_no_slot);
    vector.kind.assign(vector.data + index, &element, 1);
}

} // namespace zeb::engine
