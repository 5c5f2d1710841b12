/// The notes of conversions between arrays and the platform's objects.
#pragma once

#include "core/engine/char_span.hpp"

namespace zeb::engine::notes
{

inline constexpr Char_Span no_such_numbers =
    span_of("Not an array of numbers that are in the range of the elements, no change made.");
inline constexpr Char_Span no_such_data = span_of("Not data of a whole number of elements, no change made.");
inline constexpr Char_Span no_data_to_view =
    span_of("Not data of a whole number of elements, aligned as they are, no link made.");
inline constexpr Char_Span block_through_link = span_of("Cannot hand over block through link, no data made.");

} // namespace zeb::engine::notes
