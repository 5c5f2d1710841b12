#include "arrays/engine/kernels/removal.hpp"

#include "arrays/engine/kernels/packing_table.hpp"
#include "arrays/engine/kernels/plain_loops.hpp"

#include <cstdint>
#include <cstring>
#include <type_traits>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/removal.cpp"
#include <hwy/foreach_target.h>

#include "arrays/engine/kernels/vector_lanes.hpp"

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128
/// Emulated vectors are no faster than the plain loop.
template <class Lane>
std::size_t remove_equal(Lane *lanes, std::size_t count, Lane value)
{
    return plain::remove_equal(lanes, count, value);
}
#else
/// Whether one instruction packs lanes of this width. Wider lanes are packed as 32-bit words.
#if HWY_ARCH_X86
template <class Lane>
constexpr bool packs_directly = HWY_TARGET <= (sizeof(Lane) == 1 ? HWY_AVX3_DL : HWY_AVX3);
#else
template <class Lane>
constexpr bool packs_directly = false;
#endif

/// Bytes are packed by eight, mostly in vectors without a match: not too wide ones.
template <class Lane>
using Packed_Tag = std::conditional_t<sizeof(Lane) == 1 && !packs_directly<Lane>, hn::CappedTag<Lane, 32>,
                                      hn::ScalableTag<Lane>>;

template <class Lane>
using Packed_Unit = std::conditional_t<sizeof(Lane) == 1, std::uint8_t, std::uint32_t>;

/// Stores the bytes of a mask side by side, eight at a time by a table. The vector's first byte is `at` in
/// the mask; offsets are counted from the whole mask, so that no step waits for the one before.
template <class D>
HWY_INLINE void store_packed_bytes(D d, hn::Vec<D> bytes, std::uint64_t kept, std::size_t at,
                                   std::uint8_t *to)
{
    if constexpr (hn::MaxLanes(d) > 8) {
        const hn::Half<D> half;
        store_packed_bytes(half, hn::LowerHalf(half, bytes), kept, at, to);
        store_packed_bytes(half, hn::UpperHalf(half, bytes), kept, at + hn::Lanes(half), to);
    } else {
        const std::uint64_t before = kept & ((std::uint64_t{1} << at) - 1);
        const auto order = hn::LoadU(d, packed_bytes[kept >> at & 0xFF].data());
        hn::StoreU(hn::TableLookupBytes(bytes, order), d, to + __builtin_popcountll(before));
    }
}

/// Packs the words of a mask, at most eight, by the same table.
template <class D>
HWY_INLINE hn::Vec<D> packed_words(D d, hn::Vec<D> words, std::uint64_t kept)
{
    const hn::Rebind<std::uint8_t, D> bytes;
    const auto order = hn::PromoteTo(d, hn::LoadU(bytes, packed_bytes[kept].data()));
    return hn::TableLookupLanes(words, hn::IndicesFromVec(d, order));
}

/// Stores the lanes of a vector that are not equal to the values side by side; returns how many. Up to a
/// whole vector is written. The library's own packing by tables is slow: some compilers copy its tables each
/// time.
template <class D, class Lane>
HWY_INLINE std::size_t store_unequal(D d, const Lane *from, hn::Vec<D> values, Lane *to)
{
    const hn::Repartition<Packed_Unit<Lane>, D> units;
    const auto vector = hn::LoadU(d, from);
    const auto equal = hn::Eq(vector, values);
    const auto equal_units = hn::MaskFromVec(hn::BitCast(units, hn::VecFromMask(d, equal)));
    if constexpr (packs_directly<Lane>) {
        // Into a register first: packing into memory is slow on some processors.
        hn::StoreU(hn::BitCast(d, hn::Compress(hn::BitCast(units, vector), hn::Not(equal_units))), d, to);
        return hn::Lanes(d) - hn::CountTrue(d, equal);
    } else {
        const std::uint64_t all = (std::uint64_t{1} << hn::Lanes(units)) - 1;
        const std::uint64_t kept = bits_of(units, equal_units) ^ all;
        if constexpr (sizeof(Lane) > 1) {
            hn::StoreU(hn::BitCast(d, packed_words(units, hn::BitCast(units, vector), kept)), d, to);
        } else if (kept == all) {
            hn::StoreU(vector, d, to);
            return hn::Lanes(d); // known before the mask is counted
        } else {
            store_packed_bytes(d, vector, kept, 0, to);
        }
        return static_cast<std::size_t>(__builtin_popcountll(kept)) * hn::Lanes(d) / hn::Lanes(units);
    }
}

