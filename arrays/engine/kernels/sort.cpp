#include "arrays/engine/kernels/sort.hpp"

#include "arrays/engine/kernels/counting_sort.hpp"
#include "arrays/engine/kernels/shell_columns.hpp"
#include "arrays/engine/kernels/shell_sort.hpp"
#include "arrays/engine/kernels/sort_scan.hpp"
#include "arrays/engine/kernels/sorted_positions.hpp"
#include "arrays/engine/scratch.hpp"

#include <algorithm>
#include <limits>
#include <type_traits>

namespace zeb::engine::kernels
{
namespace
{

/// Up to these counts the plain Shell sort is faster.
constexpr std::size_t few_bytes = 64;
constexpr std::size_t few_lanes = 16;

/// Sorts numbers that include infinities: those are moved to both ends first.
template <class Lane>
void sort_with_infinities(Lane *lanes, std::size_t count) noexcept
{
    constexpr Lane infinity = std::numeric_limits<Lane>::infinity(); // 0 for integers, which never come here
    Lane *const first = std::partition(lanes, lanes + count, [](Lane lane) { return lane == -infinity; });
    Lane *const last = std::partition(first, lanes + count, [](Lane lane) { return lane != infinity; });
    sort_keys(first, static_cast<std::size_t>(last - first));
}

/// Sorts 32-bit lanes of which no two are equal, so that there is one permutation only: each key is packed
/// above its position. Returns false, nothing changed, if lanes are equal or allocation fails.
template <class Lane>
bool sort_distinct(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    using Ordered = Ordered_Key<Lane>;
    const Scratch<std::uint64_t> packed(count);
    const Indexes_Before before(indexes, count);
    if (packed.get() == nullptr || !before.known())
        return false;
    for (std::size_t i = 0; i < count; ++i)
        packed.get()[i] = std::uint64_t{Ordered::key_of(lanes[i])} << 32 | i;
    sort_keys(packed.get(), count);
    bool distinct = true;
    for (std::size_t i = 1; i < count; ++i)
        distinct &= packed.get()[i - 1] >> 32 != packed.get()[i] >> 32;
    for (std::size_t i = 0; distinct && i < count; ++i) {
        lanes[i] = Ordered::lane_of(static_cast<std::uint32_t>(packed.get()[i] >> 32));
        indexes[i] = before.at(packed.get()[i] & 0xFFFFFFFF);
    }
    return distinct;
}

/// Numbers each lane by its order, equal ones the same; `sorted` holds the lanes in that order.
template <class Lane>
void rank(const Lane *sorted, const std::uint64_t *positions, std::size_t count,
          std::uint32_t *ranks) noexcept
{
    std::uint32_t here = 0;
    for (std::size_t i = 0; i < count; ++i) {
        here += i > 0 && sorted[i - 1] != sorted[i];
        ranks[positions[i]] = here;
    }
}

/// Sorts 64-bit lanes, numbers with zeros of one sign and without NaN. If some are equal, the Shell sort
/// determines their indexes: it runs on their ranks, which are half as wide and compare the same. Returns
/// false, nothing changed, if allocation fails.
template <class Lane>
bool sort_wide(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    const Scratch<std::uint64_t> positions(count);
    const Scratch<Lane> sorted(count);
    const Scratch<std::uint32_t> ranks(count);
    const Indexes_Before before(indexes, count);
    if (positions.get() == nullptr || sorted.get() == nullptr || ranks.get() == nullptr || !before.known())
        return false;
    order_positions(lanes, positions.get(), count);
    bool distinct = true;
    for (std::size_t i = 0; i < count; ++i) {
        sorted.get()[i] = lanes[positions.get()[i]];
        distinct &= i == 0 || sorted.get()[i - 1] != sorted.get()[i];
    }
    if (distinct) {
        for (std::size_t i = 0; i < count; ++i)
            indexes[i] = before.at(positions.get()[i]);
    } else {
        rank(sorted.get(), positions.get(), count, ranks.get());
        columns<std::uint32_t>().sort_pairs(ranks.get(), indexes, count);
    }
    std::copy_n(sorted.get(), count, lanes);
    return true;
}

template <class Lane>
bool sort_fast(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    if (scans<Lane>().float_order(lanes, count) == Float_Order::Ambiguous)
        return false;
    if constexpr (sizeof(Lane) == 8)
        return sort_wide(lanes, indexes, count);
    else
        return sort_distinct(lanes, indexes, count);
}

/// Sorts by columns, with the indexes widened to the lanes.
template <class Lane>
void sort_with_widened_indexes(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    const Scratch<std::uint64_t> wide(count);
    if (wide.get() == nullptr)
        return shell::sort_lanes(lanes, indexes, count);
    std::copy_n(indexes, count, wide.get());
    columns<Lane>().sort_pairs(lanes, wide.get(), count);
    std::transform(wide.get(), wide.get() + count, indexes,
                   [](std::uint64_t index) { return static_cast<std::uint32_t>(index); });
}

/// Sorts by columns, with the bytes widened to the indexes.
template <class Byte>
void sort_widened_bytes(Byte *bytes, std::uint32_t *indexes, std::size_t count) noexcept
{
    const Scratch<std::int32_t> wide(count);
    if (wide.get() == nullptr)
        return shell::sort_lanes(bytes, indexes, count);
    std::copy_n(bytes, count, wide.get());
    columns<std::int32_t>().sort_pairs(wide.get(), indexes, count);
    std::transform(wide.get(), wide.get() + count, bytes,
                   [](std::int32_t byte) { return static_cast<Byte>(byte); });
}

} // namespace

template <class Lane>
void sort(Lane *lanes, std::size_t count) noexcept
{
    if (count <= (sizeof(Lane) == 1 ? few_bytes : few_lanes))
        return shell::sort_lanes(lanes, shell::No_Companions(), count);
    if constexpr (sizeof(Lane) == 1) {
        counting_sort(reinterpret_cast<std::uint8_t *>(lanes), count, std::is_signed_v<Lane> ? 0x80 : 0);
    } else {
        const Float_Order order = scans<Lane>().float_order(lanes, count);
        if (order == Float_Order::Ambiguous)
            return columns<Lane>().sort(lanes, count);
        const Run_Order run = scans<Lane>().run_order(lanes, count);
        if (run == Run_Order::Descending)
            return std::reverse(lanes, lanes + count);
        if (run == Run_Order::Mixed)
            order == Float_Order::Infinite ? sort_with_infinities(lanes, count) : sort_keys(lanes, count);
    }
}

template <class Lane>
void sort(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    if (count <= few_lanes)
        return shell::sort_lanes(lanes, indexes, count);
    if constexpr (sizeof(Lane) == 1) {
        sort_widened_bytes(lanes, indexes, count);
    } else {
        if (sort_fast(lanes, indexes, count))
            return;
        if constexpr (sizeof(Lane) == 8)
            sort_with_widened_indexes(lanes, indexes, count);
        else
            columns<Lane>().sort_pairs(lanes, indexes, count);
    }
}

#define ZEB_LANE(Lane)                                                                                       \
    template void sort(Lane *, std::size_t) noexcept;                                                        \
    template void sort(Lane *, std::uint32_t *, std::size_t) noexcept;
ZEB_LANE(std::uint8_t)
ZEB_LANE(std::int8_t)
ZEB_LANE(std::uint32_t)
ZEB_LANE(std::int32_t)
ZEB_LANE(std::uint64_t)
ZEB_LANE(std::int64_t)
ZEB_LANE(float)
ZEB_LANE(double)
#undef ZEB_LANE

} // namespace zeb::engine::kernels
