#include "arrays/engine/sort_kernels.hpp"

#include "arrays/engine/counting_sort.hpp"
#include "arrays/engine/scratch.hpp"
#include "arrays/engine/shell_kernels.hpp"
#include "arrays/engine/shell_sort.hpp"
#include "arrays/engine/sort_scan_kernels.hpp"

#include <algorithm>
#include <bit>
#include <limits>
#include <type_traits>

#if ZEB_HAS_HIGHWAY
#include <hwy/contrib/sort/vqsort.h>
#endif

namespace zeb::kernels
{
namespace
{

/// Below these counts the plain Shell sort is the faster one.
constexpr std::size_t few_bytes = 64;
constexpr std::size_t few_lanes = 16;

#if ZEB_HAS_HIGHWAY
using Wide_Key = hwy::K64V64;
#else
struct Wide_Key {
    std::uint64_t value;
    std::uint64_t key;
};
#endif

/// The order of keys that a standard sort is given.
struct Key_Less {
    template <class Key>
    bool operator()(const Key &left, const Key &right) const noexcept
    {
        return left < right;
    }
    bool operator()(const Wide_Key &left, const Wide_Key &right) const noexcept
    {
        return left.key < right.key;
    }
};

/// Sorts keys of which equal ones cannot be told apart, so that any sort gives the one result. Infinities
/// may not be among them: the vector sort pads with the largest finite number.
template <class Key>
void sort_keys(Key *keys, std::size_t count) noexcept
{
#if ZEB_HAS_HIGHWAY
    if (sorts_in_vectors())
        return hwy::Sorter()(keys, count, hwy::SortAscending());
#endif
    std::sort(keys, keys + count, Key_Less());
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

/// A key with the place it came from, in one number that sorts by the key first.
template <class Key>
struct Placed_Key;
template <>
struct Placed_Key<std::uint32_t> {
    using Packed = std::uint64_t;
    static Packed pack(std::uint32_t key, std::size_t place) noexcept { return Packed{key} << 32 | place; }
    static std::uint32_t key(Packed packed) noexcept { return static_cast<std::uint32_t>(packed >> 32); }
    static std::size_t place(Packed packed) noexcept { return packed & 0xFFFFFFFF; }
};
/// The vector sort pads with the largest key, and would mix up a real one; no double has it.
template <>
struct Placed_Key<std::uint64_t> {
    using Packed = Wide_Key;
    static Packed pack(std::uint64_t key, std::size_t place) noexcept
    {
        Packed packed;
        packed.value = place;
        packed.key = key;
        return packed;
    }
    static std::uint64_t key(const Packed &packed) noexcept { return packed.key; }
    static std::size_t place(const Packed &packed) noexcept { return packed.value; }
};

bool counts_up_from_0(const std::uint32_t *indexes, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i)
        if (indexes[i] != i)
            return false;
    return true;
}

template <class Placed, class Packed>
bool all_distinct(const Packed *packed, std::size_t count) noexcept
{
    bool distinct = true;
    for (std::size_t i = 1; i < count; ++i)
        distinct &= Placed::key(packed[i - 1]) != Placed::key(packed[i]);
    return distinct;
}

/// Sorts where no two lanes are equal, so that there is one permutation only. Answers false, nothing
/// changed, when there are equal lanes or no memory.
template <class Lane>
bool sort_distinct(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    using Ordered = Ordered_Key<Lane>;
    using Placed = Placed_Key<typename Ordered::Key>;
    const bool plain_indexes = counts_up_from_0(indexes, count);
    const Scratch<typename Placed::Packed> packed(count);
    const Scratch<std::uint32_t> before(plain_indexes ? 0 : count);
    if (packed.get() == nullptr || (before.get() == nullptr && !plain_indexes))
        return false;
    for (std::size_t i = 0; i < count; ++i)
        packed.get()[i] = Placed::pack(Ordered::key_of(lanes[i]), i);
    sort_keys(packed.get(), count);
    if (!all_distinct<Placed>(packed.get(), count))
        return false;
    if (!plain_indexes)
        std::copy_n(indexes, count, before.get());
    for (std::size_t i = 0; i < count; ++i) {
        lanes[i] = Ordered::lane_of(Placed::key(packed.get()[i]));
        const std::size_t place = Placed::place(packed.get()[i]);
        indexes[i] = plain_indexes ? static_cast<std::uint32_t>(place) : before.get()[place];
    }
    return true;
}

template <class Lane>
Float_Order order_of(const Lane *lanes, std::size_t count) noexcept
{
    if constexpr (std::is_floating_point_v<Lane>)
        return float_order(lanes, count);
    return Float_Order::Finite;
}

/// What a try to sort lanes as distinct ones came to.
enum class Distinct : std::uint8_t { Sorted, Has_Equals, Undecided };

/// Runs of numbers that are alike in their upper bits are ordered singly up to this length.
constexpr std::size_t longest_run = 16;

/// Orders the places of a few numbers by the numbers. Answers false when two are equal.
bool order_run(const double *lanes, std::uint64_t *packed, std::size_t length, std::uint64_t places) noexcept
{
    for (std::size_t start = 1; start < length; ++start) {
        const std::uint64_t moved = packed[start];
        const double lane = lanes[moved & places];
        std::size_t at = start;
        for (; at > 0 && lane < lanes[packed[at - 1] & places]; --at)
            packed[at] = packed[at - 1];
        packed[at] = moved;
        if (at > 0 && lane == lanes[packed[at - 1] & places])
            return false;
    }
    return true;
}

/// Packs the upper bits of each number's key, counted from the lowest key, above its place. Answers the
/// mask of the places, or 0 when all numbers are equal.
std::uint64_t pack_upper_bits(const double *lanes, std::uint64_t *packed, std::size_t count) noexcept
{
    using Ordered = Ordered_Key<double>;
    std::uint64_t lowest = UINT64_MAX, highest = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint64_t key = Ordered::key_of(lanes[i]);
        lowest = std::min(lowest, key);
        highest = std::max(highest, key);
    }
    if (lowest == highest)
        return 0;
    const std::uint64_t places = (std::uint64_t{1} << std::bit_width(count - 1)) - 1;
    const int shift = std::countl_zero(highest - lowest);
    for (std::size_t i = 0; i < count; ++i)
        packed[i] = ((Ordered::key_of(lanes[i]) - lowest) << shift & ~places) | i;
    return places;
}

/// Makes `packed` the places of the numbers in ascending order. Half as much to sort as whole keys with
/// their places beside them.
Distinct order_places(const double *lanes, std::uint64_t *packed, std::size_t count) noexcept
{
    const std::uint64_t places = pack_upper_bits(lanes, packed, count);
    if (places == 0)
        return Distinct::Has_Equals;
    sort_keys(packed, count);
    for (std::size_t start = 0, end; start < count; start = end) {
        end = start + 1;
        while (end < count && ((packed[start] ^ packed[end]) & ~places) == 0)
            ++end;
        if (end - start > longest_run)
            return Distinct::Undecided;
        if (end - start > 1 && !order_run(lanes, packed + start, end - start, places))
            return Distinct::Has_Equals;
    }
    for (std::size_t i = 0; i < count; ++i)
        packed[i] &= places;
    return Distinct::Sorted;
}

/// Sorts numbers of which no two are equal. Nothing is changed unless it answers that they are sorted.
Distinct sort_distinct_numbers(double *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    const bool plain_indexes = counts_up_from_0(indexes, count);
    const Scratch<std::uint64_t> packed(count);
    const Scratch<double> copy(count);
    const Scratch<std::uint32_t> before(plain_indexes ? 0 : count);
    if (packed.get() == nullptr || copy.get() == nullptr || (before.get() == nullptr && !plain_indexes))
        return Distinct::Has_Equals;
    const Distinct outcome = order_places(lanes, packed.get(), count);
    if (outcome != Distinct::Sorted)
        return outcome;
    std::copy_n(lanes, count, copy.get());
    if (!plain_indexes)
        std::copy_n(indexes, count, before.get());
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint64_t place = packed.get()[i];
        lanes[i] = copy.get()[place];
        indexes[i] = plain_indexes ? static_cast<std::uint32_t>(place) : before.get()[place];
    }
    return outcome;
}

template <class Lane>
bool sorts_as_distinct(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept
{
    if (order_of(lanes, count) == Float_Order::Ambiguous)
        return false;
    if constexpr (std::is_same_v<Lane, double>) {
        const Distinct outcome = sort_distinct_numbers(lanes, indexes, count);
        return outcome == Distinct::Sorted || (outcome == Distinct::Undecided && sort_distinct(lanes, indexes, count));
    } else {
        return sort_distinct(lanes, indexes, count);
    }
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
            if (sorts_as_distinct(lanes, indexes, count))
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

} // namespace zeb::kernels
