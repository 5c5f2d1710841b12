/// The count of a vector, within the storage at hand.
#pragma once

#include "arrays/engine/array_notes.hpp"
#include "arrays/engine/array_storage.hpp"

namespace zeb
{

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
