#include "arrays/engine/kernels/moments.hpp"

#include "arrays/engine/kernels/moment_loops.hpp"

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/wide_moments.cpp"
#include <hwy/foreach_target.h>

#include "arrays/engine/kernels/group_lanes.hpp"

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{

/// 2^52 as a double: in the place of its lower bits an integer is added to it.
constexpr std::uint64_t two_to_52 = 0x4330000000000000;

void add_wide_moments(const std::int64_t *lanes, std::size_t count, std::int64_t pivot, Wide_Moments &moments)
{
    using D = hn::ScalableTag<double>;
    using Sums = Group<D, std::int64_t>;
    const D d;
    const hn::RebindToUnsigned<D> d64;
    const hn::RebindToSigned<D> signed_64;
    Sums distances(d, moments.deviations.sums), squares(d, moments.deviations.squares);
    const auto top_bit = hn::Set(d64, std::uint64_t{1} << 63), low_half = hn::Set(d64, 0xFFFFFFFF),
               magic = hn::Set(d64, two_to_52);
    const auto pivot_high = hn::Set(d, 0x1p52 + static_cast<double>(plain::without_sign(pivot) >> 32)),
               pivot_low = hn::Set(d, 0x1p52 + static_cast<double>(plain::without_sign(pivot) & 0xFFFFFFFF)),
               unit_of_high = hn::Set(d, 0x1p32);
    auto highs = hn::Zero(d64), lows = highs;
    std::size_t index = 0;
    for (; index + group_length<std::int64_t> <= count; index += group_length<std::int64_t>) {
        fetch_ahead(lanes + index);
        for (std::size_t part = 0; part < Sums::parts; ++part) {
            const auto lane = hn::LoadU(signed_64, lanes + index + part * hn::MaxLanes(d));
            const auto unsigned_lane = hn::Xor(hn::BitCast(d64, lane), top_bit);
            const auto high = hn::ShiftRight<32>(unsigned_lane), low = hn::And(unsigned_lane, low_half);
            highs = hn::Add(highs, high);
            lows = hn::Add(lows, low);
            const auto high_distance = hn::Sub(hn::BitCast(d, hn::Or(high, magic)), pivot_high);
            const auto low_distance = hn::Sub(hn::BitCast(d, hn::Or(low, magic)), pivot_low);
            const auto distance = hn::Add(hn::Mul(high_distance, unit_of_high), low_distance);
            distances[part] = hn::Add(distances[part], distance);
            squares[part] = hn::Add(squares[part], hn::Mul(distance, distance));
        }
    }
    moments.high += total(d64, highs);
    moments.low += total(d64, lows);
    distances.store(d, moments.deviations.sums);
    squares.store(d, moments.deviations.squares);
    plain::add_wide_moments(lanes + index, count - index, pivot, moments);
}

constexpr Wide_Moment_Kernels wide_moment_table{.add = add_wide_moments};

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();
#endif

#if !ZEB_HAS_HIGHWAY || HWY_ONCE
#include "arrays/engine/kernels/vector_dispatch.hpp"

namespace zeb::engine::kernels
{

#if !ZEB_HAS_HIGHWAY
constexpr Wide_Moment_Kernels wide_moment_table{.add = plain::add_wide_moments};
#endif

const Wide_Moment_Kernels &wide_moments() noexcept { return ZEB_CHOSEN(wide_moment_table); }

} // namespace zeb::engine::kernels
#endif
