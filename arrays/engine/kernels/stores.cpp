#include "arrays/engine/kernels/stores.hpp"

#include "arrays/engine/kernels/plain_loops.hpp"

#include <algorithm>
#include <cstdint>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/stores.cpp"
#include <hwy/foreach_target.h>

#include "arrays/engine/kernels/vector_lanes.hpp"
#include <hwy/cache_control.h>

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

template <class Lane>
void fill(Lane *lanes, std::size_t count, Lane value)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    if (count < N || reinterpret_cast<std::uintptr_t>(lanes) % sizeof(Lane) != 0) {
        std::fill_n(lanes, count, value);
        return;
    }
    const auto values = hn::Set(d, value);
    hn::StoreU(values, d, lanes);
    std::size_t index = lanes_to_boundary(d, lanes);
    if (count * sizeof(Lane) > streaming_bytes) {
        for (; index + N <= count; index += N)
            hn::Stream(values, d, lanes + index);
        hwy::FlushStream();
    }
    for (; index + 4 * N <= count; index += 4 * N) {
        hn::Store(values, d, lanes + index);
        hn::Store(values, d, lanes + index + N);
        hn::Store(values, d, lanes + index + 2 * N);
        hn::Store(values, d, lanes + index + 3 * N);
    }
    for (; index + N <= count; index += N)
        hn::Store(values, d, lanes + index);
    hn::StoreU(values, d, lanes + count - N);
}

/// Reverses the lanes of one vector.
template <class D>
HWY_INLINE hn::Vec<D> reversed(D d, hn::Vec<D> vector)
{
    if constexpr (HWY_TARGET == HWY_SCALAR) {
        return vector;
    } else if constexpr (sizeof(hn::TFromD<D>) > 1) {
        return hn::Reverse(d, vector);
    } else {
        // Bytes turn within blocks of sixteen, then the blocks turn.
        HWY_ALIGN static constexpr std::uint8_t turned[16] = {15, 14, 13, 12, 11, 10, 9, 8,
                                                              7,  6,  5,  4,  3,  2,  1, 0};
        return hn::ReverseBlocks(d, hn::TableLookupBytes(vector, hn::LoadDup128(d, turned)));
    }
}

template <class Lane>
void reverse(Lane *lanes, std::size_t count)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    std::size_t front = 0;
    std::size_t back = count;
    const auto exchange = [&](std::size_t offset) HWY_ATTR {
        Lane *const low = lanes + front + offset;
        Lane *const high = lanes + back - offset - N;
        const auto lower = hn::LoadU(d, low);
        const auto upper = hn::LoadU(d, high);
        hn::StoreU(reversed(d, upper), d, low);
        hn::StoreU(reversed(d, lower), d, high);
    };
    for (; back - front >= 4 * N; front += 2 * N, back -= 2 * N) {
        exchange(0);
        exchange(N);
    }
    for (; back - front >= 2 * N; front += N, back -= N)
        exchange(0);
    std::reverse(lanes + front, lanes + back);
}

#if HWY_TARGET == HWY_AVX2
template <class Lane>
constexpr bool stores_under_mask = sizeof(Lane) >= 4;
#else
template <class Lane>
constexpr bool stores_under_mask = HWY_TARGET == HWY_AVX3 || HWY_TARGET == HWY_AVX3_DL;
#endif

/// How many bytes are tested, or changed, at a time.
template <class Lane>
constexpr std::size_t block_bytes = stores_under_mask<Lane> ? 1024 : 4096;

template <class D>
constexpr std::size_t block_lanes(D)
{
    return block_bytes<hn::TFromD<D>> / sizeof(hn::TFromD<D>);
}

template <class D, class Lane>
HWY_INLINE bool holds(D d, const Lane *lanes, hn::Vec<D> values)
{
    const std::size_t N = hn::Lanes(d);
    auto found = hn::Eq(hn::LoadU(d, lanes), values);
    for (std::size_t at = N; at < block_lanes(d); at += N)
        found = hn::Or(found, hn::Eq(hn::LoadU(d, lanes + at), values));
    return !hn::AllFalse(d, found);
}

