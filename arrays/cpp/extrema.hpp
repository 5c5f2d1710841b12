/// The least and the greatest element.
#pragma once

#include <Korvane_ZEB_engine/elements.hpp>

#include <optional>

namespace zeb
{

/// The ends of the range that elements are in.
template <Element Type>
struct Extrema {
    Type least;
    Type greatest;
};

namespace detail
{
template <Element Type>
Extrema<Type> extrema(std::span<const Type> values) noexcept;
} // namespace detail

/// Returns the least and the greatest element, none of no elements. Elements are compared by `<`, from the
/// first one on: of equal ones (-0.0 and 0.0) the first counts, and a NaN only if it is the first element,
/// which then is the result; statistics leave NaN out.
template <Elements Range>
std::optional<Extrema<Element_Of<Range>>> extrema(const Range &values) noexcept
{
    const auto elements = detail::constants_of(values);
    if (elements.empty())
        return std::nullopt;
    return detail::extrema(elements);
}

} // namespace zeb
