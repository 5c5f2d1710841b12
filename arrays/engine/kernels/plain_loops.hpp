/// One loop per search or change, for every element type and functor. They serve functors that no vector
/// kernel knows, and stand in for the kernels where there are no vectors.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::plain
{

/// Index of the first element equal to the value; count when there is none.
template <class Element, class Equality>
std::size_t first_equal(const Element *elements, std::size_t count, const Element &value,
                        Equality equal) noexcept
{
    std::size_t index = 0;
    while (index < count && !equal(elements[index], value))
        ++index;
    return index;
}

/// Index of the last element equal to the value; count when there is none.
template <class Element, class Equality>
std::size_t last_equal(const Element *elements, std::size_t count, const Element &value,
                       Equality equal) noexcept
{
    for (std::size_t index = count; index-- > 0;)
        if (equal(elements[index], value))
            return index;
    return count;
}

/// True when both runs hold equal elements in the same order.
template <class Element, class Equality>
bool all_equal(const Element *left, const Element *right, std::size_t count, Equality equal) noexcept
{
    for (std::size_t index = 0; index < count; ++index)
        if (!equal(left[index], right[index]))
            return false;
    return true;
}

/// Start of the first run equal to the pattern (length at least 1); count when there is none.
template <class Element, class Equality>
std::size_t find_run(const Element *elements, std::size_t count, const Element *pattern, std::size_t length,
                     Equality equal) noexcept
{
    for (std::size_t start = 0; start + length <= count; ++start)
        if (all_equal(elements + start, pattern, length, equal))
            return start;
    return count;
}

/// Writes the replacement over every element equal to the value; answers how many.
template <class Element, class Equality>
std::size_t replace_equal(Element *elements, std::size_t count, const Element &value,
                          const Element &replacement, Equality equal) noexcept
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

/// Moves the elements that differ from the value to the front, in order; answers how many. Writes
/// nothing at or after the answered index.
template <class Element, class Equality>
std::size_t remove_equal(Element *elements, std::size_t count, const Element &value, Equality equal) noexcept
{
    std::size_t kept = first_equal(elements, count, value, equal);
    for (std::size_t index = kept; index < count; ++index)
        if (!equal(elements[index], value))
            elements[kept++] = elements[index];
    return kept;
}

} // namespace zeb::engine::plain
