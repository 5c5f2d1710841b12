/// One loop per search or change, for every element type and functor. They serve functors that no vector
/// kernel knows, and replace the kernels where there are no vectors.
#pragma once

#include "arrays/engine/element_order.hpp"

#include <cstddef>
#include <limits>

namespace zeb::engine::plain
{

/// Index of the first element equal to the value; count when there is none.
template <class Element, class Equality = Own_Equality>
std::size_t first_equal(const Element *elements, std::size_t count, const Element &value,
                        Equality equal = {}) noexcept
{
    std::size_t index = 0;
    while (index < count && !equal(elements[index], value))
        ++index;
    return index;
}

/// Index of the last element equal to the value; count when there is none.
template <class Element, class Equality = Own_Equality>
std::size_t last_equal(const Element *elements, std::size_t count, const Element &value,
                       Equality equal = {}) noexcept
{
    for (std::size_t index = count; index-- > 0;)
        if (equal(elements[index], value))
            return index;
    return count;
}

/// True when both runs hold equal elements in the same order.
template <class Element, class Equality = Own_Equality>
bool all_equal(const Element *left, const Element *right, std::size_t count, Equality equal = {}) noexcept
{
    for (std::size_t index = 0; index < count; ++index)
        if (!equal(left[index], right[index]))
            return false;
    return true;
}

/// Start of the first run equal to the pattern (length at least 1); count when there is none.
template <class Element, class Equality = Own_Equality>
std::size_t find_run(const Element *elements, std::size_t count, const Element *pattern, std::size_t length,
                     Equality equal = {}) noexcept
{
    for (std::size_t start = 0; start + length <= count; ++start)
        if (equal(elements[start], pattern[0]) &&
            all_equal(elements + start + 1, pattern + 1, length - 1, equal))
            return start;
    return count;
}

/// Writes the replacement over every element equal to the value; returns how many.
template <class Element, class Equality = Own_Equality>
std::size_t replace_equal(Element *elements, std::size_t count, const Element &value,
                          const Element &replacement, Equality equal = {}) noexcept
{
    std::size_t replaced = 0;
    for (std::size_t index = 0; index < count; ++index) {
        if (equal(elements[index], value)) {
            elements[index] = replacement;
            ++replaced;
        }
    }
    return replaced;
}

/// Moves the elements that differ from the value to the front, in order; returns how many. Writes
/// nothing at or after the returned index.
template <class Element, class Equality = Own_Equality>
std::size_t remove_equal(Element *elements, std::size_t count, const Element &value,
                         Equality equal = {}) noexcept
{
    std::size_t kept = first_equal(elements, count, value, equal);
    for (std::size_t index = kept; index < count; ++index)
        if (!equal(elements[index], value))
            elements[kept++] = elements[index];
    return kept;
}

/// The first element that no later one precedes; the count is at least 1. `precedes` is called with a later
/// element and the best so far.
template <class Element, class Precedes>
Element foremost(const Element *elements, std::size_t count, Precedes precedes) noexcept
{
    Element best = elements[0];
    for (std::size_t index = 1; index < count; ++index)
        best = precedes(elements[index], best) ? Element(elements[index]) : best; // no branch to mispredict
    return best;
}

template <class Element, class Less = Own_Less>
Element minimum(const Element *elements, std::size_t count, Less less = {}) noexcept
{
    return foremost(elements, count, less);
}

template <class Element, class Less = Own_Less>
Element maximum(const Element *elements, std::size_t count, Less less = {}) noexcept
{
    return foremost(elements, count,
                    [&](const Element &later, const Element &best) { return less(best, later); });
}

/// The lowest and the highest of some numbers; of none, low is above high.
struct Number_Range {
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();
};

/// NaN is left out, and of equal numbers the first one counts.
inline Number_Range number_range(const double *numbers, std::size_t count) noexcept
{
    Number_Range range;
    for (std::size_t index = 0; index < count; ++index) {
        range.low = numbers[index] < range.low ? numbers[index] : range.low;
        range.high = range.high < numbers[index] ? numbers[index] : range.high;
    }
    return range;
}

} // namespace zeb::engine::plain