/// Packs whole vectors from index `from` up to `end`, to index `kept` and up; returns the new `kept`. The
/// lanes of one vector after that index are undefined.
template <class Lane>
std::size_t pack(Lane *lanes, std::size_t kept, std::size_t from, std::size_t end, Lane value)
{
    const Packed_Tag<Lane> d;
    const auto values = hn::Set(d, value);
    for (; from < end; from += hn::Lanes(d))
        kept += store_unequal(d, lanes + from, values, lanes + kept);
    return kept;
}

/// Copies the last lanes that stay, up to one vector of them, to the end of `tail`; returns the index of
/// the first lane tested and lowers `free` by how many were copied.
template <class Lane>
std::size_t copy_tail(const Lane *lanes, std::size_t begin, std::size_t end, Lane value, Lane *tail,
                      std::size_t &free)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    const auto values = hn::Set(d, value);
    while (end > begin && free > 0) {
        while (end - begin >= N && hn::AllTrue(d, hn::Eq(hn::LoadU(d, lanes + end - N), values)))
            end -= N;
        if (end == begin)
            break;
        if (!(lanes[--end] == value))
            tail[--free] = lanes[end];
    }
    return end;
}

/// Whole vectors are stored past what is kept, so the last lanes that stay are copied first, and put
/// where the last store ended: they cover what it overwrote.
template <class Lane>
std::size_t remove_equal(Lane *lanes, std::size_t count, Lane value)
{
    const Packed_Tag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    std::size_t kept = first_equal(lanes, count, value);
    if (count - kept < 2 * N)
        return kept + plain::remove_equal(lanes + kept, count - kept, value);
    Lane tail[hn::MaxLanes(d)];
    std::size_t free = N;
    std::size_t end = copy_tail(lanes, kept, count, value, tail, free);
    const std::size_t whole = kept + (end - kept) / N * N;
    // What does not fill a vector goes through a buffer of its own.
    Lane rest[hn::MaxLanes(d)];
    std::size_t in_rest = 0;
    for (std::size_t index = whole; index < end; ++index)
        if (!(lanes[index] == value))
            rest[in_rest++] = lanes[index];
    kept = pack(lanes, kept, kept, whole, value);
    std::memcpy(lanes + kept, rest, in_rest * sizeof(Lane));
    kept += in_rest;
    std::memcpy(lanes + kept, tail + free, (N - free) * sizeof(Lane));
    return kept + N - free;
}
#endif

template <class Lane>
constexpr Removal_Kernels<Lane> removal_table{.remove_equal = remove_equal<Lane>};

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
constexpr Removal_Kernels<Lane> removal_table{.remove_equal = ZEB_PLAIN(remove_equal)};
#endif

template <class Lane>
const Removal_Kernels<Lane> &removal() noexcept
{
    return ZEB_CHOSEN(removal_table<Lane>);
}
template const Removal_Kernels<std::uint8_t> &removal() noexcept;
template const Removal_Kernels<std::uint32_t> &removal() noexcept;
template const Removal_Kernels<std::uint64_t> &removal() noexcept;
template const Removal_Kernels<float> &removal() noexcept;
template const Removal_Kernels<double> &removal() noexcept;

} // namespace zeb::engine::kernels
#endif
