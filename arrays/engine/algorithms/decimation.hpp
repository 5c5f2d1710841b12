/// What each pixel column of a chart shows of a series. The column of a point never falls as its position
/// rises: where columns end is found by searches, and few of the positions are read.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include "arrays/engine/algorithms/equal_parts.hpp"
#include "arrays/engine/kernels/decimation.hpp"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>

namespace zeb::engine
{

namespace decimation_detail
{

/// As many positions as a cache line has.
inline constexpr std::size_t first_step = 8;

/// Finds the end of a run of positions in steps that double, from where it would be if the run were as long
/// as expected, and by bisection between the last two. Positions in disorder give some end above `start`.
template <class Is_Inside>
std::size_t run_end(std::span<const double> positions, std::size_t start, std::size_t expected,
                    Is_Inside is_inside) noexcept
{
    std::size_t inside = start, outside = positions.size(), step = first_step;
    const std::size_t guess = start + std::min(expected, outside - start - 1);
    if (guess == start || is_inside(positions[guess])) {
        inside = guess;
        for (; outside - inside > step && is_inside(positions[inside + step]); step *= 2)
            inside += step;
        outside = std::min(outside, inside + step);
    } else {
        outside = guess;
        for (; outside - inside > step && !is_inside(positions[outside - step]); step *= 2)
            outside -= step;
        if (outside - inside > step)
            inside = outside - step;
    }
    const auto first = positions.begin();
    return static_cast<std::size_t>(std::partition_point(first + static_cast<std::ptrdiff_t>(inside + 1),
                                                         first + static_cast<std::ptrdiff_t>(outside),
                                                         is_inside) -
                                    first);
}

inline ZEB_Chart_Column column_of_values(std::span<const double> values) noexcept
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    const auto [low, high] = kernels::decimation().number_range(values.data(), values.size());
    const bool has_number = low <= high;
    return {values.front(), has_number ? low : nan, has_number ? high : nan, values.back(),
            static_cast<std::uint32_t>(values.size())};
}

/// The indexes of the points between the bounds.
struct Shown {
    std::size_t start, end;
};

inline Shown shown_points(std::span<const double> positions, const Equal_Parts &scale) noexcept
{
    const auto first = std::partition_point(positions.begin(), positions.end(),
                                            [&](double position) { return scale.begin_after(position); });
    const auto last = std::partition_point(first, positions.end(),
                                           [&](double position) { return !scale.end_before(position); });
    return {static_cast<std::size_t>(first - positions.begin()),
            static_cast<std::size_t>(last - positions.begin())};
}

/// Sets the columns that have points.
inline void set_columns(std::span<const double> positions, std::span<const double> values,
                        const Equal_Parts &scale, std::span<ZEB_Chart_Column> columns) noexcept
{
    const auto [start, end] = shown_points(positions, scale);
    const std::span<const double> shown = positions.first(end);
    std::size_t length = (end - start) / columns.size(); // of the column before, which the next resembles
    for (std::size_t at = start; at < end; at += length) {
        const std::uint32_t column = scale.part_of(shown[at]);
        length =
            run_end(shown, at, length, [&](double position) { return scale.part_of(position) <= column; }) -
            at;
        // By the time that these values are read, so is the place where the next column may end.
        __builtin_prefetch(shown.data() + std::min(at + 2 * length, end - 1));
        columns[column] = column_of_values(values.subspan(at, length));
    }
}

} // namespace decimation_detail

/// Sets each column to what it shows of the points; there are as many values as positions. Returns false,
/// nothing changed, without columns and for a scale that is not usable.
inline bool decimate(std::span<const double> positions, std::span<const double> values, double start,
                     double end, std::span<ZEB_Chart_Column> columns) noexcept
{
    if (columns.empty())
        return false;
    const Equal_Parts scale(start, end, static_cast<std::uint32_t>(columns.size()));
    if (!scale.are_usable())
        return false;
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    std::fill(columns.begin(), columns.end(), ZEB_Chart_Column{nan, nan, nan, nan, 0});
    decimation_detail::set_columns(positions, values, scale, columns);
    return true;
}

} // namespace zeb::engine