/// Replaces in one block, by stores that do not touch the lanes outside their mask.
template <class D, class Lane>
HWY_INLINE std::size_t replace_under_mask(D d, Lane *lanes, hn::Vec<D> values, Lane replacement)
{
    const auto replacements = hn::Set(d, replacement);
    std::size_t replaced = 0;
    for (std::size_t at = 0; at < block_lanes(d); at += hn::Lanes(d)) {
        const auto found = hn::Eq(hn::LoadU(d, lanes + at), values);
        replaced += hn::CountTrue(d, found);
        hn::BlendedStore(replacements, found, d, lanes + at);
    }
    return replaced;
}

/// Replaces in one block, by first listing the matching positions. Appends `stride` entries per step and
/// keeps the matching ones; a branch per match would be mispredicted.
template <class D, class Lane>
HWY_INLINE std::size_t replace_by_list(D d, Lane *lanes, hn::Vec<D> values, Lane replacement)
{
    constexpr std::size_t stride = 3;
    constexpr std::size_t group = 64;
    constexpr std::size_t N = hn::MaxLanes(D());
    std::uint16_t positions[block_lanes(D()) + stride];
    std::size_t listed = 0;
    for (std::size_t at = 0; at < block_lanes(d); at += group) {
        std::uint64_t rest = 0;
        for (std::size_t lane = 0; lane < group; lane += N)
            rest |= bits_of(d, hn::Eq(hn::LoadU(d, lanes + at + lane), values)) << lane;
        const std::size_t end = listed + static_cast<std::size_t>(__builtin_popcountll(rest));
        const auto list_lowest = [&](std::size_t k) HWY_ATTR {
            const unsigned lane = static_cast<unsigned>(__builtin_ctzll(rest | 1ULL << 63));
            positions[listed + k] = static_cast<std::uint16_t>(at + lane);
            rest &= rest - 1;
        };
        do {
            list_lowest(0);
            list_lowest(1);
            list_lowest(2);
            listed += stride;
        } while (HWY_UNLIKELY(listed < end));
        listed = end;
    }
    std::size_t k = 0;
    for (; k + 4 <= listed; k += 4) {
        lanes[positions[k]] = replacement;
        lanes[positions[k + 1]] = replacement;
        lanes[positions[k + 2]] = replacement;
        lanes[positions[k + 3]] = replacement;
    }
    for (; k < listed; ++k)
        lanes[positions[k]] = replacement;
    return listed;
}

/// Blocks without a match are only read. After a block with matches, the next one is likely to have some too
/// and is not tested first.
template <class Lane>
std::size_t replace_equal(Lane *lanes, std::size_t count, Lane value, Lane replacement)
{
    const hn::ScalableTag<Lane> d;
    const auto values = hn::Set(d, value);
    std::size_t replaced = 0;
    std::size_t index = 0;
    bool likely = false;
    for (; index + block_lanes(d) <= count; index += block_lanes(d)) {
        if (!likely && !holds(d, lanes + index, values))
            continue;
        std::size_t here;
        if constexpr (stores_under_mask<Lane>)
            here = replace_under_mask(d, lanes + index, values, replacement);
        else
            here = replace_by_list(d, lanes + index, values, replacement);
        likely = here != 0;
        replaced += here;
    }
    return replaced + plain::replace_equal(lanes + index, count - index, value, replacement);
}

template <class Lane>
constexpr Store_Kernels<Lane> store_table{
    .fill = fill<Lane>, .reverse = reverse<Lane>, .replace_equal = replace_equal<Lane>};

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();
#endif

#if !ZEB_HAS_HIGHWAY || HWY_ONCE
#include "arrays/engine/kernels/vector_dispatch.hpp"

namespace zeb::engine::kernels
{

#if !ZEB_HAS_HIGHWAY
template <class Lane>
constexpr Store_Kernels<Lane> store_table{
    .fill = [](Lane *lanes, std::size_t count, Lane value) { std::fill_n(lanes, count, value); },
    .reverse = [](Lane *lanes, std::size_t count) { std::reverse(lanes, lanes + count); },
    .replace_equal = ZEB_PLAIN(replace_equal)};
#endif

template <class Lane>
const Store_Kernels<Lane> &stores() noexcept
{
    return ZEB_CHOSEN(store_table<Lane>);
}
template const Store_Kernels<std::uint8_t> &stores() noexcept;
template const Store_Kernels<std::uint32_t> &stores() noexcept;
template const Store_Kernels<std::uint64_t> &stores() noexcept;
template const Store_Kernels<float> &stores() noexcept;
template const Store_Kernels<double> &stores() noexcept;

} // namespace zeb::engine::kernels
#endif
