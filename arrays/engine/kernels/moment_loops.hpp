/// The sums of moments.hpp in plain loops, with the same results bit for bit.
#pragma once

#include "arrays/engine/kernels/moments.hpp"

#include <type_traits>

namespace zeb::engine::plain
{

/// Adds a number to a sum, and what that rounds away to `lost`.
constexpr void add_compensated(double &sum, double &lost, double number) noexcept
{
    const double rounded = sum + number;
    const double taken = rounded - sum;
    lost += (sum - (rounded - taken)) + (number - taken);
    sum = rounded;
}

template <class Lane>
void add_deviation(kernels::Deviations<Lane> &deviations, std::size_t place, double distance) noexcept
{
    deviations.sums[place] += distance;
    deviations.squares[place] += distance * distance;
}

template <class Lane>
void add_moments(const Lane *lanes, std::size_t count, double pivot,
                 kernels::Number_Moments<Lane> &moments) noexcept
{
    constexpr std::size_t length = kernels::group_length<Lane>;
    for (std::size_t index = 0; index < count; ++index) {
        const double number = static_cast<double>(lanes[index]);
        if (number != number)
            continue;
        ++moments.number_count;
        add_deviation(moments.deviations, index % length, number - pivot);
        if constexpr (std::is_same_v<Lane, double>)
            add_compensated(moments.compensated.sums[index % length],
                            moments.compensated.lost[index % length], number);
    }
}

template <class Lane>
void add_exact_moments(const Lane *lanes, std::size_t count, Lane flipped,
                       kernels::Exact_Moments &moments) noexcept
{
    for (std::size_t index = 0; index < count; ++index) {
        const std::uint64_t number = static_cast<Lane>(lanes[index] ^ flipped);
        const std::uint64_t square = number * number;
        moments.sum += number;
        moments.squares_low += square & 0xFFFFFFFF;
        moments.squares_high += square >> 32;
    }
}

constexpr std::uint64_t without_sign(std::int64_t lane) noexcept
{
    return static_cast<std::uint64_t>(lane) ^ std::uint64_t{1} << 63;
}

/// The halves are told from the pivot's each for itself: such a distance is exact, and so both together are
/// rounded once.
inline void add_wide_moments(const std::int64_t *lanes, std::size_t count, std::int64_t pivot,
                             kernels::Wide_Moments &moments) noexcept
{
    constexpr std::size_t length = kernels::group_length<std::int64_t>;
    const auto high_of = [](std::int64_t lane) { return without_sign(lane) >> 32; };
    const auto low_of = [](std::int64_t lane) { return without_sign(lane) & 0xFFFFFFFF; };
    const auto pivot_high = static_cast<double>(high_of(pivot)),
               pivot_low = static_cast<double>(low_of(pivot));
    for (std::size_t index = 0; index < count; ++index) {
        const std::uint64_t high = high_of(lanes[index]), low = low_of(lanes[index]);
        moments.high += high;
        moments.low += low;
        add_deviation(moments.deviations, index % length,
                      (static_cast<double>(high) - pivot_high) * 0x1p32 +
                          (static_cast<double>(low) - pivot_low));
    }
}

} // namespace zeb::engine::plain
