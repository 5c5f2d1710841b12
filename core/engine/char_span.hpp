/// Character spans over string literals, for the engine's fixed texts.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstddef>

namespace zeb::engine
{

using Char_Span = ZEB_Char_Span;

/// Returns the span over a string literal, without its terminating null.
template <std::size_t size>
constexpr Char_Span span_of(const char (&literal)[size]) noexcept
{
    return {literal, static_cast<uint32_t>(size - 1)};
}

} // namespace zeb::engine
