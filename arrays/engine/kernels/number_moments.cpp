#include "arrays/engine/kernels/moments.hpp"

#include "arrays/engine/kernels/moment_loops.hpp"

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/number_moments.cpp"
#include <hwy/foreach_target.h>

#include "arrays/engine/kernels/group_lanes.hpp"

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{

template <class D>
HWY_INLINE hn::Vec<D> load_doubles(D d, const double *lanes)
{
    return hn::LoadU(d, lanes);
}
template <class D>
HWY_INLINE hn::Vec<D> load_doubles(D d, const float *lanes)
{
    return hn::PromoteTo(d, hn::LoadU(hn::Rebind<float, D>(), lanes));
}

/// NaN adds zero, which changes no sum that began with 0.
template <class Lane>
void add_moments(const Lane *lanes, std::size_t count, double pivot, Number_Moments<Lane> &moments)
{
    using D = hn::ScalableTag<double>;
    const D d;
    Group<D, Lane> sums(d, moments.compensated.sums), lost(d, moments.compensated.lost),
        distances(d, moments.deviations.sums), squares(d, moments.deviations.squares);
    const auto middle = hn::Set(d, pivot);
    std::size_t numbers = 0;
    std::size_t index = 0;
    for (; index + group_length<Lane> <= count; index += group_length<Lane>) {
        fetch_ahead(lanes + index);
        for (std::size_t part = 0; part < Group<D, Lane>::parts; ++part) {
            const auto lane = load_doubles(d, lanes + index + part * hn::MaxLanes(d));
            const auto is_number = hn::Eq(lane, lane);
            numbers += hn::CountTrue(d, is_number);
            const auto distance = hn::IfThenElseZero(is_number, hn::Sub(lane, middle));
            distances[part] = hn::Add(distances[part], distance);
            squares[part] = hn::Add(squares[part], hn::Mul(distance, distance));
            if constexpr (std::is_same_v<Lane, double>) {
                const auto number = hn::IfThenElseZero(is_number, lane);
                const auto rounded = hn::Add(sums[part], number);
                const auto taken = hn::Sub(rounded, sums[part]);
                const auto rest = hn::Sub(sums[part], hn::Sub(rounded, taken));
                lost[part] = hn::Add(lost[part], hn::Add(rest, hn::Sub(number, taken)));
                sums[part] = rounded;
            }
        }
    }
    moments.number_count += numbers;
    sums.store(d, moments.compensated.sums);
    lost.store(d, moments.compensated.lost);
    distances.store(d, moments.deviations.sums);
    squares.store(d, moments.deviations.squares);
    plain::add_moments(lanes + index, count - index, pivot, moments);
}

template <class Lane>
constexpr Number_Moment_Kernels<Lane> number_moment_table{.add = add_moments<Lane>};

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
constexpr Number_Moment_Kernels<Lane> number_moment_table{.add = plain::add_moments<Lane>};
#endif

template <class Lane>
const Number_Moment_Kernels<Lane> &number_moments() noexcept
{
    return ZEB_CHOSEN(number_moment_table<Lane>);
}
template const Number_Moment_Kernels<float> &number_moments() noexcept;
template const Number_Moment_Kernels<double> &number_moments() noexcept;

} // namespace zeb::engine::kernels
#endif
