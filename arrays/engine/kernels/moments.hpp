/// Sums of numbers and of their squares, in vectors. Each function adds to what is there.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

/// Numbers are added in groups of 64 bytes, each number of a group to a sum of its own: the order of
/// additions, and so their rounding, is the same on every processor. Each call begins with the first sum.
template <class Lane>
inline constexpr std::size_t group_length = 64 / sizeof(Lane);

/// Sums of distances from a pivot, and of their squares.
template <class Lane>
struct Deviations {
    double sums[group_length<Lane>]{};
    double squares[group_length<Lane>]{};
};

/// Sums and what rounding took from them.
template <class Lane>
struct Compensated_Sums {
    double sums[group_length<Lane>]{};
    double lost[group_length<Lane>]{};
};

/// NaN is left out.
template <class Lane>
struct Number_Moments {
    Deviations<Lane> deviations{};
    Compensated_Sums<Lane> compensated{}; ///< of double alone
    std::uint64_t number_count = 0;
};

template <class Lane>
struct Number_Moment_Kernels {
    void (*add)(const Lane *lanes, std::size_t count, double pivot, Number_Moments<Lane> &moments);
};

/// The kernels for the processor in use; for float and double.
template <class Lane>
const Number_Moment_Kernels<Lane> &number_moments() noexcept;

/// Of up to 2^32 - 1 lanes; the sum of squares is high * 2^32 + low.
struct Exact_Moments {
    std::uint64_t sum = 0;
    std::uint64_t squares_low = 0;
    std::uint64_t squares_high = 0;
};

template <class Lane>
struct Exact_Moment_Kernels {
    /// Adds lanes whose bits of `flipped` are flipped first.
    void (*add)(const Lane *lanes, std::size_t count, Lane flipped, Exact_Moments &moments);
};

/// The kernels for the processor in use; for unsigned integers of 8 and 32 bits.
template <class Lane>
const Exact_Moment_Kernels<Lane> &exact_moments() noexcept;

/// Of signed lanes whose top bit is flipped, so that they are unsigned and in the same order: the sums of
/// their upper and lower halves.
struct Wide_Moments {
    std::uint64_t high = 0;
    std::uint64_t low = 0;
    Deviations<std::int64_t> deviations{};
};

struct Wide_Moment_Kernels {
    void (*add)(const std::int64_t *lanes, std::size_t count, std::int64_t pivot, Wide_Moments &moments);
};

/// The kernel for the processor in use.
const Wide_Moment_Kernels &wide_moments() noexcept;

} // namespace zeb::engine::kernels
