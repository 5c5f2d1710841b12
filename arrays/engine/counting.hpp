/// The pointer and the count of a vector, without moving its storage.
#pragma once

#include "arrays/engine/array_notes.hpp"
#include "arrays/engine/array_storage.hpp"

namespace zeb
{

/// Sets the pointer to the elements, and nothing else; they belong to the caller, also in an owner.
template <class Kind>
void change_data(Vector_Storage<Kind> vector, typename Kind::Element *data) noexcept
{
    if (data != vector.data)
        vector.kind.disown();
    vector.data = data;
}

/// Sets the count. An owner drops the elements past a smaller count and opens those that a larger one
/// gains; a link's elements belong to someone else, and only its view changes.
template <class Kind, class Report>
void change_count(Vector_Storage<Kind> vector, std::uint32_t count, Report report) noexcept
{
    if (vector.owns() && vector.data != nullptr) {
        if (count < vector.count)
            vector.kind.close(vector.data, count, vector.count);
        else if (!vector.kind.open(vector.data, vector.count, count))
            return report(notes::allocate_failed);
    }
    vector.count = count;
}

} // namespace zeb
