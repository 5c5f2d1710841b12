/// Chooses three positions of a search pattern whose elements are rare in the text, so that comparing those
/// first rejects most candidates.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace zeb::engine
{

/// Three indexes into a pattern.
struct Probe_Positions {
    std::size_t first, second, third;
};

/// The choice while nothing is known of the text.
constexpr Probe_Positions ends_and_middle(std::size_t length) noexcept { return {0, length / 2, length - 1}; }

/// Sampling a text costs as much as testing about a thousand of its positions. It pays once this many
/// positions were tested without success and as many are left.
inline constexpr std::size_t positions_before_sampling = 65536;

namespace probe_detail
{

/// Elements are distinguished by their low byte.
template <class Lane>
std::uint8_t low_byte(Lane lane) noexcept
{
    if constexpr (std::is_integral_v<Lane>)
        return static_cast<std::uint8_t>(lane);
    else
        return 0;
}

/// How often each low byte occurs in a few short runs spread over the text.
template <class Lane>
std::array<std::uint16_t, 256> count_sample(const Lane *text, std::size_t count) noexcept
{
    constexpr std::size_t run_count = 16, run_length = 64;
    std::array<std::uint16_t, 256> seen{};
    for (std::size_t run = 0; run < run_count; ++run) {
        const Lane *const start = text + run * (count / run_count);
        for (std::size_t i = 0; i < run_length; ++i)
            ++seen[low_byte(start[i])];
    }
    return seen;
}

} // namespace probe_detail

/// The three elements of the pattern, among its first few hundred, that are rarest in a sample of the text.
template <class Lane>
Probe_Positions rarest_positions(const Lane *text, std::size_t count, const Lane *pattern,
                                 std::size_t length) noexcept
{
    constexpr std::size_t most_positions = 256;
    const std::array<std::uint16_t, 256> seen = probe_detail::count_sample(text, count);
    const auto frequency = [&](std::size_t position) {
        return seen[probe_detail::low_byte(pattern[position])];
    };
    Probe_Positions rarest = ends_and_middle(length);
    for (std::size_t position = 1; position < length - 1 && position < most_positions; ++position) {
        if (position == length / 2)
            continue;
        // Replaces the most frequent of the three.
        std::size_t *commonest = &rarest.first;
        for (std::size_t *other : {&rarest.second, &rarest.third})
            commonest = frequency(*other) > frequency(*commonest) ? other : commonest;
        if (frequency(position) < frequency(*commonest))
            *commonest = position;
    }
    return rarest;
}

} // namespace zeb::engine
