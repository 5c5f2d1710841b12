/// Sorting the positions of lanes: what the sorts with a permutation share.
#pragma once

#include "arrays/engine/kernels/sort_scan.hpp"
#include "arrays/engine/scratch.hpp"

#include <algorithm>
#include <bit>
#include <cstring>
#include <type_traits>

#if ZEB_HAS_HIGHWAY
#include <hwy/contrib/sort/vqsort.h>
#endif

namespace zeb::engine::kernels
{

/// Sorts keys of which equal ones are indistinguishable, so that any sort gives the same result. Infinities
/// may not be among them: the vector sort pads with the largest finite number.
template <class Key>
void sort_keys(Key *keys, std::size_t count) noexcept
{
#if ZEB_HAS_HIGHWAY
    if (scans<Key>().sorts_in_vectors)
        return hwy::Sorter()(keys, count, hwy::SortAscending());
#endif
    std::sort(keys, keys + count);
}

/// An unsigned key in the order of its lane, and the lane of a key. Zeros are of one sign only, and NaN does
/// not occur.
template <class Lane>
struct Ordered_Key {
    using Key = std::conditional_t<sizeof(Lane) == 4, std::uint32_t, std::uint64_t>;
    static constexpr Key top = Key{1} << (8 * sizeof(Key) - 1);

    static Key key_of(Lane lane) noexcept
    {
        Key key;
        std::memcpy(&key, &lane, sizeof key);
        if constexpr (std::is_floating_point_v<Lane>)
            return key & top ? ~key : key | top;
        return std::is_signed_v<Lane> ? key ^ top : key;
    }
    static Lane lane_of(Key key) noexcept
    {
        if constexpr (std::is_floating_point_v<Lane>)
            key = key & top ? key ^ top : ~key;
        else if constexpr (std::is_signed_v<Lane>)
            key ^= top;
        Lane lane;
        std::memcpy(&lane, &key, sizeof lane);
        return lane;
    }
};

inline bool counts_up_from_0(const std::uint32_t *indexes, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i)
        if (indexes[i] != i)
            return false;
    return true;
}

/// A copy of the indexes, not needed if they count up from 0: then each position is its own index.
class Indexes_Before
{
public:
    Indexes_Before(const std::uint32_t *indexes, std::size_t count) noexcept
        : plain(counts_up_from_0(indexes, count)), copy(plain ? 0 : count)
    {
        if (copy.get() != nullptr)
            std::copy_n(indexes, count, copy.get());
    }
    bool known() const noexcept { return plain || copy.get() != nullptr; }
    std::uint32_t at(std::uint64_t position) const noexcept
    {
        return plain ? static_cast<std::uint32_t>(position) : copy.get()[position];
    }

private:
    bool plain;
    Scratch<std::uint32_t> copy;
};

/// Orders the positions of numbers whose keys have the same upper bits by the numbers themselves, and of
/// equal ones as they stand.
template <class Lane>
void order_run(const Lane *lanes, std::uint64_t *positions, std::size_t length) noexcept
{
    const auto before = [lanes](std::uint64_t left, std::uint64_t right) {
        return lanes[left] < lanes[right];
    };
    // Such a run is mostly one number repeated.
    if (!std::is_sorted(positions, positions + length, before))
        std::sort(positions, positions + length, before);
}

/// Packs the upper bits of each number's key, less the lowest key, above its position. Returns the mask of
/// the positions.
template <class Lane, class Key_Of>
std::uint64_t pack_upper_bits(const Lane *lanes, std::uint64_t *packed, std::size_t count,
                              Key_Of key_of) noexcept
{
    std::uint64_t lowest = UINT64_MAX, highest = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint64_t key = key_of(lanes[i]);
        lowest = std::min(lowest, key);
        highest = std::max(highest, key);
    }
    const std::uint64_t positions = (std::uint64_t{1} << std::bit_width(count - 1)) - 1;
    const int shift = std::countl_zero((highest - lowest) | 1);
    for (std::size_t i = 0; i < count; ++i)
        packed[i] = ((key_of(lanes[i]) - lowest) << shift & ~positions) | i;
    return positions;
}

/// Makes `positions` those of the numbers in ascending order. Half as much to sort as whole keys with their
/// positions beside them.
template <class Lane>
void order_positions(const Lane *lanes, std::uint64_t *positions, std::size_t count) noexcept
{
    const std::uint64_t mask = pack_upper_bits(lanes, positions, count, Ordered_Key<Lane>::key_of);
    sort_keys(positions, count);
    for (std::size_t start = 0, end; start < count; start = end) {
        const std::uint64_t key = positions[start] & ~mask;
        for (end = start; end < count && (positions[end] & ~mask) == key; ++end)
            positions[end] &= mask;
        if (end - start > 1)
            order_run(lanes, positions + start, end - start);
    }
}

} // namespace zeb::engine::kernels
