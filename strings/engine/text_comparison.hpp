/// The orders of text. A text that is the beginning of another orders before it.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

namespace zeb::engine
{

/// The answer for texts that first differ at some place.
inline ZEB_Comparison order_of_difference(bool left_is_first) noexcept
{
    return left_is_first ? ZEB_COMPARED_LESS : ZEB_COMPARED_GREATER;
}

/// The answer for texts that are equal as far as the shorter one goes.
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

/// Index of the first units that differ; count when there are none. For long texts, and for those that do
/// differ.
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

/// True when the left text orders first.
template <class Character>
bool is_less(std::span<const Character> left, std::span<const Character> right) noexcept
{
    return compare(left, right) == ZEB_COMPARED_LESS;
}

/// Compares bytes as signed numbers, after capitals were turned into small letters by the current locale
/// of the C library.
ZEB_Comparison compare_ignoring_case(std::span<const char> left, std::span<const char> right) noexcept;

/// True when both have as many bytes, and these are the same but for case.
bool is_equal_ignoring_case(std::span<const char> left, std::span<const char> right) noexcept;

} // namespace zeb::engine
