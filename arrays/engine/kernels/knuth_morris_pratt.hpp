/// A search for a run of elements that takes linear time on every input.
#pragma once

#include "arrays/engine/kernels/plain_loops.hpp"
#include "arrays/engine/scratch.hpp"

#include <cstddef>
#include <cstdint>

namespace zeb::engine::plain
{

/// For each prefix of the pattern, the length of its longest proper prefix that also ends it.
template <class Element>
void find_borders(const Element *pattern, std::size_t length, std::uint32_t *borders) noexcept
{
    std::uint32_t border = 0;
    borders[0] = 0;
    for (std::size_t end = 1; end < length; ++end) {
        while (border > 0 && !(pattern[end] == pattern[border]))
            border = borders[border - 1];
        if (pattern[end] == pattern[border])
            ++border;
        borders[end] = border;
    }
}

/// Start of the first run equal to the pattern (length at least 1); count if there is none. A pattern
/// element that does not equal itself never matches. `borders` comes from `find_borders`.
template <class Element>
std::size_t find_run_by_borders(const Element *elements, std::size_t count, const Element *pattern,
                                std::size_t length, const std::uint32_t *borders) noexcept
{
    std::size_t matched = 0;
    for (std::size_t index = 0; index < count; ++index) {
        const Element element = elements[index];
        while (matched > 0 && !(element == pattern[matched]))
            matched = borders[matched - 1];
        if (element == pattern[matched] && ++matched == length)
            return index + 1 - length;
    }
    return count;
}

/// The same without borders at hand. If allocation fails, the time is no longer linear. Rare, and so kept out
/// of line.
template <class Element>
[[gnu::noinline]] std::size_t find_run_linearly(const Element *elements, std::size_t count,
                                                const Element *pattern, std::size_t length) noexcept
{
    const Scratch<std::uint32_t> borders(length);
    if (borders.get() == nullptr)
        return find_run(elements, count, pattern, length);
    find_borders(pattern, length, borders.get());
    return find_run_by_borders(elements, count, pattern, length, borders.get());
}

} // namespace zeb::engine::plain
