/// The notes that only strings report.
#pragma once

#include "core/engine/char_span.hpp"

namespace zeb::engine::notes
{

inline constexpr Char_Span copy_c_string_through_link =
    span_of("Cannot copy c string through link, no copy made.");
inline constexpr Char_Span append_c_string_through_link =
    span_of("Cannot append c string through link, no append made.");
inline constexpr Char_Span terminator_through_link =
    span_of("Cannot append null terminator through link, no append made.");
inline constexpr Char_Span append_format_through_link =
    span_of("Cannot append formatted text through link, no append made.");
inline constexpr Char_Span append_platform_string_through_link =
    span_of("Cannot append platform string through link, no append made.");
inline constexpr Char_Span append_number_through_link =
    span_of("Cannot append number through link, no append made.");
inline constexpr Char_Span trim_text_through_link = span_of("Cannot trim text through link, no change made.");
inline constexpr Char_Span join_strings_through_link =
    span_of("Cannot join strings through link, no change made.");
inline constexpr Char_Span split_into_link = span_of("Cannot split text into link, no change made.");

} // namespace zeb::engine::notes
