/// Small steps that the vector kernels share, made anew for each processor generation.
// Included many times on purpose: once for each generation.
#if defined(ZEB_VECTOR_LANES) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEB_VECTOR_LANES
#undef ZEB_VECTOR_LANES
#else
#define ZEB_VECTOR_LANES
#endif

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

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();

#endif
