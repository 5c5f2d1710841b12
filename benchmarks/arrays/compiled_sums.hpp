/// Plain loops that the compiler may turn into vectors, and whose additions it may reorder: built with -O3
/// -ffast-math for processors with AVX2. They know no NaN.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb_bench::compiled
{

template <class Sum>
struct Sums {
    Sum sum = 0;
    double squares = 0;
};

/// Sums of numbers and of their squares; integers are added as 64-bit integers.
template <class Sum, class Element>
Sums<Sum> sums(const Element *elements, std::size_t count);

/// Counts the elements in each bin; those outside of the bounds are in none.
void count_in_bins(const double *elements, std::size_t count, double low, double high, std::uint32_t *bins,
                   std::size_t bin_count);

} // namespace zeb_bench::compiled
