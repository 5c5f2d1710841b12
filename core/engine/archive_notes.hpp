/// The notes that archived objects report.
#pragma once

#include "core/engine/char_span.hpp"

namespace zeb::engine::notes
{

inline constexpr Char_Span archive_incomplete =
    span_of("Archive lacks a value or has another kind of value in its place, no object made.");
inline constexpr Char_Span archive_foreign =
    span_of("Archived contents do not begin with the binary header, no object made.");
inline constexpr Char_Span archive_has_tail =
    span_of("Archived contents go on after their end, no object made.");
inline constexpr Char_Span addresses_not_archived =
    span_of("Addresses mean nothing in an archive, none archived.");
inline constexpr Char_Span addresses_not_unarchived =
    span_of("Addresses mean nothing in an archive, no object made.");
inline constexpr Char_Span object_without_coding =
    span_of("An element does not adopt NSCoding, none archived.");

} // namespace zeb::engine::notes
