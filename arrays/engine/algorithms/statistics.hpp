/// Sum, mean and variance of numbers, read once. Variances are made of distances from a number in their
/// midst, a block at a time, and so keep their digits where numbers are large and close together.
#pragma once

#include "arrays/engine/kernels/moment_loops.hpp"
#include "arrays/engine/kernels/moments.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>
#include <type_traits>

namespace zeb::engine
{

template <class Element>
using Sum_Of = std::conditional_t<std::is_floating_point_v<Element>, double,
                                  std::conditional_t<std::is_signed_v<Element>, std::int64_t, std::uint64_t>>;

template <class Element>
struct Statistics {
    Sum_Of<Element> sum = 0;
    double mean = std::numeric_limits<double>::quiet_NaN();
    double variance = mean;        ///< the mean of the squared distances from the mean
    double sample_variance = mean; ///< their sum by one less than the count
    std::uint32_t number_count = 0;
    std::uint32_t nan_count = 0;
    bool sum_is_cut = false; ///< the nearest that there is: the sum does not fit
};

namespace statistics_detail
{

__extension__ using Wide = __int128;
__extension__ using Wide_Unsigned = unsigned __int128;

/// A part of the numbers: how many there are, their mean, and the sum of their squared distances from it.
struct Spread {
    double count = 0, mean = 0, squares = 0;

    void add(const Spread &other) noexcept
    {
        if (other.count == 0)
            return;
        const double all = count + other.count, distance = other.mean - mean;
        squares += other.squares + distance * distance * (count * other.count / all);
        mean += distance * (other.count / all);
        count = all;
    }
};

/// What is added up with its rounding errors.
struct Compensated_Sum {
    double sum = 0, lost = 0;

    void add(double number) noexcept { plain::add_compensated(sum, lost, number); }
    /// Where the sum is not finite, its errors are no numbers.
    double value() const noexcept { return std::isfinite(lost) ? sum + lost : sum; }
};

/// Few enough for the nearest cache: the first block is read twice.
inline constexpr std::size_t block_length = 4096;

template <std::size_t length>
double total(const double (&sums)[length]) noexcept
{
    double all = 0;
    for (const double sum : sums)
        all += sum;
    return all;
}

/// Takes the deviations of a block and leaves none.
template <class Lane>
Spread take_spread(kernels::Deviations<Lane> &deviations, double count, double pivot) noexcept
{
    const double sum = total(deviations.sums), squares = total(deviations.squares);
    deviations = {};
    if (count == 0)
        return {};
    return {count, pivot + sum / count, std::max(squares - sum * (sum / count), 0.0)};
}

/// Sets the variances that so many numbers have.
template <class Element>
void set_variances(Statistics<Element> &statistics, double squares) noexcept
{
    const double count = statistics.number_count;
    if (count > 0)
        statistics.variance = squares / count;
    if (count > 1)
        statistics.sample_variance = squares / (count - 1);
}

/// Floats or doubles, block by block.
template <class Lane>
class Number_Sums
{
public:
    void add(std::span<const Lane> block) noexcept
    {
        if (moments.number_count == 0)
            origin = pivot = middle_of(block);
        const std::uint64_t before = moments.number_count;
        kernels::number_moments<Lane>().add(block.data(), block.size(), pivot, moments);
        const double count = static_cast<double>(moments.number_count - before);
        if constexpr (!std::is_same_v<Lane, double>) {
            sum.add(pivot * count);
            sum.add(total(moments.deviations.sums));
        }
        const Spread part = take_spread(moments.deviations, count, pivot - origin);
        spread.add(part);
        pivot = as_pivot(origin + part.mean);
    }

    Statistics<Lane> result(std::size_t count) const noexcept
    {
        const double numbers = static_cast<double>(moments.number_count);
        Statistics<Lane> all{.sum = total_sum()};
        all.number_count = static_cast<std::uint32_t>(moments.number_count);
        all.nan_count = static_cast<std::uint32_t>(count - moments.number_count);
        all.mean = numbers > 0 ? all.sum / numbers : all.mean;
        set_variances(all, spread.squares);
        return all;
    }

private:
    double total_sum() const noexcept
    {
        Compensated_Sum all = sum;
        for (std::size_t i = 0; i < kernels::group_length<Lane>; ++i) {
            all.add(moments.compensated.sums[i]);
            all.lost += moments.compensated.lost[i];
        }
        return all.value();
    }

