/// Which elements of a pattern tell best that a place in a text is none of its occurrences.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace zeb::engine
{

/// Three indexes into a pattern.
struct Telling_Places {
    std::size_t first, second, third;
};

/// What there is to choose where nothing is known of the text.
constexpr Telling_Places ends_and_middle(std::size_t length) noexcept { return {0, length / 2, length - 1}; }

/// Sampling a text takes as long as looking at some thousand places of it: it is worth that in a text where
/// this many places were in vain and as many are left.
inline constexpr std::size_t places_before_sampling = 65536;

namespace telling_detail
{

/// Elements are told apart by their low byte.
template <class Lane>
std::uint8_t low_byte(Lane lane) noexcept
{
    if constexpr (std::is_integral_v<Lane>)
        return static_cast<std::uint8_t>(lane);
    else
        return 0;
}

/// How often each low byte stands in a few runs of the text, spread over all of it.
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

} // namespace telling_detail

/// The three elements of the pattern, among its first few hundred, that are rarest in a sample of the text.
template <class Lane>
Telling_Places rarest_places(const Lane *text, std::size_t count, const Lane *pattern,
                             std::size_t length) noexcept
{
    constexpr std::size_t most_places = 256;
    const std::array<std::uint16_t, 256> seen = telling_detail::count_sample(text, count);
    const auto frequency = [&](std::size_t place) { return seen[telling_detail::low_byte(pattern[place])]; };
    Telling_Places rarest = ends_and_middle(length);
    for (std::size_t place = 1; place < length - 1 && place < most_places; ++place) {
        if (place == length / 2)
            continue;
        // The place that tells least gives way.
        std::size_t *least = &rarest.first;
        for (std::size_t *other : {&rarest.second, &rarest.third})
            least = frequency(*other) > frequency(*least) ? other : least;
        if (frequency(place) < frequency(*least))
            *least = place;
    }
    return rarest;
}

} // namespace zeb::engine
