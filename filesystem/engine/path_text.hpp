/// Paths as counted text.
#pragma once

#include <cstdint>

namespace zeb::engine
{

/// The length of a path's visible text: a null that ends the counted text is not part of it.
std::uint32_t visible_path_length(const char *path, std::uint32_t length) noexcept;

/// Whether the platform can be given the path: its visible text holds no null, which would cut it short.
bool is_whole_path(const char *path, std::uint32_t length) noexcept;

} // namespace zeb::engine