    static double middle_of(std::span<const Lane> block) noexcept
    {
        kernels::Number_Moments<Lane> trial;
        kernels::number_moments<Lane>().add(block.data(), block.size(), 0, trial);
        const double count = static_cast<double>(trial.number_count);
        return count > 0 ? as_pivot(total(trial.deviations.sums) / count) : 0;
    }

    /// With an element's own precision, so that products with the count of a block are exact.
    static double as_pivot(double mean) noexcept
    {
        const Lane near = static_cast<Lane>(mean);
        return std::isfinite(near) ? static_cast<double>(near) : 0;
    }

    kernels::Number_Moments<Lane> moments;
    double pivot = 0;
    double origin = 0; ///< what the means of the spread are counted from, to keep their digits
    Spread spread;
    Compensated_Sum sum; ///< of floats alone
};

/// 64-bit integers, block by block.
class Wide_Sums
{
public:
    void add(std::span<const std::int64_t> block) noexcept
    {
        if (spread.count == 0)
            origin = pivot = middle_of(block);
        const double count = static_cast<double>(block.size());
        kernels::Wide_Moments moments;
        kernels::wide_moments().add(block.data(), block.size(), pivot, moments);
        const Wide part = sum_of(moments, block.size());
        sum += part;
        spread.add(take_spread(moments.deviations, count, static_cast<double>(Wide(pivot) - origin)));
        pivot = static_cast<std::int64_t>(part / static_cast<Wide>(block.size()));
    }

    Statistics<std::int64_t> result(std::size_t count) const noexcept
    {
        using Limits = std::numeric_limits<std::int64_t>;
        Statistics<std::int64_t> all;
        all.number_count = static_cast<std::uint32_t>(count);
        all.sum = static_cast<std::int64_t>(std::clamp<Wide>(sum, Limits::min(), Limits::max()));
        all.sum_is_cut = all.sum != sum;
        if (count != 0)
            all.mean = static_cast<double>(sum) / static_cast<double>(count);
        set_variances(all, spread.squares);
        return all;
    }

private:
    static Wide sum_of(const kernels::Wide_Moments &moments, std::size_t count) noexcept
    {
        return (Wide(moments.high) << 32) + moments.low - (Wide(count) << 63);
    }

    static std::int64_t middle_of(std::span<const std::int64_t> block) noexcept
    {
        kernels::Wide_Moments trial;
        kernels::wide_moments().add(block.data(), block.size(), 0, trial);
        return static_cast<std::int64_t>(sum_of(trial, block.size()) / static_cast<Wide>(block.size()));
    }

    Wide sum = 0;
    std::int64_t pivot = 0;
    std::int64_t origin = 0; ///< as above
    Spread spread;
};

template <class Sums, class Element>
Statistics<Element> statistics_by(std::span<const Element> elements) noexcept
{
    Sums sums;
    for (std::size_t at = 0; at < elements.size(); at += block_length)
        sums.add(elements.subspan(at, std::min(block_length, elements.size() - at)));
    return sums.result(elements.size());
}

/// Integers of up to 32 bits: the sums of the numbers and of their squares are exact.
template <class Element>
Statistics<Element> exact_statistics(std::span<const Element> elements) noexcept
{
    using Unsigned = std::make_unsigned_t<Element>;
    constexpr auto least = static_cast<Unsigned>(std::numeric_limits<Element>::min()); // counts as 0 below
    kernels::Exact_Moments moments;
    kernels::exact_moments<Unsigned>().add(reinterpret_cast<const Unsigned *>(elements.data()),
                                           elements.size(), least, moments);
    const std::uint64_t count = elements.size();
    Statistics<Element> all;
    all.number_count = static_cast<std::uint32_t>(count);
    all.sum = static_cast<Sum_Of<Element>>(moments.sum - count * least);
    if (count == 0)
        return all;
    all.mean = static_cast<double>(all.sum) / static_cast<double>(count);
    const Wide_Unsigned squares = (Wide_Unsigned(moments.squares_high) << 32) + moments.squares_low;
    set_variances(all, static_cast<double>(squares * count - Wide_Unsigned(moments.sum) * moments.sum) /
                           static_cast<double>(count));
    return all;
}

} // namespace statistics_detail

/// The statistics of bytes, 32- and 64-bit integers, floats and doubles, read once.
template <class Element>
Statistics<Element> statistics(std::span<const Element> elements) noexcept
{
    using namespace statistics_detail;
    if constexpr (std::is_floating_point_v<Element>)
        return statistics_by<Number_Sums<Element>>(elements);
    else if constexpr (sizeof(Element) == 8)
        return statistics_by<Wide_Sums>(elements);
    else
        return exact_statistics(elements);
}

} // namespace zeb::engine
