/// The notes that encoding and decoding report.
#pragma once

#include "core/engine/char_span.hpp"

namespace zeb::engine::notes
{

inline constexpr Char_Span decode_through_link =
    span_of("Cannot decode binary contents through link, no decode performed.");
inline constexpr Char_Span contents_truncated =
    span_of("Binary contents are truncated, no decode performed.");

} // namespace zeb::engine::notes
