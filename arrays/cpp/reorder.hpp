/// The same elements in another order.
#pragma once

#include <Korvane_ZEB_engine/elements.hpp>

namespace zeb
{

namespace detail
{
template <Element Type>
void reverse(std::span<Type> values) noexcept;
template <Element Type>
bool move_element(std::span<Type> values, std::size_t from, std::size_t to) noexcept;
template <Element Type>
bool permute(std::span<Type> values, std::span<const std::uint32_t> permutation, bool is_inverse) noexcept;
template <Element Type>
bool transpose(std::span<Type> values, std::size_t rows, std::size_t columns) noexcept;
} // namespace detail

/// Reverses the order.
template <Writable_Elements Range>
void reverse(Range &&values) noexcept
{
    detail::reverse(detail::elements_of(values));
}

/// Moves an element to another index; those between move up by one. Returns false, with nothing changed, for
/// an index that is not below the count.
template <Writable_Elements Range>
bool move_element(Range &&values, std::size_t from, std::size_t to) noexcept
{
    return detail::move_element(detail::elements_of(values), from, to);
}

/// Makes element i the former element `permutation[i]`, for as many elements as the permutation has entries:
/// what was sorted is brought into the order of another array by the companions of its sort. Entries may
/// repeat. Returns false, with nothing changed, if the permutation is longer than the elements or has an
/// entry that is not below their count, and if allocation fails.
template <Writable_Elements Range>
bool permute(Range &&values, std::span<const std::uint32_t> permutation) noexcept
{
    return detail::permute(detail::elements_of(values), permutation, false);
}

/// Makes element `permutation[i]` the former element i: the inverse, for a permutation without repetitions.
/// Of entries that repeat the last one stands. Returns as above.
template <Writable_Elements Range>
bool permute_inversely(Range &&values, std::span<const std::uint32_t> permutation) noexcept
{
    return detail::permute(detail::elements_of(values), permutation, true);
}

/// Transposes a matrix that lies row by row. Returns false, with nothing changed, if rows times columns is
/// not the count or allocation fails.
template <Writable_Elements Range>
bool transpose(Range &&values, std::size_t rows, std::size_t columns) noexcept
{
    return detail::transpose(detail::elements_of(values), rows, columns);
}

} // namespace zeb
