/// The element types of the operations on ranges of numbers, and the ranges that these take: std::span,
/// std::vector, std::array, arrays of C, zeb::Array, and every other range whose elements lie side by side.
///
/// Ranges of up to 4294967295 elements are taken; of a longer one every operation sees no elements, and so
/// finds and changes nothing. No operation throws. One that needs memory says so, and changes nothing where
/// there is none.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <ranges>
#include <span>
#include <type_traits>

namespace zeb
{

/// The types of elements.
template <class Type>
concept Element = std::same_as<Type, std::uint8_t> || std::same_as<Type, std::int32_t> ||
    std::same_as<Type, std::uint32_t> || std::same_as<Type, std::int64_t> || std::same_as<Type, float> ||
    std::same_as<Type, double>;

/// Ranges of elements.
template <class Range>
concept Elements = std::ranges::contiguous_range<Range> && std::ranges::sized_range<Range> &&
    Element<std::ranges::range_value_t<Range>>;

/// Ranges whose elements may be changed.
template <class Range>
concept Writable_Elements =
    Elements<Range> && !std::is_const_v<std::remove_reference_t<std::ranges::range_reference_t<Range>>>;

/// The type of a range's elements.
template <Elements Range>
using Element_Of = std::ranges::range_value_t<Range>;

/// The most elements that an operation takes.
inline constexpr std::size_t greatest_count = UINT32_MAX;

namespace detail
{

/// The elements of a range, none of one that is too long.
template <Elements Range>
constexpr auto elements_of(Range &values) noexcept
{
    const std::span elements(std::ranges::data(values), std::ranges::size(values));
    return elements.size() <= greatest_count ? elements : elements.first(0);
}

/// The same, to be read.
template <Elements Range>
constexpr std::span<const Element_Of<Range>> constants_of(const Range &values) noexcept
{
    return elements_of(values);
}

} // namespace detail

} // namespace zeb
