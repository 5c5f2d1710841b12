#include "arrays/engine/kernels/extrema.hpp"

#include "arrays/engine/kernels/search.hpp"

#include <type_traits>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/extrema.cpp"
#include <hwy/foreach_target.h>

#include "arrays/engine/kernels/vector_lanes.hpp"

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

/// The lower of both; `best` where either is not a number.
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

/// The upper of both; `best` where either is not a number.
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

template <class Better, class Lane>
Lane foremost(const Lane *lanes, std::size_t count)
{
    Lane best = lanes[0];
    for (std::size_t i = 1; i < count; ++i)
        best = Better::precedes(lanes[i], best) ? lanes[i] : best;
    return best;
}

template <class Better, class Lane>
Lane extreme(const Lane *lanes, std::size_t count)
{
    const hn::ScalableTag<Lane> d;
    if (count < hn::Lanes(d) || lanes[0] != lanes[0])
        return foremost<Better>(lanes, count);
    Best<decltype(d), Better> best(d, lanes[0]);
    scan(d, lanes, count, best);
    return best.result(d);
}

template <class Lane>
void both_extremes(const Lane *lanes, std::size_t count, Lane &low, Lane &high)
{
    const hn::ScalableTag<Lane> d;
    if (count < hn::Lanes(d) || lanes[0] != lanes[0]) {
        low = foremost<Lower>(lanes, count);
        high = foremost<Upper>(lanes, count);
        return;
    }
    Best<decltype(d), Lower> lowest(d, lanes[0]);
    Best<decltype(d), Upper> highest(d, lanes[0]);
    scan(d, lanes, count, lowest, highest);
    low = lowest.result(d);
    high = highest.result(d);
}

#define ZEB_LANE(Lane)                                                                                       \
    Lane minimum_##Lane(const Lane *lanes, std::size_t count) { return extreme<Lower>(lanes, count); }       \
    Lane maximum_##Lane(const Lane *lanes, std::size_t count) { return extreme<Upper>(lanes, count); }       \
    void both_##Lane(const Lane *lanes, std::size_t count, Lane &low, Lane &high)                            \
    {                                                                                                        \
        both_extremes(lanes, count, low, high);                                                              \
    }
ZEB_LANE(uint8_t)
ZEB_LANE(int8_t)
ZEB_LANE(uint32_t)
ZEB_LANE(int32_t)
ZEB_LANE(uint64_t)
ZEB_LANE(float)
ZEB_LANE(double)
#undef ZEB_LANE

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();
#endif

#if !ZEB_HAS_HIGHWAY || HWY_ONCE
namespace zeb::engine::kernels
{
namespace
{

#if ZEB_HAS_HIGHWAY
/// Vectors do not tell which of two equal zeros came first; a search does.
template <class Lane>
Lane first_of_equals(const Lane *lanes, std::size_t count, Lane best) noexcept
{
    if constexpr (std::is_floating_point_v<Lane>)
        if (best == 0)
            return lanes[first_equal(lanes, count, best)];
    return best;
}
#else
template <class Lane, class Precedes>
Lane foremost(const Lane *lanes, std::size_t count, Precedes precedes) noexcept
{
    Lane best = lanes[0];
    for (std::size_t i = 1; i < count; ++i)
        best = precedes(lanes[i], best) ? lanes[i] : best;
    return best;
}
#endif

} // namespace

#if ZEB_HAS_HIGHWAY
#define ZEB_LANE(Lane)                                                                                       \
    HWY_EXPORT(minimum_##Lane);                                                                              \
    HWY_EXPORT(maximum_##Lane);                                                                              \
    HWY_EXPORT(both_##Lane);                                                                                 \
    Lane minimum(const Lane *lanes, std::size_t count) noexcept                                              \
    {                                                                                                        \
        return first_of_equals(lanes, count, HWY_DYNAMIC_DISPATCH(minimum_##Lane)(lanes, count));            \
    }                                                                                                        \
    Lane maximum(const Lane *lanes, std::size_t count) noexcept                                              \
    {                                                                                                        \
        return first_of_equals(lanes, count, HWY_DYNAMIC_DISPATCH(maximum_##Lane)(lanes, count));            \
    }                                                                                                        \
    void minimum_and_maximum(const Lane *lanes, std::size_t count, Lane &low, Lane &high) noexcept           \
    {                                                                                                        \
        HWY_DYNAMIC_DISPATCH(both_##Lane)(lanes, count, low, high);                                          \
        low = first_of_equals(lanes, count, low);                                                            \
        high = first_of_equals(lanes, count, high);                                                          \
    }
#else
#define ZEB_LANE(Lane)                                                                                       \
    Lane minimum(const Lane *lanes, std::size_t count) noexcept                                              \
    {                                                                                                        \
        return foremost(lanes, count, [](Lane lane, Lane best) { return lane < best; });                     \
    }                                                                                                        \
    Lane maximum(const Lane *lanes, std::size_t count) noexcept                                              \
    {                                                                                                        \
        return foremost(lanes, count, [](Lane lane, Lane best) { return best < lane; });                     \
    }                                                                                                        \
    void minimum_and_maximum(const Lane *lanes, std::size_t count, Lane &low, Lane &high) noexcept           \
    {                                                                                                        \
        low = minimum(lanes, count);                                                                         \
        high = maximum(lanes, count);                                                                        \
    }
#endif
ZEB_LANE(uint8_t)
ZEB_LANE(int8_t)
ZEB_LANE(uint32_t)
ZEB_LANE(int32_t)
ZEB_LANE(uint64_t)
ZEB_LANE(float)
ZEB_LANE(double)
#undef ZEB_LANE

} // namespace zeb::engine::kernels
#endif
