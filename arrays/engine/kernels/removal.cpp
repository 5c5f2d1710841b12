#include "arrays/engine/kernels/removal.hpp"

#include "arrays/engine/kernels/packing_table.hpp"
#include "arrays/engine/kernels/plain_loops.hpp"
#include "arrays/engine/kernels/search.hpp"

#include <cstdint>
#include <cstring>

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
/// Stores the lanes of a mask side by side; returns how many. Up to a whole vector is written.
template <class D, class Lane>
HWY_INLINE std::size_t store_packed(D d, hn::Vec<D> vector, hn::Mask<D> kept, Lane *to)
{
    // Packed in a register: packing into memory is slow on some processors.
    hn::StoreU(hn::Compress(vector, kept), d, to);
    return hn::CountTrue(d, kept);
}

/// The same for bytes, of which eight at a time are packed through a table.
template <class D>
HWY_INLINE std::size_t store_packed_bytes(D d, const std::uint8_t *from, hn::Mask<D> kept, std::uint8_t *to)
{
    const hn::Full64<std::uint8_t> eight;
    const std::uint64_t bits = bits_of(d, kept);
    for (std::size_t at = 0; at < hn::Lanes(d); at += 8) {
        // Each offset is counted from the whole mask, so that no step waits for the one before.
        const std::uint64_t below = bits & ((std::uint64_t{1} << at) - 1);
        const auto order = hn::LoadU(eight, packed_bytes[bits >> at & 0xFF].data());
        hn::StoreU(hn::TableLookupBytes(hn::LoadU(eight, from + at), order), eight,
                   to + __builtin_popcountll(below));
    }
    return static_cast<std::size_t>(__builtin_popcountll(bits));
}

/// Packs whole vectors from index `from` up to `end`, to index `kept` and up; returns the new `kept`. The
/// lanes of one vector after that index are undefined.
template <class Lane>
std::size_t pack(Lane *lanes, std::size_t kept, std::size_t from, std::size_t end, Lane value)
{
    const hn::ScalableTag<Lane> d;
    const auto values = hn::Set(d, value);
    for (; from < end; from += hn::Lanes(d)) {
        const auto vector = hn::LoadU(d, lanes + from);
        const auto equal = hn::Eq(vector, values);
        if constexpr (sizeof(Lane) > 1) {
            kept += store_packed(d, vector, hn::Not(equal), lanes + kept);
        } else if (hn::AllFalse(d, equal)) {
            hn::StoreU(vector, d, lanes + kept);
            kept += hn::Lanes(d);
        } else {
            kept += store_packed_bytes(d, lanes + from, hn::Not(equal), lanes + kept);
        }
    }
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
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    std::size_t kept = search<Lane>().first_equal(lanes, count, value);
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
constexpr Removal_Kernels<Lane> removal_table{remove_equal<Lane>};

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
constexpr Removal_Kernels<Lane> removal_table{ZEB_PLAIN(remove_equal)};
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
