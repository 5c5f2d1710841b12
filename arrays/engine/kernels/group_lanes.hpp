/// Sums of numbers in vectors, compiled for each processor generation.
// Included many times on purpose: once for each generation.
#if defined(ZEB_GROUP_LANES) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEB_GROUP_LANES
#undef ZEB_GROUP_LANES
#else
#define ZEB_GROUP_LANES
#endif

#include "arrays/engine/kernels/moments.hpp"

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

/// Asks for what is read a little later, which may be past the end: there is much to do with each number, and
/// meanwhile the memory would rest.
HWY_INLINE void fetch_ahead(const void *lanes)
{
    constexpr std::uintptr_t bytes_ahead = 4096;
    __builtin_prefetch(reinterpret_cast<const void *>(reinterpret_cast<std::uintptr_t>(lanes) + bytes_ahead));
}

/// The sum of all lanes, integers of at most 64 bits.
template <class D>
HWY_INLINE std::uint64_t total(D d, hn::Vec<D> vector)
{
    HWY_ALIGN hn::TFromD<D> lanes[hn::MaxLanes(D())];
    hn::Store(vector, d, lanes);
    std::uint64_t sum = 0;
    for (const auto lane : lanes)
        sum += static_cast<std::uint64_t>(lane);
    return sum;
}

/// As many vectors as a group's sums fill.
template <class D, class Lane>
struct Group {
    static constexpr std::size_t parts = group_length<Lane> / hn::MaxLanes(D());

    HWY_INLINE Group(D d, const double *sums)
    {
        for (std::size_t part = 0; part < parts; ++part)
            vectors[part] = hn::LoadU(d, sums + part * hn::MaxLanes(d));
    }
    HWY_INLINE void store(D d, double *sums) const
    {
        for (std::size_t part = 0; part < parts; ++part)
            hn::StoreU(vectors[part], d, sums + part * hn::MaxLanes(d));
    }
    HWY_INLINE hn::Vec<D> &operator[](std::size_t part) { return vectors[part]; }

    hn::Vec<D> vectors[parts];
};

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();

#endif
