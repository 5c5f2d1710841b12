#include "arrays/engine/kernels/extrema.hpp"

#include "arrays/engine/kernels/plain_loops.hpp"

#include <cstdint>
#include <type_traits>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/extrema.cpp"
#include <hwy/foreach_target.h>

#include "arrays/engine/kernels/best_lanes.hpp"

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{

/// Compiled for each target, which turns it into vector code too.
template <class Better, class Lane>
Lane foremost(const Lane *lanes, std::size_t count)
{
    Lane best = lanes[0];
    for (std::size_t i = 1; i < count; ++i)
        best = Better::precedes(lanes[i], best) ? lanes[i] : best;
    return best;
}

template <class Lane>
bool needs_plain_loop(const Lane *lanes, std::size_t count)
{
    return count < hn::Lanes(hn::ScalableTag<Lane>()) || lanes[0] != lanes[0];
}

template <class Better, class Lane>
Lane extreme(const Lane *lanes, std::size_t count)
{
    const hn::ScalableTag<Lane> d;
    if (needs_plain_loop(lanes, count))
        return foremost<Better>(lanes, count);
    Best<decltype(d), Better> best(d, lanes[0]);
    scan(d, lanes, count, best);
    return first_of_equals(lanes, count, best.result(d));
}

template <class Lane>
Lane_Extrema<Lane> both_extremes(const Lane *lanes, std::size_t count)
{
    const hn::ScalableTag<Lane> d;
    if (needs_plain_loop(lanes, count))
        return {foremost<Lower>(lanes, count), foremost<Upper>(lanes, count)};
    Best<decltype(d), Lower> lowest(d, lanes[0]);
    Best<decltype(d), Upper> highest(d, lanes[0]);
    scan(d, lanes, count, lowest, highest);
    return {first_of_equals(lanes, count, lowest.result(d)),
            first_of_equals(lanes, count, highest.result(d))};
}

template <class Lane>
constexpr Extrema_Kernels<Lane> extrema_table{.minimum = extreme<Lower, Lane>,
                                              .maximum = extreme<Upper, Lane>,
                                              .minimum_and_maximum = both_extremes<Lane>};

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
constexpr Extrema_Kernels<Lane> extrema_table{
    .minimum = ZEB_PLAIN(minimum),
    .maximum = ZEB_PLAIN(maximum),
    .minimum_and_maximum = [](const Lane *lanes, std::size_t count) {
        return Lane_Extrema<Lane>{plain::minimum(lanes, count), plain::maximum(lanes, count)};
    }};
#endif

template <class Lane>
const Extrema_Kernels<Lane> &extrema() noexcept
{
    return ZEB_CHOSEN(extrema_table<Lane>);
}
template const Extrema_Kernels<std::uint8_t> &extrema() noexcept;
template const Extrema_Kernels<std::int8_t> &extrema() noexcept;
template const Extrema_Kernels<std::uint32_t> &extrema() noexcept;
template const Extrema_Kernels<std::int32_t> &extrema() noexcept;
template const Extrema_Kernels<std::uint64_t> &extrema() noexcept;
template const Extrema_Kernels<std::int64_t> &extrema() noexcept;
template const Extrema_Kernels<float> &extrema() noexcept;
template const Extrema_Kernels<double> &extrema() noexcept;

} // namespace zeb::engine::kernels
#endif
