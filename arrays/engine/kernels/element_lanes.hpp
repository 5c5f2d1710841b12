/// Which vector kernel serves an element type. Kernels exist for a few lane types only; integers of one
/// width share a kernel where only equality matters, and pointers travel as integers.
#pragma once

#include "arrays/engine/element_order.hpp"

#include <cstdint>
#include <cstring>
#include <type_traits>

namespace zeb::engine
{

template <class Element>
inline constexpr bool is_pointer_element =
    !std::is_arithmetic_v<Element> && std::is_trivially_copyable_v<Element> &&
    sizeof(Element) == sizeof(void *);

template <class Element>
inline constexpr bool has_lane =
    (std::is_integral_v<Element> && (sizeof(Element) == 1 || sizeof(Element) == 4 || sizeof(Element) == 8)) ||
    std::is_same_v<Element, float> || std::is_same_v<Element, double> || is_pointer_element<Element>;

namespace lane_detail
{
template <std::size_t Size>
struct Unsigned;
template <>
struct Unsigned<1> {
    using Type = std::uint8_t;
};
template <>
struct Unsigned<4> {
    using Type = std::uint32_t;
};
template <>
struct Unsigned<8> {
    using Type = std::uint64_t;
};

template <class Element>
struct Equality_Lane : Unsigned<sizeof(Element)> {
};
template <>
struct Equality_Lane<float> {
    using Type = float;
};
template <>
struct Equality_Lane<double> {
    using Type = double;
};

template <class Element, bool Is_Signed>
struct Order_Lane : Equality_Lane<Element> {
};
template <class Element>
struct Order_Lane<Element, true> {
    using Type = std::make_signed_t<typename Unsigned<sizeof(Element)>::Type>;
};

/// Characters are signed here, whatever the compiler's plain `char` is.
template <class Element>
inline constexpr bool is_signed_integer = std::is_same_v<Element, char> ||
                                          (std::is_integral_v<Element> && std::is_signed_v<Element>);
} // namespace lane_detail

/// The lane type whose `==` is the element's.
template <class Element>
using Equality_Lane = typename lane_detail::Equality_Lane<Element>::Type;

/// The unsigned integer of the element's width, for moving its bits.
template <class Element>
using Bits_Lane = typename lane_detail::Unsigned<sizeof(Element)>::Type;

/// The lane type whose `<` is the element's.
template <class Element>
using Order_Lane = typename lane_detail::Order_Lane<Element, lane_detail::is_signed_integer<Element>>::Type;

/// True when the functor is the element's own, so that a kernel may decide instead of the functor.
template <class Element, class Equality>
inline constexpr bool has_equality_kernel = has_lane<Element> &&std::is_same_v<Equality, Own_Equality>;
template <class Element, class Less>
inline constexpr bool has_order_kernel = has_lane<Element> &&std::is_same_v<Less, Own_Less>;

/// The same storage, seen as lanes of the same width.
template <class Lane, class Element>
const Lane *lanes_of(const Element *elements) noexcept
{
    static_assert(sizeof(Lane) == sizeof(Element));
    return reinterpret_cast<const Lane *>(elements);
}
template <class Lane, class Element>
Lane *lanes_of(Element *elements) noexcept
{
    static_assert(sizeof(Lane) == sizeof(Element));
    return reinterpret_cast<Lane *>(elements);
}

/// One element's bits as a lane, and back.
template <class Lane, class Element>
Lane lane_of(const Element &element) noexcept
{
    static_assert(sizeof(Lane) == sizeof(Element));
    Lane lane;
    std::memcpy(&lane, &element, sizeof lane);
    return lane;
}

} // namespace zeb::engine
