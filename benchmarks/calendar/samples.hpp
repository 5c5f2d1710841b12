/// Seeded numbers and instants, too many for a branch predictor to learn.
#pragma once

#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

namespace zeb_bench
{

inline constexpr std::size_t sample_count = 20000;

template <class Make>
auto samples(Make make)
{
    std::mt19937_64 random(7);
    std::vector<decltype(make(random))> made;
    for (std::size_t i = 0; i < sample_count; ++i)
        made.push_back(make(random));
    return made;
}

inline double between(std::mt19937_64 &random, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

/// Random magnitude, full mantissa, in the range of fixed notation.
inline double fixed_range_number(std::mt19937_64 &random) { return std::pow(10.0, between(random, -4, 6)); }

/// Outside that range, on either side.
inline double outside_number(std::mt19937_64 &random)
{
    return std::pow(10.0, random() % 2 ? between(random, -44, -4) : between(random, 6, 46));
}

/// In the range of fixed notation, with at most four decimals.
inline double short_number(std::mt19937_64 &random)
{
    const double unit = std::pow(10.0, static_cast<double>(random() % 5));
    return std::floor(std::pow(10.0, between(random, 0, 6)) * unit) / unit;
}

/// Between 1875 and 2096.
inline double instant(std::mt19937_64 &random) { return between(random, -3e9, 4e9); }

/// Calls `work` with every sample and adds up what it answers.
template <class Sample, class Work>
auto for_each(const std::vector<Sample> &all, Work work)
{
    return [&all, work] {
        std::uint64_t sum = 0;
        for (const Sample &sample : all)
            sum += static_cast<std::uint64_t>(work(sample));
        return sum;
    };
}

} // namespace zeb_bench
