#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <functional>

namespace zeb::engine
{

/// The element type's own `==`: a not-a-number equals nothing, -0.0 equals 0.0.
struct Own_Equality {
    template <class Element>
    constexpr bool operator()(const Element &left, const Element &right) const noexcept
    {
        return left == right;
    }
};

/// The element type's own strict order; pointers are ordered by address. Characters are signed on every
/// processor, also where the compiler's plain `char` is not.
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

/// The three-way answer made of a strict order. What is neither above nor below counts as equal, so
/// with the own order a not-a-number is equal to everything.
template <class Less = Own_Less>
struct Three_Way {
    [[no_unique_address]] Less less{};

    // Answers how the key compares with the element, one of the three known answers.
    template <class Element>
    constexpr ZEB_Comparison operator()(const Element *key, const Element *element) const noexcept
    {
        if (less(*key, *element))
            return ZEB_COMPARED_LESS;
        return less(*element, *key) ? ZEB_COMPARED_GREATER : ZEB_COMPARED_EQUAL;
    }
};

} // namespace zeb::engine
