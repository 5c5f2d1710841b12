/// Small steps that the vector kernels share, compiled for each processor generation.
// Included many times on purpose: once for each generation.
#if defined(ZEB_VECTOR_LANES) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEB_VECTOR_LANES
#undef ZEB_VECTOR_LANES
#else
#define ZEB_VECTOR_LANES
#endif

#include "arrays/engine/kernels/plain_loops.hpp"

#include <hwy/highway.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

/// Lanes from the pointer to the next vector boundary: 1 to a whole vector.
template <class D, class Lane>
HWY_INLINE std::size_t lanes_to_boundary(D d, const Lane *lanes)
{
    const std::size_t bytes = hn::Lanes(d) * sizeof(Lane);
    return (bytes - reinterpret_cast<std::uintptr_t>(lanes) % bytes) / sizeof(Lane);
}

/// Lanes that are true, one bit each from the lowest.
template <class D, class Mask>
HWY_INLINE std::uint64_t bits_of(D d, Mask mask)
{
    constexpr std::size_t length = (hn::MaxLanes(D()) + 7) / 8;
    static_assert(length <= 8, "one bit for each lane has to fit");
    HWY_ALIGN std::uint8_t bits[16];
    hn::StoreMaskBits(d, mask, bits);
    std::uint64_t lanes = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&lanes, bits, length);
    } else {
        for (std::size_t byte = 0; byte < length; ++byte)
            lanes |= std::uint64_t{bits[byte]} << 8 * byte;
    }
    return lanes;
}

template <class D, class Lane>
HWY_INLINE auto matches(D d, const Lane *lanes, hn::Vec<D> wanted)
{
    return hn::Eq(hn::LoadU(d, lanes), wanted);
}

/// Index of the first match in four vectors, of which one is known to hold it.
template <class D, class Lane>
std::size_t first_of_four(D d, const Lane *lanes, hn::Vec<D> wanted)
{
    for (std::size_t index = 0;; index += hn::Lanes(d)) {
        const auto found = matches(d, lanes + index, wanted);
        if (!hn::AllFalse(d, found))
            return index + hn::FindKnownFirstTrue(d, found);
    }
}

template <class Lane>
std::size_t first_equal(const Lane *lanes, std::size_t count, Lane value)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    if (count < N)
        return plain::first_equal(lanes, count, value);
    const auto wanted = hn::Set(d, value);
    const auto head = matches(d, lanes, wanted);
    if (!hn::AllFalse(d, head))
        return hn::FindKnownFirstTrue(d, head);
    std::size_t index = lanes_to_boundary(d, lanes);
    for (; index + 4 * N <= count; index += 4 * N) {
        const auto a = matches(d, lanes + index, wanted);
        const auto b = matches(d, lanes + index + N, wanted);
        const auto c = matches(d, lanes + index + 2 * N, wanted);
        const auto e = matches(d, lanes + index + 3 * N, wanted);
        if (!hn::AllFalse(d, hn::Or(hn::Or(a, b), hn::Or(c, e))))
            return index + first_of_four(d, lanes + index, wanted);
    }
    for (; index < count; index += N) {
        // The last vector may overlap lanes that are known not to match.
        const std::size_t start = index + N <= count ? index : count - N;
        const auto found = matches(d, lanes + start, wanted);
        if (!hn::AllFalse(d, found))
            return start + hn::FindKnownFirstTrue(d, found);
    }
    return count;
}

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();

#endif
