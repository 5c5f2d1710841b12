/// Scanning text piece by piece, as the C library's scanf does.
#pragma once

#include "core/engine/ascii.hpp"

#include <cstdint>
#include <limits>

namespace zeb::engine
{

/// A cursor over a counted array of characters. Each step returns whether its piece is present, and advances
/// only then.
struct Text_Cursor {
    const char *chars;
    std::uint32_t length;
    std::uint32_t position;

    constexpr void skip_spaces() noexcept
    {
        while (position < length && is_ascii_space(chars[position]))
            ++position;
    }

    /// Skips white space, the character, and white space.
    constexpr bool skip_spaced(char c) noexcept
    {
        skip_spaces();
        if (position >= length || chars[position] != c)
            return false;
        ++position;
        skip_spaces();
        return true;
    }

    /// Reads white space, an optional sign, and decimal digits. A number beyond 64 bits becomes the nearest
    /// that fits.
    constexpr bool scan_decimal(std::int64_t &result) noexcept
    {
        std::uint32_t index = position;
        while (index < length && is_ascii_space(chars[index]))
            ++index;
        const bool negative = index < length && chars[index] == '-';
        if (index < length && (negative || chars[index] == '+'))
            ++index;
        const std::uint32_t first_digit = index;
        constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
        const std::uint64_t limit = largest + negative;
        std::uint64_t value = 0; // at most 2^63
        for (; index < length && is_ascii_digit(chars[index]); ++index) {
            const std::uint64_t digit = static_cast<std::uint64_t>(chars[index] - '0');
            value = value > (limit - digit) / 10 ? limit : value * 10 + digit;
        }
        if (index == first_digit)
            return false;
        result = static_cast<std::int64_t>(negative ? 0 - value : value);
        position = index;
        return true;
    }

    /// Same as above, truncated to the lower 32 bits.
    constexpr bool scan_decimal(std::int32_t &result) noexcept
    {
        std::int64_t value = 0;
        if (!scan_decimal(value))
            return false;
        result = static_cast<std::int32_t>(value);
        return true;
    }
};

} // namespace zeb::engine
