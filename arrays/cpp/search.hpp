/// Searches: of a value and of a run anywhere, and of a place among ascending elements.
///
/// Elements are compared by `==` and `<`: -0.0 equals 0.0, NaN equals nothing. The argument's type is that of
/// the elements. A result is an index, or none.
#pragma once

#include <Korvane_ZEB_engine/elements.hpp>

#include <optional>

namespace zeb
{

/// An index, or none.
using Index = std::optional<std::size_t>;

namespace detail
{
template <Element Type>
Index index_of(std::span<const Type> values, Type value) noexcept;
template <Element Type>
Index last_index_of(std::span<const Type> values, Type value) noexcept;
template <Element Type>
Index find_run(std::span<const Type> values, std::span<const Type> run, std::size_t from) noexcept;
template <Element Type>
Index ordered_find(std::span<const Type> values, Type value) noexcept;
template <Element Type>
Index ordered_find_nearest(std::span<const Type> values, Type value) noexcept;
template <Element Type>
std::size_t ordered_insert_position(std::span<const Type> values, Type value) noexcept;
} // namespace detail

/// Returns the first index of a value.
template <Elements Range>
Index index_of(const Range &values, std::type_identity_t<Element_Of<Range>> value) noexcept
{
    return detail::index_of(detail::constants_of(values), value);
}

/// Returns the last index of a value.
template <Elements Range>
Index last_index_of(const Range &values, std::type_identity_t<Element_Of<Range>> value) noexcept
{
    return detail::last_index_of(detail::constants_of(values), value);
}

/// Returns where a run of elements begins for the first time at or after index `from`. An empty run is
/// nowhere.
template <Elements Range>
Index find_run(const Range &values, std::span<const Element_Of<Range>> run, std::size_t from = 0) noexcept
{
    return detail::find_run(detail::constants_of(values), run, from);
}

/// Returns the index of an element equal to the value, by bisection of ascending elements.
template <Elements Range>
Index ordered_find(const Range &values, std::type_identity_t<Element_Of<Range>> value) noexcept
{
    return detail::ordered_find(detail::constants_of(values), value);
}

/// The same; where no element is equal, the index of one of the two between which the value lies. None only
/// without elements, and for NaN.
template <Elements Range>
Index ordered_find_nearest(const Range &values, std::type_identity_t<Element_Of<Range>> value) noexcept
{
    return detail::ordered_find_nearest(detail::constants_of(values), value);
}

/// Returns where to insert a value into ascending elements so that they stay ascending, 0 to their count: the
/// index of an element equal to it if there is one. NaN belongs behind all others.
template <Elements Range>
std::size_t ordered_insert_position(const Range &values,
                                    std::type_identity_t<Element_Of<Range>> value) noexcept
{
    return detail::ordered_insert_position(detail::constants_of(values), value);
}

} // namespace zeb
