/// Paths as counted text.
#pragma once

#include <cstdint>

namespace zeb::engine
{

/// Returns the length of a path's visible text, without a null that ends the counted text.
std::uint32_t visible_path_length(const char *path, std::uint32_t length) noexcept;

/// Whether the visible text holds no null, which would truncate the path in a platform call.
bool has_no_inner_null(const char *path, std::uint32_t length) noexcept;

} // namespace zeb::engine
