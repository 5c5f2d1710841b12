/// Sum, mean and variance, quantiles and histograms. NaN is counted and otherwise left out.
#pragma once

#include <Korvane_ZEB_engine/elements.hpp>

#include <limits>

namespace zeb
{

/// The type of a sum: 64-bit integers of the elements' sign, double of floats and doubles.
template <Element Type>
using Sum_Of = std::conditional_t<std::is_floating_point_v<Type>, double,
                                  std::conditional_t<std::is_signed_v<Type>, std::int64_t, std::uint64_t>>;

template <Element Type>
struct Statistics {
    Sum_Of<Type> sum;       ///< exact of integers, compensated for rounding of floats and doubles
    double mean;            ///< NaN without numbers
    double variance;        ///< the mean of the squared distances from the mean; NaN without numbers
    double sample_variance; ///< their sum divided by one less than the count; NaN for less than two numbers
    std::size_t number_count;
    std::size_t nan_count;
    bool sum_is_cut; ///< the sum of 64-bit integers does not fit, and is the nearest number that does
};

/// The elements that a histogram has no bin for.
using Histogram_Rest = ZEB_Histogram_Rest;

namespace detail
{
template <Element Type>
Statistics<Type> statistics(std::span<const Type> values) noexcept;
template <Element Type>
bool quantiles(std::span<const Type> values, std::span<const double> fractions,
               std::span<double> results) noexcept;
template <Element Type>
bool histogram(std::span<const Type> values, double low, double high, std::span<std::uint32_t> bins,
               Histogram_Rest *rest) noexcept;
} // namespace detail

/// Returns the statistics after one pass. They are the same on every processor.
template <Elements Range>
Statistics<Element_Of<Range>> statistics(const Range &values) noexcept
{
    return detail::statistics(detail::constants_of(values));
}

/// Sets each result to the value at the fraction of the same index: of n numbers in ascending order, counted
/// from 0, that at fraction * (n - 1), between two of them on the straight line. 0.5 is the median. NaN for a
/// fraction outside of 0 to 1, and without numbers. Results may be the memory of the fractions and of the
/// elements. Returns false, with nothing changed, if there are not as many results as fractions or allocation
/// fails.
template <Elements Range>
bool quantiles(const Range &values, std::span<const double> fractions, std::span<double> results) noexcept
{
    return detail::quantiles(detail::constants_of(values), fractions, results);
}

/// Sets each bin, all of one width from `low` to `high`, to how many elements are in it: element x, as a
/// double, is in bin floor((x - low) * (bins / (high - low))), `high` in the last one; and `rest`, if it is
/// not null, to how many are in none. Returns false, with nothing changed, without bins, for bounds that are
/// not finite, not in order, too far apart or too close together, and if allocation fails.
template <Elements Range>
bool histogram(const Range &values, double low, double high, std::span<std::uint32_t> bins,
               Histogram_Rest *rest = nullptr) noexcept
{
    return detail::histogram(detail::constants_of(values), low, high, bins, rest);
}

} // namespace zeb
