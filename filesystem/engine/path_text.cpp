#include "filesystem/engine/path_text.hpp"

#include <cstring>

namespace zeb::engine
{

std::uint32_t visible_path_length(const char *path, std::uint32_t length) noexcept
{
    return length != 0 && path[length - 1] == '\0' ? length - 1 : length;
}

bool has_no_inner_null(const char *path, std::uint32_t length) noexcept
{
    const std::uint32_t visible = visible_path_length(path, length);
    return visible == 0 || std::memchr(path, '\0', visible) == nullptr;
}

} // namespace zeb::engine
