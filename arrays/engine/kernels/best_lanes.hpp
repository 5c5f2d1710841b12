/// The lowest and the highest of lanes in vectors, compiled for each processor generation.
// Included many times on purpose: once for each generation.
#if defined(ZEB_BEST_LANES) == defined(HWY_TARGET_TOGGLE)
#ifdef ZEB_BEST_LANES
#undef ZEB_BEST_LANES
#else
#define ZEB_BEST_LANES
#endif

#include "arrays/engine/kernels/vector_lanes.hpp"

#include <type_traits>

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

/// The lower of both; `best` if either is NaN.
struct Lower {
    template <class V>
    HWY_INLINE V operator()(V lane, V best) const
    {
#if HWY_ARCH_X86
        return hn::Min(lane, best);
#else
        return hn::IfThenElse(hn::Lt(lane, best), lane, best);
#endif
    }
    template <class Lane>
    static bool precedes(Lane lane, Lane best)
    {
        return lane < best;
    }
};

/// The upper of both; `best` if either is NaN.
struct Upper {
    template <class V>
    HWY_INLINE V operator()(V lane, V best) const
    {
#if HWY_ARCH_X86
        return hn::Max(lane, best);
#else
        return hn::IfThenElse(hn::Lt(best, lane), lane, best);
#endif
    }
    template <class Lane>
    static bool precedes(Lane lane, Lane best)
    {
        return best < lane;
    }
};

/// The best so far, in four independent vectors.
template <class D, class Better>
struct Best {
    using V = hn::Vec<D>;
    using Lane = hn::TFromD<D>;

    HWY_INLINE Best(D d, Lane first) : a(hn::Set(d, first)), b(a), c(a), e(a) {}

    HWY_INLINE void add(V v0, V v1, V v2, V v3)
    {
        a = Better()(v0, a);
        b = Better()(v1, b);
        c = Better()(v2, c);
        e = Better()(v3, e);
    }
    HWY_INLINE void add(V v) { a = Better()(v, a); }

    Lane result(D d) const
    {
        HWY_ALIGN Lane lanes[HWY_MAX_BYTES / sizeof(Lane)];
        hn::Store(Better()(Better()(b, a), Better()(e, c)), d, lanes);
        Lane best = lanes[0];
        for (std::size_t i = 1; i < hn::Lanes(d); ++i)
            best = Better::precedes(lanes[i], best) ? lanes[i] : best;
        return best;
    }

    V a, b, c, e;
};

/// Feeds all lanes, some of them twice, to each of the bests.
template <class D, class Lane, class... Bests>
HWY_INLINE void scan(D d, const Lane *lanes, std::size_t count, Bests &...bests)
{
    const std::size_t N = hn::Lanes(d);
    (bests.add(hn::LoadU(d, lanes)), ...);
    std::size_t index = lanes_to_boundary(d, lanes);
    for (; index + 4 * N <= count; index += 4 * N) {
        const auto v0 = hn::LoadU(d, lanes + index);
        const auto v1 = hn::LoadU(d, lanes + index + N);
        const auto v2 = hn::LoadU(d, lanes + index + 2 * N);
        const auto v3 = hn::LoadU(d, lanes + index + 3 * N);
        (bests.add(v0, v1, v2, v3), ...);
    }
    for (; index + N <= count; index += N)
        (bests.add(hn::LoadU(d, lanes + index)), ...);
    (bests.add(hn::LoadU(d, lanes + count - N)), ...);
}

/// Vectors do not show which of two equal zeros came first; a search does.
template <class Lane>
Lane first_of_equals(const Lane *lanes, std::size_t count, Lane best)
{
    if constexpr (std::is_floating_point_v<Lane>)
        if (best == 0)
            return lanes[first_equal(lanes, count, best)];
    return best;
}

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();

#endif
