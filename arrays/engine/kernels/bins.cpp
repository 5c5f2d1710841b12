#include "arrays/engine/kernels/bins.hpp"

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/bins.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

void find_bins(const double *numbers, std::size_t count, const Bins &bins, double *counters)
{
    const hn::ScalableTag<double> d;
    const std::size_t N = hn::Lanes(d);
    const auto first = hn::Set(d, bins.first), last = hn::Set(d, bins.last),
               per_unit = hn::Set(d, bins.per_unit), last_bin = hn::Set(d, bins.last_bin),
               below = hn::Set(d, bins.last_bin + 1), above = hn::Set(d, bins.last_bin + 2),
               not_a_number = hn::Set(d, bins.last_bin + 3);
    std::size_t index = 0;
    for (; index + N <= count; index += N) {
        const auto number = hn::LoadU(d, numbers + index);
        const auto place = hn::Mul(hn::Sub(number, first), per_unit);
        const auto bin = hn::IfThenElse(hn::Lt(place, last_bin), place, last_bin);
        const auto counter = hn::IfThenElse(hn::Lt(last, number), above, bin);
        const auto other = hn::IfThenElse(hn::Eq(number, number), counter, not_a_number);
        hn::StoreU(hn::IfThenElse(hn::Lt(number, first), below, other), d, counters + index);
    }
    plain::find_bins(numbers + index, count - index, bins, counters + index);
}

constexpr Bin_Kernels bin_table{.find = find_bins};

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();
#endif

#if !ZEB_HAS_HIGHWAY || HWY_ONCE
#include "arrays/engine/kernels/vector_dispatch.hpp"

namespace zeb::engine::kernels
{

#if !ZEB_HAS_HIGHWAY
constexpr Bin_Kernels bin_table{.find = plain::find_bins};
#endif

const Bin_Kernels &bin_kernels() noexcept { return ZEB_CHOSEN(bin_table); }

} // namespace zeb::engine::kernels
#endif
