#include "arrays/engine/kernels/moments.hpp"

#include "arrays/engine/kernels/moment_loops.hpp"

#include <algorithm>
#include <bit>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/exact_moments.cpp"
#include <hwy/foreach_target.h>

#include "arrays/engine/kernels/group_lanes.hpp"

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
#if HWY_TARGET == HWY_SCALAR
// One lane has no pairs of narrower ones.
using plain::add_exact_moments;
#else

/// Squares are added in 32 bits, for so many bytes that these do not overflow: 2 * 2 * 255^2 to a lane.
void add_short_run(const std::uint8_t *bytes, std::size_t count, std::uint8_t flipped, Exact_Moments &moments)
{
    const hn::ScalableTag<std::uint8_t> d;
    const hn::Repartition<std::int16_t, decltype(d)> d16;
    const hn::Repartition<std::int32_t, decltype(d)> d32;
    const hn::Repartition<std::uint64_t, decltype(d)> d64;
    const auto flips = hn::Set(d, flipped);
    const auto low_byte = hn::Set(d16, 0xFF);
    auto sums = hn::Zero(d64);
    auto squares = hn::Zero(d32), more_squares = squares;
    for (std::size_t index = 0; index < count; index += hn::Lanes(d)) {
        fetch_ahead(bytes + index);
        const auto lane = hn::Xor(hn::LoadU(d, bytes + index), flips);
        sums = hn::Add(sums, hn::SumsOf8(lane));
        const auto pairs = hn::BitCast(d16, lane);
        const auto low = hn::And(pairs, low_byte);
        const auto high = hn::And(hn::ShiftRight<8>(pairs), low_byte);
        squares = hn::ReorderWidenMulAccumulate(d32, low, low, squares, more_squares);
        squares = hn::ReorderWidenMulAccumulate(d32, high, high, squares, more_squares);
    }
    moments.sum += total(d64, sums);
    moments.squares_low += total(d32, squares) + total(d32, more_squares);
}

void add_exact_moments(const std::uint8_t *bytes, std::size_t count, std::uint8_t flipped,
                       Exact_Moments &moments)
{
    const std::size_t length = hn::Lanes(hn::ScalableTag<std::uint8_t>());
    const std::size_t whole = count / length * length;
    for (std::size_t index = 0; index < whole; index += 4096 * length)
        add_short_run(bytes + index, std::min(whole - index, 4096 * length), flipped, moments);
    plain::add_exact_moments(bytes + whole, count - whole, flipped, moments);
}

void add_exact_moments(const std::uint32_t *lanes, std::size_t count, std::uint32_t flipped,
                       Exact_Moments &moments)
{
    const hn::ScalableTag<std::uint64_t> d;
    const hn::Repartition<std::uint32_t, decltype(d)> d32;
    const std::size_t length = 2 * hn::Lanes(d);
    // A vector's even lanes are the lower halves only there.
    const std::size_t whole = std::endian::native == std::endian::little ? count / length * length : 0;
    const auto flips = hn::Set(d32, flipped);
    const auto low_half = hn::Set(d, 0xFFFFFFFF);
    auto sums = hn::Zero(d), squares_low = sums, squares_high = sums;
    for (std::size_t index = 0; index < whole; index += length) {
        fetch_ahead(lanes + index);
        const auto pairs = hn::BitCast(d, hn::Xor(hn::LoadU(d32, lanes + index), flips));
        const auto even = hn::And(pairs, low_half), odd = hn::ShiftRight<32>(pairs);
        sums = hn::Add(sums, hn::Add(even, odd));
        const auto even_square = hn::MulEven(hn::BitCast(d32, even), hn::BitCast(d32, even));
        const auto odd_square = hn::MulEven(hn::BitCast(d32, odd), hn::BitCast(d32, odd));
        squares_low =
            hn::Add(squares_low, hn::Add(hn::And(even_square, low_half), hn::And(odd_square, low_half)));
        squares_high =
            hn::Add(squares_high, hn::Add(hn::ShiftRight<32>(even_square), hn::ShiftRight<32>(odd_square)));
    }
    moments.sum += total(d, sums);
    moments.squares_low += total(d, squares_low);
    moments.squares_high += total(d, squares_high);
    plain::add_exact_moments(lanes + whole, count - whole, flipped, moments);
}

#endif

template <class Lane>
constexpr Exact_Moment_Kernels<Lane> exact_moment_table{.add = add_exact_moments};

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
constexpr Exact_Moment_Kernels<Lane> exact_moment_table{.add = plain::add_exact_moments<Lane>};
#endif

template <class Lane>
const Exact_Moment_Kernels<Lane> &exact_moments() noexcept
{
    return ZEB_CHOSEN(exact_moment_table<Lane>);
}
template const Exact_Moment_Kernels<std::uint8_t> &exact_moments() noexcept;
template const Exact_Moment_Kernels<std::uint32_t> &exact_moments() noexcept;

} // namespace zeb::engine::kernels
#endif
