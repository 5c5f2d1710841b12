/// Finding every occurrence of a run of elements, and replacing it with another run.
#pragma once

#include "arrays/engine/algorithms/search.hpp"

#include <algorithm>
#include <span>

namespace zeb::engine
{

/// Calls `visit(index)` for the start of each occurrence of the pattern, from the front, without overlap,
/// including one that ends with the last element, and returns their number. The visitor may write the
/// elements of that occurrence and those before it. An empty pattern has no occurrences.
template <class Element, class Visit, class Equality = Own_Equality>
std::uint32_t for_each_occurrence(std::span<const Element> elements,
                                  std::span<const std::type_identity_t<Element>> pattern, Visit visit,
                                  Equality equal = {}) noexcept
{
    std::uint32_t found = 0;
    std::uint32_t start = find_occurrence<Element>(elements, pattern, 0, equal);
    for (; start != ZEB_NOT_FOUND; ++found) {
        const std::uint32_t after = start + static_cast<std::uint32_t>(pattern.size());
        visit(start);
        start = find_occurrence<Element>(elements, pattern, after, equal);
    }
    return found;
}

/// The number of occurrences replaced, and the resulting element count.
struct Replaced_Occurrences {
    std::uint32_t replacements;
    std::uint32_t count;
};

/// Replaces each occurrence in place with a replacement that is not longer than the pattern, and closes the
/// gaps. Pattern and replacement must not overlap the elements.
template <class Element, class Equality = Own_Equality>
Replaced_Occurrences replace_occurrences_in_place(std::span<Element> elements,
                                                  std::span<const std::type_identity_t<Element>> pattern,
                                                  std::span<const std::type_identity_t<Element>> replacement,
                                                  Equality equal = {}) noexcept
{
    Element *const data = elements.data();
    std::size_t read = 0;
    std::size_t written = 0;
    const auto keep_until = [&](std::size_t end) {
        if (written != read)
            std::copy(data + read, data + end, data + written);
        written += end - read;
    };
    const auto replace = [&](std::uint32_t start) {
        keep_until(start);
        std::copy(replacement.begin(), replacement.end(), data + written);
        written += replacement.size();
        read = start + pattern.size();
    };
    const std::uint32_t found = for_each_occurrence<Element>(elements, pattern, replace, equal);
    keep_until(elements.size());
    return {found, static_cast<std::uint32_t>(written)};
}

/// Copies the source to the destination with each occurrence replaced, and returns the number of
/// replacements. The destination has exactly the size of the result, source + occurrences × (replacement −
/// pattern), and overlaps none of the runs.
template <class Element, class Equality = Own_Equality>
std::uint32_t copy_with_occurrences_replaced(std::span<const Element> source,
                                             std::span<const std::type_identity_t<Element>> pattern,
                                             std::span<const std::type_identity_t<Element>> replacement,
                                             std::span<std::type_identity_t<Element>> destination,
                                             Equality equal = {}) noexcept
{
    const Element *read = source.data();
    Element *written = destination.data();
    const auto replace = [&](std::uint32_t start) {
        written = std::copy(read, source.data() + start, written);
        written = std::copy(replacement.begin(), replacement.end(), written);
        read = source.data() + start + pattern.size();
    };
    const std::uint32_t found = for_each_occurrence<Element>(source, pattern, replace, equal);
    std::copy(read, source.data() + source.size(), written);
    return found;
}

} // namespace zeb::engine
