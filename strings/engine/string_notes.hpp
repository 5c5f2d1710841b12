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

} // namespace zeb::engine::notes
