#include "arrays/engine/kernels/total_order.hpp"

#include "arrays/engine/kernels/sort.hpp"
#include "arrays/engine/kernels/sort_scan.hpp"
#include "arrays/engine/kernels/sorted_positions.hpp"

#include <array>
#include <limits>
#include <utility>

namespace zeb::engine::kernels
{
namespace
{

template <class Lane>
using Signed_Key = std::conditional_t<sizeof(Lane) == 4, std::int32_t, std::int64_t>;

/// Turns the bits of numbers into signed integers in their order, and these into the bits again.
template <class Key>
void flip_negative(Key *keys, std::size_t count) noexcept
{
    constexpr Key magnitude = std::numeric_limits<Key>::max();
    for (std::size_t i = 0; i < count; ++i)
        keys[i] ^= keys[i] < 0 ? magnitude : 0;
}

/// Moves NaN behind the numbers, in its order, which the numbers lose. Returns their count.
template <class Lane>
std::size_t put_nan_last(Lane *lanes, std::size_t count) noexcept
{
    std::size_t end = count;
    for (std::size_t i = count; i-- > 0;)
        if (lanes[i] != lanes[i])
            std::swap(lanes[i], lanes[--end]);
    return end;
}

/// NaN above all numbers, and all NaN the same.
template <class Lane>
auto total_key(Lane lane) noexcept
{
    using Ordered = Ordered_Key<Lane>;
    using Key = typename Ordered::Key;
    return lane == lane ? Ordered::key_of(lane) : std::numeric_limits<Key>::max();
}

/// The lanes and indexes before they were sorted.
template <class Lane>
class Before
{
public:
    Before(const Lane *all, const std::uint32_t *marks, std::size_t count) noexcept
        : lanes(count), indexes(marks, count)
    {
        if (lanes.get() != nullptr)
            std::copy_n(all, count, lanes.get());
    }
    bool is_known() const noexcept { return lanes.get() != nullptr && indexes.known(); }
    Lane lane_at(std::uint64_t position) const noexcept { return lanes.get()[position]; }
    std::uint32_t index_at(std::uint64_t position) const noexcept { return indexes.at(position); }

private:
    Scratch<Lane> lanes;
    Indexes_Before indexes;
};

/// Lanes and indexes while they are sorted, by positions packed beneath keys.
template <class Lane>
struct Sorting {
    Lane *lanes;
    std::uint32_t *indexes;
    std::uint64_t *packed;
    std::uint64_t mask; ///< of the positions
    const Before<Lane> &before;

    void put(std::size_t from, std::size_t to) const noexcept
    {
        for (std::size_t i = from; i < to; ++i) {
            lanes[i] = before.lane_at(packed[i] & mask);
            indexes[i] = before.index_at(packed[i] & mask);
        }
    }

    /// Puts in order what the upper bits of the keys leave in disorder: mostly nothing.
    void settle(std::size_t count) const noexcept
    {
        const auto is_of_run = [this](std::size_t i, std::size_t run) {
            return ((packed[i] ^ packed[run]) & ~mask) == 0;
        };
        for (std::size_t i = 1; i < count; ++i) {
            if (total_key(lanes[i - 1]) <= total_key(lanes[i])) [[likely]]
                continue;
            std::size_t first = i - 1, last = i + 1;
            while (first > 0 && is_of_run(first - 1, i))
                --first;
            while (last < count && is_of_run(last, i))
                ++last;
            std::sort(packed + first, packed + last, [this](std::uint64_t left, std::uint64_t right) {
                const auto left_key = total_key(before.lane_at(left & mask)),
                           right_key = total_key(before.lane_at(right & mask));
                return left_key < right_key || (left_key == right_key && left < right);
            });
            put(first, last);
            i = last - 1;
        }
    }
};

/// Sorts the positions of 32-bit lanes beneath their keys. Each of these answers the mask of the positions.
template <class Lane>
std::uint64_t sort_packed(const Lane *lanes, std::uint64_t *packed, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i)
        packed[i] = std::uint64_t{total_key(lanes[i])} << 32 | i;
    sort_keys(packed, count);
    return 0xFFFFFFFF;
}

/// Sorts those of 64-bit lanes beneath the upper bits of their keys.
template <class Lane>
requires(sizeof(Lane) == 8) std::uint64_t
    sort_packed(const Lane *lanes, std::uint64_t *packed, std::size_t count)
noexcept
{
    const std::uint64_t mask = pack_upper_bits(lanes, packed, count, total_key<Lane>);
    sort_keys(packed, count);
    return mask;
}

/// Sorts those of bytes by counting.
template <class Lane>
requires(sizeof(Lane) == 1) std::uint64_t
    sort_packed(const Lane *lanes, std::uint64_t *packed, std::size_t count)
noexcept
{
    const auto key_of = [](Lane lane) {
        return static_cast<std::uint8_t>(lane ^ std::numeric_limits<Lane>::min());
    };
    std::array<std::size_t, 257> starts{};
    for (std::size_t i = 0; i < count; ++i)
        ++starts[key_of(lanes[i]) + 1u];
    for (std::size_t key = 1; key < 256; ++key)
        starts[key] += starts[key - 1];
    for (std::size_t i = 0; i < count; ++i)
        packed[starts[key_of(lanes[i])]++] = i;
    return UINT64_MAX;
}

} // namespace

template <class Lane>
void sort_totally(Lane *lanes, std::size_t count) noexcept
{
    if constexpr (std::is_floating_point_v<Lane>) {
        if (count > 1 && scans<Lane>().float_order(lanes, count) == Float_Order::Ambiguous) {
            auto *const keys = reinterpret_cast<Signed_Key<Lane> *>(lanes);
            const std::size_t numbers = put_nan_last(lanes, count);
            flip_negative(keys, numbers);
            sort(keys, numbers);
            return flip_negative(keys, numbers);
        }
    }
    sort(lanes, count);
}

template <class Lane>
bool sort_totally(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    if (count < 2)
        return true;
    const Scratch<std::uint64_t> packed(count);
    const Before<Lane> before(lanes, indexes, count);
    if (packed.get() == nullptr || !before.is_known())
        return false;
    const std::uint64_t mask = sort_packed(lanes, packed.get(), count);
    const Sorting<Lane> sorting{lanes, indexes, packed.get(), mask, before};
    sorting.put(0, count);
    if constexpr (sizeof(Lane) == 8)
        sorting.settle(count);
    return true;
}

#define ZEB_LANE(Lane)                                                                                       \
    template void sort_totally(Lane *, std::size_t) noexcept;                                                \
    template bool sort_totally(Lane *, std::uint32_t *, std::size_t) noexcept;
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
