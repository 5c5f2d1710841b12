/// How many numbers lie in each of bins of equal width.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include "arrays/engine/algorithms/equal_parts.hpp"
#include "arrays/engine/scratch.hpp"

#include <algorithm>
#include <functional>
#include <span>

namespace zeb::engine
{

namespace histogram_detail
{

/// Counters of bins, with those of what is below, above and NaN behind them.
inline constexpr std::size_t rest_count = 3;

/// Several tables of few bins, so that a run of one bin does not wait for its own counter; one of many.
inline constexpr std::size_t few_bins = 4096;
inline constexpr std::size_t table_count = 4;

/// As many numbers as the nearest cache holds beside the tables.
inline constexpr std::size_t block_length = 512;

/// Adds one for each of the counters that were found.
inline void count_up(std::span<const double> found, std::uint32_t *counters, std::size_t step) noexcept
{
    std::size_t index = 0;
    for (; index + table_count <= found.size(); index += table_count)
        for (std::size_t table = 0; table < table_count; ++table)
            ++counters[table * step + static_cast<std::size_t>(found[index + table])];
    for (; index < found.size(); ++index)
        ++counters[static_cast<std::size_t>(found[index])];
}

template <class Element>
void count_into(std::span<const Element> elements, const Equal_Parts &parts, std::size_t size,
                std::uint32_t *counters, std::size_t tables) noexcept
{
    double numbers[block_length];
    for (std::size_t at = 0; at < elements.size(); at += block_length) {
        const std::size_t count = std::min(block_length, elements.size() - at);
        const auto block = elements.subspan(at, count);
        std::transform(block.begin(), block.end(), numbers,
                       [](Element element) { return static_cast<double>(element); });
        kernels::bin_kernels().find(numbers, count, parts.bins(), numbers);
        count_up({numbers, count}, counters, tables == 1 ? 0 : size);
    }
    for (std::size_t table = 1; table < tables; ++table)
        std::transform(counters, counters + size, counters + table * size, counters, std::plus<>());
}

} // namespace histogram_detail

/// Sets each bin to its count and `rest` to what has none. The bins may be the memory of the elements.
/// Returns false, nothing changed, if allocation fails.
template <class Element>
bool histogram(std::span<const Element> elements, const Equal_Parts &parts, std::span<std::uint32_t> bins,
               ZEB_Histogram_Rest &rest) noexcept
{
    using namespace histogram_detail;
    const std::size_t tables = bins.size() <= few_bins ? table_count : 1;
    const std::size_t size = bins.size() + rest_count;
    const Scratch<std::uint32_t> counters(tables * size);
    if (counters.get() == nullptr)
        return false;
    std::fill_n(counters.get(), tables * size, 0u);
    count_into(elements, parts, size, counters.get(), tables);
    std::copy_n(counters.get(), bins.size(), bins.begin());
    const std::uint32_t *const others = counters.get() + bins.size();
    rest = {others[0], others[1], others[2]};
    return true;
}

} // namespace zeb::engine
