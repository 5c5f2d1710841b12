#include "arrays/engine/kernels/sort.hpp"

#include "arrays/engine/kernels/counting_sort.hpp"
#include "arrays/engine/kernels/shell_columns.hpp"
#include "arrays/engine/kernels/shell_sort.hpp"
#include "arrays/engine/kernels/sort_scan.hpp"
#include "arrays/engine/scratch.hpp"

#include <algorithm>
#include <bit>
#include <limits>
#include <type_traits>

#if ZEB_HAS_HIGHWAY
#include <hwy/contrib/sort/vqsort.h>
#endif

namespace zeb::engine::kernels
{
namespace
{

/// Below these counts the plain Shell sort is the faster one.
constexpr std::size_t few_bytes = 64;
constexpr std::size_t few_lanes = 16;

/// Sorts keys of which equal ones cannot be told apart, so that any sort gives the one result. Infinities
/// may not be among them: the vector sort pads with the largest finite number.
template <class Key>
void sort_keys(Key *keys, std::size_t count) noexcept
{
#if ZEB_HAS_HIGHWAY
    if (sorts_in_vectors())
        return hwy::Sorter()(keys, count, hwy::SortAscending());
#endif
    std::sort(keys, keys + count);
}

/// Sorts numbers among which there are infinities: those go to both ends first.
template <class Lane>
void sort_with_infinities(Lane *lanes, std::size_t count) noexcept
{
    constexpr Lane infinity = std::numeric_limits<Lane>::infinity(); // 0 for integers, which never come here
    Lane *const first = std::partition(lanes, lanes + count, [](Lane lane) { return lane == -infinity; });
    Lane *const last = std::partition(first, lanes + count, [](Lane lane) { return lane != infinity; });
    sort_keys(first, static_cast<std::size_t>(last - first));
}

/// An unsigned key in the order of its lane, and the way back. Of zeros there is one sign only, and no
/// not-a-number.
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

bool counts_up_from_0(const std::uint32_t *indexes, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i)
        if (indexes[i] != i)
            return false;
    return true;
}

/// The indexes as they were, or the fact that they count up from 0: then a place is its own index.
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
    std::uint32_t at(std::uint64_t place) const noexcept
    {
        return plain ? static_cast<std::uint32_t>(place) : copy.get()[place];
    }

private:
    bool plain;
    Scratch<std::uint32_t> copy;
};

/// Sorts 32-bit lanes of which no two are equal, so that there is one permutation only: each key is packed
/// above its place. Answers false, nothing changed, when there are equal lanes or no memory.
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

template <class Lane>
Float_Order order_of(const Lane *lanes, std::size_t count) noexcept
{
    if constexpr (std::is_floating_point_v<Lane>)
        return float_order(lanes, count);
    return Float_Order::Finite;
}

/// Orders the places of numbers whose keys are alike in their upper bits by the numbers themselves.
void order_run(const double *lanes, std::uint64_t *places, std::size_t length) noexcept
{
    const auto before = [lanes](std::uint64_t left, std::uint64_t right) {
        return lanes[left] < lanes[right];
    };
    // Mostly such a run is one number again and again.
    if (!std::is_sorted(places, places + length, before))
        std::sort(places, places + length, before);
}

/// Packs the upper bits of each number's key, counted from the lowest key, above its place. Answers the
/// mask of the places.
std::uint64_t pack_upper_bits(const double *lanes, std::uint64_t *packed, std::size_t count) noexcept
{
    using Ordered = Ordered_Key<double>;
    std::uint64_t lowest = UINT64_MAX, highest = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint64_t key = Ordered::key_of(lanes[i]);
        lowest = std::min(lowest, key);
        highest = std::max(highest, key);
    }
    const std::uint64_t places = (std::uint64_t{1} << std::bit_width(count - 1)) - 1;
    const int shift = std::countl_zero((highest - lowest) | 1);
    for (std::size_t i = 0; i < count; ++i)
        packed[i] = ((Ordered::key_of(lanes[i]) - lowest) << shift & ~places) | i;
    return places;
}

/// Makes `places` the places of the numbers in ascending order. Half as much to sort as whole keys with
/// their places beside them.
void order_places(const double *lanes, std::uint64_t *places, std::size_t count) noexcept
{
    const std::uint64_t mask = pack_upper_bits(lanes, places, count);
    sort_keys(places, count);
    for (std::size_t start = 0, end; start < count; start = end) {
        const std::uint64_t key = places[start] & ~mask;
        for (end = start; end < count && (places[end] & ~mask) == key; ++end)
            places[end] &= mask;
        if (end - start > 1)
            order_run(lanes, places + start, end - start);
    }
}

/// Numbers each lane by its order, equal ones alike; `sorted` are the lanes in that order.
void rank(const double *sorted, const std::uint64_t *places, std::size_t count, std::uint32_t *ranks) noexcept
{
    std::uint32_t here = 0;
    for (std::size_t i = 0; i < count; ++i) {
        here += i > 0 && sorted[i - 1] != sorted[i];
        ranks[places[i]] = here;
    }
}

