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

inline std::size_t counter_of(double number, const Equal_Parts &parts, std::size_t bins) noexcept
{
    if (parts.hold(number)) [[likely]]
        return parts.part_of(number);
    return parts.begin_after(number) ? bins : parts.end_before(number) ? bins + 1 : bins + 2;
}

template <class Element>
void count_into(std::span<const Element> elements, const Equal_Parts &parts, std::size_t bins,
                std::uint32_t *counters, std::size_t tables) noexcept
{
    const std::size_t size = bins + rest_count, step = tables == 1 ? 0 : size;
    std::size_t index = 0;
    for (; index + table_count <= elements.size(); index += table_count)
        for (std::size_t table = 0; table < table_count; ++table)
            ++counters[table * step + counter_of(static_cast<double>(elements[index + table]), parts, bins)];
    for (; index < elements.size(); ++index)
        ++counters[counter_of(static_cast<double>(elements[index]), parts, bins)];
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
    const std::size_t size = tables * (bins.size() + rest_count);
    const Scratch<std::uint32_t> counters(size);
    if (counters.get() == nullptr)
        return false;
    std::fill_n(counters.get(), size, 0u);
    count_into(elements, parts, bins.size(), counters.get(), tables);
    std::copy_n(counters.get(), bins.size(), bins.begin());
    const std::uint32_t *const others = counters.get() + bins.size();
    rest = {others[0], others[1], others[2]};
    return true;
}

} // namespace zeb::engine
