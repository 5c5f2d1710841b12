/// Paths as counted text.
#pragma once

#include "core/engine/char_span.hpp"

#include <cstdint>

namespace zeb::engine
{

/// Returns the length of a path's visible text, without a null that ends the counted text.
std::uint32_t visible_path_length(const char *path, std::uint32_t length) noexcept;

/// Whether the visible text holds no null, which would truncate the path in a platform call.
bool has_no_inner_null(const char *path, std::uint32_t length) noexcept;

bool is_absolute_path(Char_Span path) noexcept;

/// Returns the characters before the last '/'; "/" if there is none.
Char_Span parent_path(Char_Span path) noexcept;

/// Returns the characters after the last '/'; the whole path if there is none.
Char_Span last_path_component(Char_Span path) noexcept;

/// Returns the length of a path without the '/'s that end it, but for one that begins it.
std::uint32_t length_without_end_slashes(Char_Span path) noexcept;

} // namespace zeb::engine
