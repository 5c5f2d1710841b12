#include "arrays/engine/kernels/decimation.hpp"

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/decimation.cpp"
#include <hwy/foreach_target.h>

#include "arrays/engine/kernels/best_lanes.hpp"

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{

plain::Number_Range number_range(const double *lanes, std::size_t count)
{
    const hn::ScalableTag<double> d;
    if (count < 2 * hn::Lanes(d))
        return plain::number_range(lanes, count);
    constexpr plain::Number_Range none;
    // A lane that is NaN leaves the best as it is, and the first best is no NaN.
    Best<decltype(d), Lower> lowest(d, none.low);
    Best<decltype(d), Upper> highest(d, none.high);
    scan(d, lanes, count, lowest, highest);
    return {first_of_equals(lanes, count, lowest.result(d)),
            first_of_equals(lanes, count, highest.result(d))};
}

constexpr Decimation_Kernels decimation_table{.number_range = number_range};

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();
#endif

#if !ZEB_HAS_HIGHWAY || HWY_ONCE
#include "arrays/engine/kernels/vector_dispatch.hpp"

namespace zeb::engine::kernels
{

#if !ZEB_HAS_HIGHWAY
constexpr Decimation_Kernels decimation_table{.number_range = plain::number_range};
#endif

const Decimation_Kernels &decimation() noexcept { return ZEB_CHOSEN(decimation_table); }

} // namespace zeb::engine::kernels
#endif
