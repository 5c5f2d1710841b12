/// One value in place of others, and values removed. Elements are compared by `==`: NaN equals nothing.
#pragma once

#include <Korvane_ZEB_engine/elements.hpp>

namespace zeb
{

namespace detail
{
template <Element Type>
void fill(std::span<Type> values, Type value) noexcept;
template <Element Type>
std::size_t replace(std::span<Type> values, Type value, Type replacement) noexcept;
template <Element Type>
std::size_t remove(std::span<Type> values, Type value) noexcept;
} // namespace detail

/// Makes every element the value.
template <Writable_Elements Range>
void fill(Range &&values, std::type_identity_t<Element_Of<Range>> value) noexcept
{
    detail::fill(detail::elements_of(values), value);
}

/// Replaces every element equal to `value`, and returns how many there were.
template <Writable_Elements Range>
std::size_t replace(Range &&values, std::type_identity_t<Element_Of<Range>> value,
                    std::type_identity_t<Element_Of<Range>> replacement) noexcept
{
    return detail::replace(detail::elements_of(values), value, replacement);
}

/// Closes the gaps that the elements equal to `value` leave, and returns how many others there are; what
/// stands behind those is left over, to be cut off.
template <Writable_Elements Range>
[[nodiscard]] std::size_t remove(Range &&values, std::type_identity_t<Element_Of<Range>> value) noexcept
{
    return detail::remove(detail::elements_of(values), value);
}

} // namespace zeb
