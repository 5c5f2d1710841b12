/// Storing one element into a range of a vector, for every element kind.
#pragma once

#include "arrays/engine/algorithms/fill.hpp"
#include "arrays/engine/storage/array_notes.hpp"
#include "arrays/engine/storage/repeated_element.hpp"

namespace zeb::engine
{

/// Stores `element` into an inclusive range, which is cut at the last element; one that starts after its end
/// is empty. If an object cannot make room for the contents, that is reported and nothing changes.
template <class Kind, class Report>
void fill_range_with(Vector_Storage<Kind> vector, ZEB_Index_Range range, typename Kind::Element element,
                     Report report) noexcept
{
    if constexpr (Kind::is_plain) {
        fill_range(vector.elements(), range, element);
    } else {
        Repeated_Element<Kind> repeated(vector, element);
        const std::uint64_t end = std::min(std::uint64_t{range.end} + 1, std::uint64_t{vector.count});
        for (std::uint32_t i = range.start; i < end; ++i)
            if (!repeated.prepare(i))
                return report(notes::allocate_failed);
        for (std::uint32_t i = range.start; i < end; ++i)
            repeated.store(i);
    }
}

/// Stores `element` at every index, under the same conditions.
template <class Kind, class Report>
void fill_with(Vector_Storage<Kind> vector, typename Kind::Element element, Report report) noexcept
{
    if (vector.count != 0)
        fill_range_with(vector, {0, vector.count - 1}, element, report);
}

} // namespace zeb::engine
