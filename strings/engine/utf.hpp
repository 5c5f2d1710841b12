/// Unicode text: UTF-8, UTF-16 units kept one in each 32-bit element, and whole code points.
///
/// A length that is counted beforehand holds for well-formed text, and is room enough for whatever the
/// conversion writes before it meets something ill-formed. Ill-formed are, in UTF-8, all that Unicode
/// forbids (overlong forms, surrogates, numbers past 0x10FFFF, parts of characters); among UTF-16 units a
/// surrogate without its partner; among code points surrogates and numbers past 0x10FFFF.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace zeb::engine
{

bool is_valid_utf8(std::span<const char> text) noexcept;

/// Whether the text begins with U+FEFF, or as UTF-16 with the same in the other byte order: platforms treat
/// that in more than one way.
bool begins_with_byte_order_mark(std::span<const char> utf8) noexcept;
bool begins_with_byte_order_mark(std::span<const std::uint32_t> utf16) noexcept;

/// UTF-8 to UTF-16 units. Answers false when the text is ill-formed; part of it is then written.
std::size_t utf16_length_of_utf8(std::span<const char> utf8) noexcept;
bool utf16_from_utf8(std::span<const char> utf8, std::uint32_t *units) noexcept;

/// UTF-16 units to UTF-8. Only the low 16 bits of an element count. Answers as above.
std::size_t utf8_length_of_utf16(std::span<const std::uint32_t> units) noexcept;
bool utf8_from_utf16(std::span<const std::uint32_t> units, char *utf8) noexcept;

/// UTF-8 to code points, and back. Answer as above.
std::size_t code_point_count_of_utf8(std::span<const char> utf8) noexcept;
bool code_points_from_utf8(std::span<const char> utf8, std::uint32_t *code_points) noexcept;
std::size_t utf8_length_of_code_points(std::span<const std::uint32_t> code_points) noexcept;
bool utf8_from_code_points(std::span<const std::uint32_t> code_points, char *utf8) noexcept;

/// Whether every element is a code point that UTF-8 can hold.
bool are_code_points(std::span<const std::uint32_t> elements) noexcept;

/// Joins each surrogate pair to one code point, in place, and answers the count that remains. A surrogate
/// without its partner stays.
std::size_t join_surrogate_pairs(std::span<std::uint32_t> units) noexcept;

/// How many of the elements are code points that take a pair: 0x10000 to 0x10FFFF.
std::size_t count_of_pairs(std::span<const std::uint32_t> code_points) noexcept;

/// Splits, in place, the code points in the first `count` elements at `units`, of which `pairs` take a
/// pair. There is room for count + pairs elements. All other elements stay.
void split_to_surrogate_pairs(std::uint32_t *units, std::size_t count, std::size_t pairs) noexcept;

} // namespace zeb::engine
