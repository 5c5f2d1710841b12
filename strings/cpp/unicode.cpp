#include <Korvane_ZEB_engine/unicode.hpp>

#include "strings/engine/utf.hpp"

namespace zeb
{
namespace
{

/// The engine's 32-bit characters are of another type, of the same size.
static_assert(sizeof(char32_t) == sizeof(std::uint32_t) && alignof(char32_t) == alignof(std::uint32_t));

} // namespace

bool is_valid_utf8(std::string_view text) noexcept { return engine::is_valid_utf8(text); }

std::optional<std::u32string> code_points_of_utf8(std::string_view utf8)
{
    std::u32string code_points(engine::code_point_count_of_utf8(utf8), U'\0');
    if (!engine::code_points_from_utf8(utf8, reinterpret_cast<std::uint32_t *>(code_points.data())))
        return std::nullopt;
    return code_points;
}

std::optional<std::string> utf8_of_code_points(std::u32string_view code_points)
{
    const std::span elements(reinterpret_cast<const std::uint32_t *>(code_points.data()), code_points.size());
    if (!engine::are_code_points(elements))
        return std::nullopt;
    std::string utf8(engine::utf8_length_of_code_points(elements), '\0');
    if (!engine::utf8_from_code_points(elements, utf8.data()))
        return std::nullopt;
    return utf8;
}

} // namespace zeb
