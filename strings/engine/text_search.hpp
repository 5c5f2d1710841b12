/// Where a text stands in another. An empty text stands nowhere.
#pragma once

#include "arrays/engine/algorithms/search.hpp"

#include <algorithm>
#include <cstring>
#include <span>

namespace zeb::engine
{

template <class Character>
bool begins_with(std::span<const Character> text, std::span<const Character> part) noexcept
{
    return !part.empty() && part.size() <= text.size() &&
           std::memcmp(text.data(), part.data(), part.size_bytes()) == 0;
}

template <class Character>
bool ends_with(std::span<const Character> text, std::span<const Character> part) noexcept
{
    return part.size() <= text.size() && begins_with(text.last(part.size()), part);
}

namespace text_search_detail
{

/// Returns the first of the starts from `begin` to below `end` at which the part stands.
template <class Character>
std::uint32_t first_start(std::span<const Character> text, std::span<const Character> part, std::size_t begin,
                          std::size_t end) noexcept
{
    return find_occurrence<Character>(text.first(end - 1 + part.size()), part,
                                      static_cast<std::uint32_t>(begin));
}

/// Returns the last start below `end`, given one. Searches forwards: there is mostly none; where there are
/// many, each time at least half of what is left is passed over.
template <class Character>
std::uint32_t last_start(std::span<const Character> text, std::span<const Character> part,
                         std::uint32_t found, std::size_t end) noexcept
{
    while (found + 1 < end) {
        std::uint32_t next = first_start(text, part, found + 1, end);
        if (next == ZEB_NOT_FOUND)
            break;
        found = next;
        const std::size_t middle = end - (end - found) / 2;
        next = middle < end ? first_start(text, part, middle, end) : ZEB_NOT_FOUND;
        if (next == ZEB_NOT_FOUND)
            end = middle;
        else
            found = next;
    }
    return found;
}

} // namespace text_search_detail

/// Returns the start of the part's last occurrence, or ZEB_NOT_FOUND.
template <class Character>
std::uint32_t last_occurrence(std::span<const Character> text, std::span<const Character> part) noexcept
{
    if (part.empty() || part.size() > text.size())
        return ZEB_NOT_FOUND;
    // Blocks of starts from the end, each searched forwards by vectors. They grow, so that a near occurrence
    // is found soon, and are no shorter than the part, which every search reads beyond its starts.
    constexpr std::size_t longest_block = 65536;
    std::size_t block = 512;
    for (std::size_t end = text.size() - part.size() + 1; end != 0;
         block = std::min(4 * block, longest_block)) {
        const std::size_t begin = end - std::min(end, std::max(block, part.size()));
        const std::uint32_t found = text_search_detail::first_start(text, part, begin, end);
        if (found != ZEB_NOT_FOUND)
            return text_search_detail::last_start(text, part, found, end);
        end = begin;
    }
    return ZEB_NOT_FOUND;
}

} // namespace zeb::engine
