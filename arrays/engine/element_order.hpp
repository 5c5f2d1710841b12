/// The order and equality of element types.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <functional>

namespace zeb::engine
{

/// The element type's own `==`: NaN equals nothing, -0.0 equals 0.0.
struct Own_Equality {
    template <class Element>
    constexpr bool operator()(const Element &left, const Element &right) const noexcept
    {
        return left == right;
    }
};

/// The element type's own strict order; pointers are ordered by address. Characters are compared as signed on
/// every machine.
struct Own_Less {
    template <class Element>
    constexpr bool operator()(const Element &left, const Element &right) const noexcept
    {
        return std::less<>{}(left, right);
    }

    constexpr bool operator()(const char &left, const char &right) const noexcept
    {
        return static_cast<signed char>(left) < static_cast<signed char>(right);
    }
};

/// A three-way comparison made of a strict order. Elements that are neither less nor greater count as equal,
/// so with the own order NaN equals everything.
template <class Less = Own_Less>
struct Three_Way {
    [[no_unique_address]] Less less{};

    // Returns how the key compares with the element.
    template <class Element>
    constexpr ZEB_Comparison operator()(const Element *key, const Element *element) const noexcept
    {
        if (less(*key, *element))
            return ZEB_COMPARED_LESS;
        return less(*element, *key) ? ZEB_COMPARED_GREATER : ZEB_COMPARED_EQUAL;
    }
};

} // namespace zeb::engine
