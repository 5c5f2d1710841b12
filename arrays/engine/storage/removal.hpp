/// Removing elements from a vector, for every element kind. Through a link the owner's elements are shifted.
#pragma once

#include "arrays/engine/algorithms/removal.hpp"
#include "arrays/engine/storage/array_notes.hpp"
#include "arrays/engine/storage/array_storage.hpp"

#include <algorithm>
#include <utility>

namespace zeb::engine
{

/// Removes `n` elements at `at`; the caller has checked the range.
template <class Kind>
void remove_elements(Vector_Storage<Kind> vector, std::uint32_t at, std::uint32_t n) noexcept
{
    vector.kind.close_gap(vector.data, vector.count, at, n);
    vector.count -= n;
}

/// Removes the element at `at`; an index past the last changes nothing.
template <class Kind>
void remove_element(Vector_Storage<Kind> vector, std::uint32_t at) noexcept
{
    if (at < vector.count)
        remove_elements(vector, at, 1);
}

/// Removes every element equal to `element`; the others keep their order.
template <class Kind>
void remove_every(Vector_Storage<Kind> vector, typename Kind::Element element) noexcept
{
    if constexpr (Kind::is_plain) {
        vector.count = remove_equal(vector.elements(), element);
    } else {
        const typename Kind::Equality equal;
        std::uint32_t kept = 0;
        for (std::uint32_t i = 0; i < vector.count; ++i)
            if (!equal(vector.data[i], element))
                std::swap(vector.data[kept++], vector.data[i]);
        vector.kind.close(vector.data, kept, vector.count);
        vector.count = kept;
    }
}

/// Whether a range ends before it starts. If so, reports it.
template <class Report>
bool is_reversed(ZEB_Index_Range range, Report report) noexcept
{
    if (range.start > range.end)
        report(notes::removal_range_reversed);
    return range.start > range.end;
}

/// Removes an inclusive range, which is cut at the last element.
template <class Kind, class Report>
void remove_range(Vector_Storage<Kind> vector, ZEB_Index_Range range, Report report) noexcept
{
    if (is_reversed(range, report) || range.start >= vector.count)
        return;
    remove_elements(vector, range.start, std::min(range.end, vector.count - 1) - range.start + 1);
}

/// Replaces the range with one element, under the same conditions.
template <class Kind, class Report>
void replace_range(Vector_Storage<Kind> vector, ZEB_Index_Range range, typename Kind::Element element,
                   Report report) noexcept
{
    if (is_reversed(range, report) || range.start >= vector.count)
        return;
    if (!vector.kind.prepare(vector.data + range.start, &element, 1))
        return report(notes::allocate_failed);
    vector.kind.assign(vector.data + range.start, &element, 1);
    remove_elements(vector, range.start + 1, std::min(range.end, vector.count - 1) - range.start);
}

} // namespace zeb::engine
