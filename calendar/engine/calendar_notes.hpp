/// The notes that dates report.
#pragma once

#include "core/engine/char_span.hpp"

namespace zeb::engine::notes
{

inline constexpr Char_Span no_instant_given =
    span_of("No date or time zone, or an instant out of range, no change made.");
inline constexpr Char_Span no_instant_made =
    span_of("No time zone, or an instant out of range, no date made.");

} // namespace zeb::engine::notes
