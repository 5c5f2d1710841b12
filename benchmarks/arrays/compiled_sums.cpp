#include "benchmarks/arrays/compiled_sums.hpp"

#include <algorithm>

namespace zeb_bench::compiled
{

template <class Sum, class Element>
Sums<Sum> sums(const Element *elements, std::size_t count)
{
    Sums<Sum> all;
    for (std::size_t i = 0; i < count; ++i) {
        const auto number = static_cast<double>(elements[i]);
        all.sum += static_cast<Sum>(elements[i]);
        all.squares += number * number;
    }
    return all;
}
template Sums<std::uint64_t> sums(const std::uint8_t *, std::size_t);
template Sums<std::int64_t> sums(const std::int32_t *, std::size_t);
template Sums<std::uint64_t> sums(const std::uint32_t *, std::size_t);
template Sums<std::int64_t> sums(const std::int64_t *, std::size_t);
template Sums<double> sums(const float *, std::size_t);
template Sums<double> sums(const double *, std::size_t);

void count_in_bins(const double *elements, std::size_t count, double low, double high, std::uint32_t *bins,
                   std::size_t bin_count)
{
    const double scale = static_cast<double>(bin_count) / (high - low);
    for (std::size_t i = 0; i < count; ++i)
        if (elements[i] >= low && elements[i] <= high)
            ++bins[std::min(static_cast<std::size_t>((elements[i] - low) * scale), bin_count - 1)];
}

} // namespace zeb_bench::compiled
