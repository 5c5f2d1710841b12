/// Hexadecimal digits, and lists of values written with them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// Writes a value's lower-case digits without leading zeros, "0" for 0: at most 16. Writes no terminating
/// null; returns the position after the last digit.
char *put_hex_digits(char *out, std::uint64_t value) noexcept;

/// The room that a list takes at most: the digits of each value, two characters around or after it.
template <class Value>
inline constexpr std::uint64_t hex_room_per_value = 2 * sizeof(Value) + 2;

/// What a list of bytes reserves: more than it takes.
template <>
inline constexpr std::uint64_t hex_room_per_value<std::uint8_t> = 6;

/// Writes "{", the values with ", " between them, and "}". There must be room for `hex_room_per_value`
/// characters for each value; for two if there is none. Returns the position after the last character.
char *put_hex_list(char *out, const std::uint8_t *values, std::size_t n) noexcept;
char *put_hex_list(char *out, const std::uint32_t *values, std::size_t n) noexcept;
char *put_hex_list(char *out, void *const *values, std::size_t n) noexcept;

} // namespace zeb::engine