/// Sorts numbers, of one zero and without a not-a-number. Where some are equal, the Shell sort decides
/// about their indexes: it runs on their ranks, which are half as wide and compare alike. Answers false,
/// nothing changed, when there is no memory.
bool sort_numbers(double *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    const Scratch<std::uint64_t> places(count);
    const Scratch<double> sorted(count);
    const Scratch<std::uint32_t> ranks(count);
    const Indexes_Before before(indexes, count);
    if (places.get() == nullptr || sorted.get() == nullptr || ranks.get() == nullptr || !before.known())
        return false;
    order_places(lanes, places.get(), count);
    bool distinct = true;
    for (std::size_t i = 0; i < count; ++i) {
        sorted.get()[i] = lanes[places.get()[i]];
        distinct &= i == 0 || sorted.get()[i - 1] != sorted.get()[i];
    }
    if (distinct) {
        for (std::size_t i = 0; i < count; ++i)
            indexes[i] = before.at(places.get()[i]);
    } else {
        rank(sorted.get(), places.get(), count, ranks.get());
        shell_sort(ranks.get(), indexes, count);
    }
    std::copy_n(sorted.get(), count, lanes);
    return true;
}

template <class Lane>
bool sort_fast(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    if (order_of(lanes, count) == Float_Order::Ambiguous)
        return false;
    if constexpr (std::is_same_v<Lane, double>)
        return sort_numbers(lanes, indexes, count);
    else
        return sort_distinct(lanes, indexes, count);
}

/// Sorts with the indexes brought to the width of the lanes.
template <class Lane>
void shell_sort_with_wide_indexes(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    const Scratch<std::uint64_t> wide(count);
    if (wide.get() == nullptr)
        return shell::sort_lanes(lanes, indexes, count);
    std::copy_n(indexes, count, wide.get());
    shell_sort(lanes, wide.get(), count);
    std::transform(wide.get(), wide.get() + count, indexes,
                   [](std::uint64_t index) { return static_cast<std::uint32_t>(index); });
}

/// Sorts with the bytes brought to the width of the indexes.
template <class Byte>
void shell_sort_wide_bytes(Byte *bytes, std::uint32_t *indexes, std::size_t count) noexcept
{
    const Scratch<std::int32_t> wide(count);
    if (wide.get() == nullptr)
        return shell::sort_lanes(bytes, indexes, count);
    std::copy_n(bytes, count, wide.get());
    shell_sort(wide.get(), indexes, count);
    std::transform(wide.get(), wide.get() + count, bytes,
                   [](std::int32_t byte) { return static_cast<Byte>(byte); });
}

template <class Lane>
void sort_any(Lane *lanes, std::size_t count) noexcept
{
    if (count <= (sizeof(Lane) == 1 ? few_bytes : few_lanes))
        return shell::sort_lanes(lanes, shell::No_Companions(), count);
    if constexpr (sizeof(Lane) == 1) {
        counting_sort(reinterpret_cast<std::uint8_t *>(lanes), count, std::is_signed_v<Lane> ? 0x80 : 0);
    } else {
        const Float_Order order = order_of(lanes, count);
        if (order == Float_Order::Ambiguous)
            return shell_sort(lanes, count);
        const Run_Order run = run_order(lanes, count);
        if (run == Run_Order::Descending)
            return std::reverse(lanes, lanes + count);
        if (run == Run_Order::Mixed)
            order == Float_Order::Infinite ? sort_with_infinities(lanes, count) : sort_keys(lanes, count);
    }
}

template <class Lane>
void sort_any(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    if (count <= few_lanes)
        return shell::sort_lanes(lanes, indexes, count);
    if constexpr (sizeof(Lane) == 1) {
        shell_sort_wide_bytes(lanes, indexes, count);
    } else {
        if constexpr (!std::is_same_v<Lane, std::uint64_t>)
            if (sort_fast(lanes, indexes, count))
                return;
        if constexpr (sizeof(Lane) == 8)
            shell_sort_with_wide_indexes(lanes, indexes, count);
        else
            shell_sort(lanes, indexes, count);
    }
}

} // namespace

#define ZEB_LANE(Lane)                                                                                       \
    void sort(Lane *lanes, std::size_t count) noexcept { sort_any(lanes, count); }                           \
    void sort(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept                               \
    {                                                                                                        \
        sort_any(lanes, indexes, count);                                                                     \
    }
ZEB_LANE(std::uint8_t)
ZEB_LANE(std::int8_t)
ZEB_LANE(std::uint32_t)
ZEB_LANE(std::int32_t)
ZEB_LANE(std::uint64_t)
ZEB_LANE(float)
ZEB_LANE(double)
#undef ZEB_LANE

} // namespace zeb::engine::kernels
