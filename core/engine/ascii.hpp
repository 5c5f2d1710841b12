#pragma once

#include <cstdint>

namespace zeb::engine
{

/// Character tests that know no locale.

constexpr bool is_ascii_space(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }

constexpr bool is_ascii_digit(char c) noexcept { return static_cast<unsigned char>(c - '0') < 10; }

constexpr char ascii_lower(char c) noexcept
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// How many white-space characters stand at the start of the counted array.
constexpr std::uint32_t leading_spaces(const char *chars, std::uint32_t length) noexcept
{
    std::uint32_t index = 0;
    while (index < length && is_ascii_space(chars[index]))
        ++index;
    return index;
}

} // namespace zeb::engine
