/// Rearranging a vector by a list of indexes, for every element kind.
#pragma once

#include "arrays/engine/algorithms/permutation.hpp"
#include "arrays/engine/storage/array_notes.hpp"
#include "arrays/engine/storage/own_source.hpp"

namespace zeb::engine
{

namespace permutation_detail
{

/// Entries may repeat, so objects are stored from a copy rather than moved. Returns false, with nothing
/// changed, if allocation fails.
template <class Kind>
bool permute_objects(Vector_Storage<Kind> vector, std::span<const std::uint32_t> permutation,
                     Permutation_Direction way) noexcept
{
    const Element_Copy<Kind> copy(vector.kind, vector.elements());
    if (!copy.is_valid())
        return false;
    const auto used = static_cast<std::uint32_t>(permutation.size());
    const auto slot = [&](std::uint32_t i) {
        return vector.data + (way == Permutation_Direction::forward ? i : permutation[i]);
    };
    const auto source = [&](std::uint32_t i) {
        return copy.elements().data() + (way == Permutation_Direction::forward ? permutation[i] : i);
    };
    for (std::uint32_t i = 0; i < used; ++i)
        if (!vector.kind.prepare(slot(i), source(i), 1))
            return false;
    for (std::uint32_t i = 0; i < used; ++i)
        vector.kind.assign_shared(slot(i), source(i), 1);
    return true;
}

} // namespace permutation_detail

/// Rearranges as many elements as the shorter of both has. An entry outside the vector or a failed allocation
/// is reported, and nothing changes. The permutation may lie among the elements.
template <class Kind, class Report>
void permute(Vector_Storage<Kind> vector, std::span<const std::uint32_t> entries, Permutation_Direction way,
             Report report) noexcept
{
    const std::size_t used = std::min<std::size_t>(vector.count, entries.size());
    const Unaliased_Values<std::uint32_t> permutation({}, entries.first(used), vector.data,
                                                      vector.elements().size_bytes());
    if (!permutation.is_valid())
        return report(notes::allocate_failed);
    if (!are_valid_indexes(permutation.elements(), vector.count))
        return report(notes::permutation_out_of_range);
    bool permuted;
    if constexpr (Kind::is_plain)
        permuted = rearrange(vector.elements(), permutation.elements(), way);
    else
        permuted = permutation_detail::permute_objects(vector, permutation.elements(), way);
    if (!permuted)
        report(notes::allocate_failed);
}

} // namespace zeb::engine
