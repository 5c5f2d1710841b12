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
    void put(std::uint64_t position, Lane &lane, std::uint32_t &index) const noexcept
    {
        lane = lanes.get()[position];
        index = indexes.at(position);
    }

private:
    Scratch<Lane> lanes;
    Indexes_Before indexes;
};

/// Sorts the positions of 32-bit lanes beneath their keys.
template <class Lane>
bool order_totally(const Lane *lanes, std::uint64_t *positions, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i)
        positions[i] = std::uint64_t{total_key(lanes[i])} << 32 | i;
    sort_keys(positions, count);
    for (std::size_t i = 0; i < count; ++i)
        positions[i] &= 0xFFFFFFFF;
    return true;
}

/// Sorts the positions of 64-bit lanes by their keys, which need room of their own.
template <class Lane>
requires(sizeof(Lane) == 8) bool order_totally(const Lane *lanes, std::uint64_t *positions,
                                               std::size_t count) noexcept
{
    const Scratch<std::uint64_t> keys(count);
    if (keys.get() == nullptr)
        return false;
    std::transform(lanes, lanes + count, keys.get(), [](Lane lane) { return total_key(lane); });
    order_positions(keys.get(), positions, count);
    return true;
}

/// Sorts the positions of bytes by counting.
template <class Lane>
requires(sizeof(Lane) == 1) bool order_totally(const Lane *lanes, std::uint64_t *positions,
                                               std::size_t count) noexcept
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
        positions[starts[key_of(lanes[i])]++] = i;
    return true;
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
    const Scratch<std::uint64_t> positions(count);
    const Before<Lane> before(lanes, indexes, count);
    if (positions.get() == nullptr || !before.is_known() || !order_totally(lanes, positions.get(), count))
        return false;
    for (std::size_t i = 0; i < count; ++i)
        before.put(positions.get()[i], lanes[i], indexes[i]);
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
