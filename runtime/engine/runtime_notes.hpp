/// The notes that only the runtime's classes report.
#pragma once

#include "core/engine/char_span.hpp"

namespace zeb::engine::notes
{

inline constexpr Char_Span unusable_key = span_of("Cannot use key, no change made.");
inline constexpr Char_Span unusable_value = span_of("Cannot store value, no change made.");
inline constexpr Char_Span no_lock = span_of("Cannot lock or unlock, no change made.");
inline constexpr Char_Span no_thread = span_of("Cannot start thread, no selector performed.");

} // namespace zeb::engine::notes
