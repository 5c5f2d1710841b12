/// Comparisons of text. A proper prefix of a text orders before it.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

namespace zeb::engine
{

/// Returns the order of texts that differ.
inline ZEB_Comparison order_of_difference(bool left_is_first) noexcept
{
    return left_is_first ? ZEB_COMPARED_LESS : ZEB_COMPARED_GREATER;
}

/// Returns the order of texts that are equal up to the end of the shorter one.
inline ZEB_Comparison order_of_lengths(std::size_t left, std::size_t right) noexcept
{
    return left == right ? ZEB_Comparison{ZEB_COMPARED_EQUAL} : order_of_difference(left < right);
}

/// Compares bytes as unsigned numbers.
inline ZEB_Comparison compare(std::span<const char> left, std::span<const char> right) noexcept
{
    const std::size_t common = std::min(left.size(), right.size());
    const int difference = common == 0 ? 0 : std::memcmp(left.data(), right.data(), common);
    if (difference != 0)
        return order_of_difference(difference < 0);
    return order_of_lengths(left.size(), right.size());
}

/// Returns the index of the first units that differ, or count. For long texts, and for texts known to differ.
std::size_t first_difference(const std::uint32_t *left, const std::uint32_t *right,
                             std::size_t count) noexcept;

/// Compares 32-bit units.
inline ZEB_Comparison compare(std::span<const std::uint32_t> left,
                              std::span<const std::uint32_t> right) noexcept
{
    constexpr std::size_t short_text = 4096;
    const std::size_t common = std::min(left.size(), right.size());
    if (common == 0 ||
        (common <= short_text && std::memcmp(left.data(), right.data(), common * sizeof left[0]) == 0))
        return order_of_lengths(left.size(), right.size());
    const std::size_t index = first_difference(left.data(), right.data(), common);
    if (index == common)
        return order_of_lengths(left.size(), right.size());
    return order_of_difference(left[index] < right[index]);
}

/// Whether the left text orders first.
template <class Character>
bool is_less(std::span<const Character> left, std::span<const Character> right) noexcept
{
    return compare(left, right) == ZEB_COMPARED_LESS;
}

/// Compares bytes as signed numbers, after folding case by the C library's current locale.
ZEB_Comparison compare_ignoring_case(std::span<const char> left, std::span<const char> right) noexcept;

/// Whether both have the same length and the same bytes except for case.
bool is_equal_ignoring_case(std::span<const char> left, std::span<const char> right) noexcept;

} // namespace zeb::engine
