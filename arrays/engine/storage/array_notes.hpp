/// The notes that arrays report, the same in every family.
#pragma once

#include "core/engine/char_span.hpp"

namespace zeb::engine::notes
{

inline constexpr Char_Span trim_through_link =
    span_of("Cannot trim allocation through link, no adjustment made.");
inline constexpr Char_Span length_through_link =
    span_of("Cannot update length through link, no adjustment made.");
inline constexpr Char_Span room_through_link =
    span_of("Cannot update capacity through link, no adjustment made.");
inline constexpr Char_Span capacity_through_link =
    span_of("Cannot modify capacity through link, no adjustment made.");
inline constexpr Char_Span copy_element_through_link =
    span_of("Cannot copy element through link, no copy made.");
inline constexpr Char_Span append_element_through_link =
    span_of("Cannot append element through link, no append made.");
inline constexpr Char_Span append_array_through_link =
    span_of("Cannot append array through link, no append made.");
inline constexpr Char_Span insert_element_through_link =
    span_of("Cannot insert element through link, no insertion made.");
inline constexpr Char_Span insert_array_through_link =
    span_of("Cannot insert array through link, no insertion made.");
inline constexpr Char_Span replace_element_through_link =
    span_of("Cannot replace element with array through link, no replacement made.");
inline constexpr Char_Span replace_occurrences_through_link =
    span_of("Can not replace occurences through a link");

inline constexpr Char_Span allocate_failed = span_of("Runtime error in allocate macro");
inline constexpr Char_Span reallocate_failed = span_of("Runtime error in reallocate macro");

inline constexpr Char_Span removal_range_reversed = span_of("End index is less than start index in removal.");
inline constexpr Char_Span find_on_unknown_comparison =
    span_of("Warning: Ordered find stopped on unknown comparison.");
inline constexpr Char_Span insert_on_unknown_comparison =
    span_of("Warning: Ordered insert stopped on unknown comparison.");
inline constexpr Char_Span permutation_out_of_range =
    span_of("Permutation names an element outside the array, no change made.");

inline constexpr Char_Span index_of_no_element =
    span_of("Index is not below the count, no element returned.");
inline constexpr Char_Span index_of_no_slot = span_of("Index is not below the count, no element set.");

inline constexpr Char_Span not_implemented = span_of("Not implemented");
inline constexpr Char_Span need_to_implement = span_of("Need to implement");

} // namespace zeb::engine::notes
