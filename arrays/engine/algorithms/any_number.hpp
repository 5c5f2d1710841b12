/// Numbers of a type that is known at run time, as elements.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace zeb::engine
{

/// What tells a number's value: a member of `Any_Number`.
enum class Number_Form { integer, natural, real, decimal };

/// A number in the type that has its exact value; of a decimal one, the double nearest to it.
struct Any_Number {
    Number_Form form;
    std::int64_t integer;
    std::uint64_t natural;
    double real;
};

/// From there on a decimal number and the double nearest to it may be different integers.
inline constexpr double first_inexact_integer = 0x1p53;

/// Converts to an integer: only one that has the same value.
template <class Element>
bool integer_from_real(double real, Element &element) noexcept
{
    using Limits = std::numeric_limits<Element>;
    // Both are exact in double, and NaN is in no range.
    constexpr double low = static_cast<double>(Limits::min());
    constexpr double above = 2.0 * static_cast<double>(Limits::max() / 2 + 1);
    if (!(real >= low && real < above) || real != std::trunc(real))
        return false;
    element = static_cast<Element>(real);
    return true;
}

/// Converts between integer types: only what has the same value.
template <class Element, class Value>
bool integer_from_integer(Value value, Element &element) noexcept
{
    element = static_cast<Element>(value);
    return static_cast<Value>(element) == value && (element < 0) == (value < 0);
}

/// Converts to a floating-point type, to the nearest; a finite number has to stay finite.
template <class Element, class Value>
bool real_from_number(Value value, Element &element) noexcept
{
    element = static_cast<Element>(value);
    return !std::isinf(element) || std::isinf(static_cast<double>(value));
}

/// Sets `element` to a number. Returns false for one that is not in the range of the elements: for integers
/// also for every one with a fraction, and for decimal ones whose exact value a double does not have.
template <class Element>
bool convert(const Any_Number &number, Element &element) noexcept
{
    if constexpr (std::is_floating_point_v<Element>) {
        switch (number.form) {
        case Number_Form::integer:
            return real_from_number(number.integer, element);
        case Number_Form::natural:
            return real_from_number(number.natural, element);
        default:
            return real_from_number(number.real, element);
        }
    } else {
        switch (number.form) {
        case Number_Form::integer:
            return integer_from_integer(number.integer, element);
        case Number_Form::natural:
            return integer_from_integer(number.natural, element);
        case Number_Form::decimal:
            return std::fabs(number.real) < first_inexact_integer && integer_from_real(number.real, element);
        default:
            return integer_from_real(number.real, element);
        }
    }
}

} // namespace zeb::engine
