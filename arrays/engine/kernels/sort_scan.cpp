#include "arrays/engine/kernels/sort_scan.hpp"

#include "arrays/engine/kernels/float_scan.hpp"

#include <algorithm>
#include <functional>
#include <limits>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/sort_scan.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

/// Tests blocks in vectors, and each lane of a block where something is zero or not finite.
template <class Lane>
Float_Order order_of_floats(const Lane *lanes, std::size_t count)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    const auto zero = hn::Zero(d);
    const auto infinity = hn::Set(d, std::numeric_limits<Lane>::infinity());
    plain::Float_Scan seen;
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
        seen.add(lanes + index, 4 * N);
        if (seen.is_ambiguous())
            break;
    }
    seen.add(lanes + index, count - index);
    return seen.order();
}

template <class Lane>
Float_Order float_order(const Lane *lanes, std::size_t count)
{
    if constexpr (std::is_floating_point_v<Lane>)
        return order_of_floats(lanes, count);
    return Float_Order::Finite;
}

/// True if no lane comes after one that it should precede; `Swapped` reverses the order.
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

constexpr bool has_vectors = HWY_TARGET != HWY_SCALAR && HWY_TARGET != HWY_EMU128;

template <class Lane>
constexpr Scan_Kernels<Lane> scan_table{
    .float_order = float_order<Lane>, .run_order = run_order<Lane>, .sorts_in_vectors = has_vectors};

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
Run_Order run_order(const Lane *lanes, std::size_t count) noexcept
{
    if (std::is_sorted(lanes, lanes + count))
        return Run_Order::Ascending;
    return std::is_sorted(lanes, lanes + count, std::greater<>()) ? Run_Order::Descending : Run_Order::Mixed;
}

template <class Lane>
constexpr Scan_Kernels<Lane> scan_table{
    .float_order = ZEB_PLAIN(float_order), .run_order = run_order<Lane>, .sorts_in_vectors = false};
#endif

template <class Lane>
const Scan_Kernels<Lane> &scans() noexcept
{
    return ZEB_CHOSEN(scan_table<Lane>);
}
template const Scan_Kernels<std::uint32_t> &scans() noexcept;
template const Scan_Kernels<std::int32_t> &scans() noexcept;
template const Scan_Kernels<std::uint64_t> &scans() noexcept;
template const Scan_Kernels<std::int64_t> &scans() noexcept;
template const Scan_Kernels<float> &scans() noexcept;
template const Scan_Kernels<double> &scans() noexcept;

} // namespace zeb::engine::kernels
#endif
