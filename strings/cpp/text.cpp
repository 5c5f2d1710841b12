#include <Korvane_ZEB_engine/text.hpp>

#include "strings/engine/number_scanners.hpp"
#include "strings/engine/text_comparison.hpp"
#include "strings/engine/text_search.hpp"
#include "strings/engine/text_trimming.hpp"

namespace zeb
{
namespace
{

std::span<const char> characters_of(std::string_view text) noexcept
{
    return text.size() <= UINT32_MAX ? std::span<const char>(text) : std::span<const char>();
}

std::optional<std::size_t> as_index(std::uint32_t index) noexcept
{
    return index == ZEB_NOT_FOUND ? std::nullopt : std::optional<std::size_t>(index);
}

int as_sign(ZEB_Comparison comparison) noexcept
{
    return (comparison == ZEB_COMPARED_GREATER) - (comparison == ZEB_COMPARED_LESS);
}

} // namespace

std::strong_ordering compare(std::string_view left, std::string_view right) noexcept
{
    return as_sign(engine::compare(characters_of(left), characters_of(right))) <=> 0;
}

std::weak_ordering compare_ignoring_case(std::string_view left, std::string_view right) noexcept
{
    return as_sign(engine::compare_ignoring_case(characters_of(left), characters_of(right))) <=> 0;
}

bool is_equal_ignoring_case(std::string_view left, std::string_view right) noexcept
{
    return engine::is_equal_ignoring_case(characters_of(left), characters_of(right));
}

std::optional<std::size_t> find(std::string_view text, std::string_view part, std::size_t from) noexcept
{
    const std::span<const char> characters = characters_of(text);
    if (from >= characters.size())
        return std::nullopt;
    return as_index(
        engine::find_occurrence<char>(characters, characters_of(part), static_cast<std::uint32_t>(from)));
}

std::optional<std::size_t> find_last(std::string_view text, std::string_view part) noexcept
{
    return as_index(engine::last_occurrence(characters_of(text), characters_of(part)));
}

std::string_view trim(std::string_view text) noexcept { return trim_left(trim_right(text)); }

std::string_view trim_left(std::string_view text) noexcept
{
    const engine::Is_White_Space is_space;
    while (!text.empty() && is_space(text.front()))
        text.remove_prefix(1);
    return text;
}

std::string_view trim_right(std::string_view text) noexcept
{
    const engine::Is_White_Space is_space;
    while (!text.empty() && is_space(text.back()))
        text.remove_suffix(1);
    return text;
}

void Pieces::iterator::advance() noexcept
{
    has_ended = is_last;
    const std::optional<std::size_t> end = is_last ? std::nullopt : find(rest, between);
    piece = rest.substr(0, end.value_or(rest.size()));
    is_last = !end;
    rest.remove_prefix(end ? *end + between.size() : 0);
}

std::optional<std::size_t> number_prefix_length(std::string_view text) noexcept
{
    return as_index(engine::number_prefix_length(characters_of(text)));
}

std::optional<std::size_t> number_start(std::string_view text) noexcept
{
    return as_index(engine::index_of_number_start(characters_of(text)));
}

std::optional<std::size_t> number_end(std::string_view text) noexcept
{
    return as_index(engine::index_of_number_end(characters_of(text)));
}

} // namespace zeb
