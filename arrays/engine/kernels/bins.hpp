/// Which of equal parts numbers lie in, in vectors.
#pragma once

#include <cstddef>

namespace zeb::engine::kernels
{

/// Parts of equal width side by side.
struct Bins {
    double first, last;
    double per_unit;
    double last_bin;

    /// The part of a number, with a fraction; the one after the last if it is below, the second after if it
    /// is above, the third if it is NaN.
    double counter_of(double number) const noexcept
    {
        const double place = (number - first) * per_unit;
        const double bin = place < last_bin ? place : last_bin;
        const double counter = number > last ? last_bin + 2 : bin;
        return number < first ? last_bin + 1 : number != number ? last_bin + 3 : counter;
    }
};

struct Bin_Kernels {
    void (*find)(const double *numbers, std::size_t count, const Bins &bins, double *counters);
};

/// The kernel for the processor in use.
const Bin_Kernels &bin_kernels() noexcept;

} // namespace zeb::engine::kernels

namespace zeb::engine::plain
{

inline void find_bins(const double *numbers, std::size_t count, const kernels::Bins &bins, double *counters)
{
    for (std::size_t index = 0; index < count; ++index)
        counters[index] = bins.counter_of(numbers[index]);
}

} // namespace zeb::engine::plain
