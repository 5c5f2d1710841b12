/// Character tests of ASCII text, independent of the locale.
#pragma once

#include <cstdint>

namespace zeb::engine
{

constexpr bool is_ascii_space(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }

constexpr bool is_ascii_digit(char c) noexcept { return static_cast<unsigned char>(c - '0') < 10; }

constexpr char ascii_lower(char c) noexcept
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Returns the number of white-space characters at the start of a counted array.
constexpr std::uint32_t leading_spaces(const char *chars, std::uint32_t length) noexcept
{
    std::uint32_t index = 0;
    while (index < length && is_ascii_space(chars[index]))
        ++index;
    return index;
}

} // namespace zeb::engine
