/// The Shell sort that determines the result of every sort: the order of equal elements, of elements without
/// a consistent order, and the calls of a caller's comparison.
///
/// `shell::sort` works by a comparison and swaps; `shell::sort_lanes` by the lane's own `<`, the same
/// step for step; the column kernels do that in vectors.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::shell
{

/// The first gap for a count: the first of 1, 4, 13, 40, ... whose triple is not less than the count.
/// Each later gap is a third of the one before it, rounded down.
constexpr std::size_t first_gap(std::size_t count) noexcept
{
    std::size_t gap = 1;
    while (3 * gap < count)
        gap = 3 * gap + 1;
    return gap;
}

/// Carries every element down by swaps with the one a gap before it, for each gap in turn. `precedes` is
/// called with the indexes of the later and the earlier element; `swap` exchanges them.
template <class Precedes, class Swap>
void sort(std::size_t count, Precedes precedes, Swap swap) noexcept
{
    for (std::size_t gap = first_gap(count); gap > 0; gap /= 3)
        for (std::size_t start = gap; start < count; ++start)
            for (std::size_t later = start; later >= gap && precedes(later, later - gap); later -= gap)
                swap(later, later - gap);
}

/// Stands for the companions of lanes that have none.
struct No_Companions {
    constexpr No_Companions operator+(std::size_t) const noexcept { return {}; }
};

/// Carries the lane at index `start` down by its own `<`, held aside instead of swapped.
template <class Lane>
inline void carry_down(Lane *lanes, No_Companions, std::size_t start, std::size_t gap) noexcept
{
    const Lane lane = lanes[start];
    std::size_t later = start;
    for (; later >= gap && lane < lanes[later - gap]; later -= gap)
        lanes[later] = lanes[later - gap];
    lanes[later] = lane;
}

/// The same, a companion moving with each lane.
template <class Lane, class Companion>
inline void carry_down(Lane *lanes, Companion *companions, std::size_t start, std::size_t gap) noexcept
{
    const Lane lane = lanes[start];
    const Companion companion = companions[start];
    std::size_t later = start;
    for (; later >= gap && lane < lanes[later - gap]; later -= gap) {
        lanes[later] = lanes[later - gap];
        companions[later] = companions[later - gap];
    }
    lanes[later] = lane;
    companions[later] = companion;
}

/// One pass of the sort by the lane's own `<`.
template <class Lane, class Companions>
void pass(Lane *lanes, Companions companions, std::size_t count, std::size_t gap) noexcept
{
    for (std::size_t start = gap; start < count; ++start)
        carry_down(lanes, companions, start, gap);
}

/// The sort by the lane's own `<`.
template <class Lane, class Companions>
void sort_lanes(Lane *lanes, Companions companions, std::size_t count) noexcept
{
    for (std::size_t gap = first_gap(count); gap > 0; gap /= 3)
        pass(lanes, companions, count, gap);
}

} // namespace zeb::engine::shell
