/// Rearranging elements by a list of indexes, and transposing a matrix.
#pragma once

#include "arrays/engine/scratch.hpp"

#include <Korvane_ZEB/ZEB_Types.h>

#include <algorithm>
#include <span>

namespace zeb::engine
{

/// The direction of a permutation: element i becomes the former element `permutation[i]` (forward), or
/// element `permutation[i]` the former element i (inverse).
enum class Permutation_Direction : std::uint8_t { forward, inverse };

/// Whether every entry of the permutation is an index below `count`.
inline bool are_valid_indexes(std::span<const std::uint32_t> permutation, std::size_t count) noexcept
{
    std::uint32_t largest = 0;
    for (const std::uint32_t entry : permutation)
        largest = std::max(largest, entry);
    return permutation.empty() || largest < count;
}

/// Rearranges the elements by a permutation that is no longer than they are and whose entries are valid
/// indexes. Entries may repeat: forward, an element is then copied twice; inverse, the last one stays.
/// Returns false, with nothing changed, if allocation fails.
template <class Element>
bool rearrange(std::span<Element> elements, std::span<const std::uint32_t> permutation,
               Permutation_Direction way) noexcept
{
    const std::size_t used = permutation.size();
    const Scratch<Element> copy(used);
    if (used != 0 && copy.get() == nullptr)
        return false;
    std::copy_n(elements.data(), used, copy.get());
    // An entry above the rearranged elements refers to one that keeps its value, so it is read in place.
    for (std::size_t i = 0; i < used; ++i)
        if (const std::uint32_t entry = permutation[i]; way == Permutation_Direction::inverse)
            elements[entry] = copy.get()[i];
        else
            elements[i] = entry < used ? copy.get()[entry] : elements[entry];
    return true;
}

/// Transposes the elements, a matrix of `rows` and `columns` in row-major order, if both are at least 2 and
/// their product is the count. Returns false, with nothing changed, if allocation fails.
template <class Element>
bool transpose(std::span<Element> elements, std::uint32_t rows, std::uint32_t columns) noexcept
{
    if (rows < 2 || columns < 2 || std::uint64_t{rows} * columns != elements.size())
        return true;
    const Scratch<Element> copy(elements.size());
    if (copy.get() == nullptr)
        return false;
    std::copy(elements.begin(), elements.end(), copy.get());
    // In tiles, so that the cache lines read and written stay in the cache.
    constexpr std::uint32_t tile = 16;
    Element *const data = elements.data();
    for (std::uint64_t column = 0; column < columns; column += tile)
        for (std::uint64_t row = 0; row < rows; row += tile)
            for (std::uint64_t j = column; j < std::min<std::uint64_t>(column + tile, columns); ++j)
                for (std::uint64_t i = row; i < std::min<std::uint64_t>(row + tile, rows); ++i)
                    data[j * rows + i] = copy.get()[i * columns + j];
    return true;
}

} // namespace zeb::engine
