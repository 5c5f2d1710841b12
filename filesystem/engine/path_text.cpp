#include "filesystem/engine/path_text.hpp"

#include <cstring>

namespace zeb::engine
{
namespace
{

constexpr char separator = '/';

/// Returns the number of characters up to the last '/', with it; 0 if there is none.
std::uint32_t length_to_last_separator(Char_Span path) noexcept
{
    std::uint32_t length = path.length;
    while (length != 0 && path.char_c_array[length - 1] != separator)
        --length;
    return length;
}

} // namespace

std::uint32_t visible_path_length(const char *path, std::uint32_t length) noexcept
{
    return length != 0 && path[length - 1] == '\0' ? length - 1 : length;
}

bool has_no_inner_null(const char *path, std::uint32_t length) noexcept
{
    const std::uint32_t visible = visible_path_length(path, length);
    return visible == 0 || std::memchr(path, '\0', visible) == nullptr;
}

bool is_absolute_path(Char_Span path) noexcept
{
    return path.length != 0 && path.char_c_array[0] == separator;
}

Char_Span parent_path(Char_Span path) noexcept
{
    const std::uint32_t length = length_to_last_separator(path);
    return length == 0 ? span_of("/") : Char_Span{path.char_c_array, length - 1};
}

Char_Span last_path_component(Char_Span path) noexcept
{
    const std::uint32_t start = length_to_last_separator(path);
    return {path.char_c_array + start, path.length - start};
}

std::uint32_t length_without_end_slashes(Char_Span path) noexcept
{
    std::uint32_t length = path.length;
    while (length > 1 && path.char_c_array[length - 1] == separator)
        --length;
    return length;
}

} // namespace zeb::engine
