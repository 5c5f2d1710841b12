/// Rearranging elements by a list of indexes, and transposing a matrix.
#pragma once

#include "arrays/engine/scratch.hpp"

#include <Korvane_ZEB/ZEB_Types.h>

#include <algorithm>
#include <span>

namespace zeb
{

enum class Permutation_Outcome : std::uint8_t {
    Applied,
    Entry_Outside, ///< an entry names no element; nothing was changed
    No_Memory,     ///< no room to copy the elements aside; nothing was changed
};

namespace permutation_detail
{

/// True when the first `used` entries name elements.
inline bool names_elements(std::span<const std::uint32_t> permutation, std::size_t used,
                           std::size_t count) noexcept
{
    std::uint32_t largest = 0;
    for (std::uint32_t entry : permutation.first(used))
        largest = std::max(largest, entry);
    return used == 0 || largest < count;
}

/// Checks the entries, copies the first elements aside and lets `place(index, entry, copy, used)` store
/// each.
template <class Element, class Place>
Permutation_Outcome rearrange(std::span<Element> elements, std::span<const std::uint32_t> permutation,
                              Place place) noexcept
{
    const std::size_t used = std::min(elements.size(), permutation.size());
    if (!names_elements(permutation, used, elements.size()))
        return Permutation_Outcome::Entry_Outside;
    if (used == 0)
        return Permutation_Outcome::Applied;
    const Scratch<Element> copy(used);
    if (copy.get() == nullptr)
        return Permutation_Outcome::No_Memory;
    std::copy_n(elements.data(), used, copy.get());
    for (std::size_t index = 0; index < used; ++index)
        place(index, permutation[index], copy.get(), used);
    return Permutation_Outcome::Applied;
}

} // namespace permutation_detail

/// Element i becomes what element permutation[i] was, for as many elements as the shorter of both has.
/// Entries may repeat.
template <class Element>
Permutation_Outcome apply_permutation(std::span<Element> elements,
                                      std::span<const std::uint32_t> permutation) noexcept
{
    Element *const data = elements.data();
    // An entry past the rearranged elements names one that keeps its value, so it can be read in place.
    return permutation_detail::rearrange(
        elements, permutation,
        [data](std::size_t index, std::uint32_t entry, const Element *copy, std::size_t used) {
            data[index] = entry < used ? copy[entry] : data[entry];
        });
}

/// Element permutation[i] becomes what element i was, for as many elements as the shorter of both has.
/// Where entries repeat, the last one stays.
template <class Element>
Permutation_Outcome apply_inverse_permutation(std::span<Element> elements,
                                              std::span<const std::uint32_t> permutation) noexcept
{
    Element *const data = elements.data();
    return permutation_detail::rearrange(elements, permutation,
                                         [data](std::size_t index, std::uint32_t entry, const Element *copy,
                                                std::size_t) { data[entry] = copy[index]; });
}

/// Rewrites the elements, read as `rows` rows of `columns`, column by column. Only where both are at
/// least 2 and their product is the count; nothing changes otherwise. Answers false, nothing changed,
/// when there is no memory for a copy.
template <class Element>
bool transpose(std::span<Element> elements, std::uint32_t rows, std::uint32_t columns) noexcept
{
    if (rows < 2 || columns < 2 || std::uint64_t{rows} * columns != elements.size())
        return true;
    const Scratch<Element> copy(elements.size());
    if (copy.get() == nullptr)
        return false;
    std::copy(elements.begin(), elements.end(), copy.get());
    // In tiles, so that the lines read and written stay in the cache.
    constexpr std::uint32_t tile = 16;
    Element *const data = elements.data();
    for (std::uint64_t column = 0; column < columns; column += tile)
        for (std::uint64_t row = 0; row < rows; row += tile)
            for (std::uint64_t j = column; j < std::min<std::uint64_t>(column + tile, columns); ++j)
                for (std::uint64_t i = row; i < std::min<std::uint64_t>(row + tile, rows); ++i)
                    data[j * rows + i] = copy.get()[i * columns + j];
    return true;
}

} // namespace zeb
