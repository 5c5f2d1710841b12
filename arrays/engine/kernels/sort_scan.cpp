#include "arrays/engine/kernels/sort_scan.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/sort_scan.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>
#endif

#ifndef ZEB_FLOAT_SCAN
#define ZEB_FLOAT_SCAN
namespace zeb::engine::kernels
{
namespace
{

/// What was seen in some lanes.
struct Float_Scan {
    bool not_a_number = false;
    bool positive_zero = false;
    bool negative_zero = false;
    bool infinite = false;

    template <class Lane>
    void look_at(const Lane *lanes, std::size_t count) noexcept
    {
        for (std::size_t index = 0; index < count; ++index) {
            const Lane lane = lanes[index];
            not_a_number |= lane != lane;
            positive_zero |= lane == 0 && !std::signbit(lane);
            negative_zero |= lane == 0 && std::signbit(lane);
            infinite |= std::isinf(lane);
        }
    }

    bool is_ambiguous() const noexcept { return not_a_number || (positive_zero && negative_zero); }
    Float_Order order() const noexcept
    {
        if (is_ambiguous())
            return Float_Order::Ambiguous;
        return infinite ? Float_Order::Infinite : Float_Order::Finite;
    }
};

} // namespace
} // namespace zeb::engine::kernels
#endif

#if ZEB_HAS_HIGHWAY
HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

/// Looks at blocks in vectors, and again at each lane of a block where something is not finite or zero.
template <class Lane>
Float_Order float_order(const Lane *lanes, std::size_t count)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    const auto zero = hn::Zero(d);
    const auto infinity = hn::Set(d, std::numeric_limits<Lane>::infinity());
    Float_Scan seen;
    std::size_t index = 0;
    const auto is_plain = [&](std::size_t at) HWY_ATTR {
        const auto size = hn::Abs(hn::LoadU(d, lanes + at));
        return hn::And(hn::Lt(zero, size), hn::Lt(size, infinity));
    };
    for (; index + 4 * N <= count; index += 4 * N) {
        const auto low = hn::And(is_plain(index), is_plain(index + N));
        const auto high = hn::And(is_plain(index + 2 * N), is_plain(index + 3 * N));
        if (HWY_LIKELY(hn::AllTrue(d, hn::And(low, high))))
            continue;
        seen.look_at(lanes + index, 4 * N);
        if (seen.is_ambiguous())
            break;
    }
    seen.look_at(lanes + index, count - index);
    return seen.order();
}

/// True when no lane comes after one that it should stand before; `Swapped` turns the order round.
template <bool Swapped, class Lane>
bool is_run(const Lane *lanes, std::size_t count)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    std::size_t index = 0;
    for (; index + N < count; index += N) {
        const auto earlier = hn::LoadU(d, lanes + index);
        const auto later = hn::LoadU(d, lanes + index + 1);
        if (!hn::AllFalse(d, Swapped ? hn::Lt(earlier, later) : hn::Lt(later, earlier)))
            return false;
    }
    for (; index + 1 < count; ++index)
        if (Swapped ? lanes[index] < lanes[index + 1] : lanes[index + 1] < lanes[index])
            return false;
    return true;
}

template <class Lane>
Run_Order run_order(const Lane *lanes, std::size_t count)
{
    if (is_run<false>(lanes, count))
        return Run_Order::Ascending;
    return is_run<true>(lanes, count) ? Run_Order::Descending : Run_Order::Mixed;
}

#define ZEB_LANE(Lane)                                                                                       \
    Run_Order run_order_##Lane(const Lane *lanes, std::size_t count) { return run_order(lanes, count); }
ZEB_LANE(uint32_t)
ZEB_LANE(int32_t)
ZEB_LANE(uint64_t)
ZEB_LANE(float)
ZEB_LANE(double)
#undef ZEB_LANE

Float_Order float_order_float(const float *lanes, std::size_t count) { return float_order(lanes, count); }
Float_Order float_order_double(const double *lanes, std::size_t count) { return float_order(lanes, count); }

bool has_vectors() { return HWY_TARGET != HWY_SCALAR && HWY_TARGET != HWY_EMU128; }

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();
#endif

#if !ZEB_HAS_HIGHWAY || HWY_ONCE
namespace zeb::engine::kernels
{

#if ZEB_HAS_HIGHWAY
HWY_EXPORT(float_order_float);
HWY_EXPORT(float_order_double);
HWY_EXPORT(has_vectors);

Float_Order float_order(const float *lanes, std::size_t count) noexcept
{
    return HWY_DYNAMIC_DISPATCH(float_order_float)(lanes, count);
}
Float_Order float_order(const double *lanes, std::size_t count) noexcept
{
    return HWY_DYNAMIC_DISPATCH(float_order_double)(lanes, count);
}
bool sorts_in_vectors() noexcept { return HWY_DYNAMIC_DISPATCH(has_vectors)(); }

#define ZEB_LANE(Lane)                                                                                       \
    HWY_EXPORT(run_order_##Lane);                                                                            \
    Run_Order run_order(const Lane *lanes, std::size_t count) noexcept                                       \
    {                                                                                                        \
        return HWY_DYNAMIC_DISPATCH(run_order_##Lane)(lanes, count);                                         \
    }
#else
template <class Lane>
static Float_Order scan(const Lane *lanes, std::size_t count) noexcept
{
    Float_Scan seen;
    seen.look_at(lanes, count);
    return seen.order();
}

Float_Order float_order(const float *lanes, std::size_t count) noexcept { return scan(lanes, count); }
Float_Order float_order(const double *lanes, std::size_t count) noexcept { return scan(lanes, count); }
bool sorts_in_vectors() noexcept { return false; }

#define ZEB_LANE(Lane)                                                                                       \
    Run_Order run_order(const Lane *lanes, std::size_t count) noexcept                                       \
    {                                                                                                        \
        if (std::is_sorted(lanes, lanes + count))                                                            \
            return Run_Order::Ascending;                                                                     \
        return std::is_sorted(lanes, lanes + count, std::greater<>()) ? Run_Order::Descending                \
                                                                      : Run_Order::Mixed;                    \
    }
#endif
ZEB_LANE(uint32_t)
ZEB_LANE(int32_t)
ZEB_LANE(uint64_t)
ZEB_LANE(float)
ZEB_LANE(double)
#undef ZEB_LANE

} // namespace zeb::engine::kernels
#endif
