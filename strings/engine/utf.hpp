/// Conversions between UTF-8, UTF-16 units (one per 32-bit element) and code points.
///
/// A length computed beforehand is exact for well-formed text and sufficient for what a conversion writes
/// before it finds ill-formed text. Ill-formed are, in UTF-8, all sequences that Unicode forbids (overlong
/// forms, surrogates, values above 0x10FFFF, incomplete characters); in UTF-16, unpaired surrogates; among
/// code points, surrogates and values above 0x10FFFF.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace zeb::engine
{

bool is_valid_utf8(std::span<const char> text) noexcept;

/// Whether the text begins with U+FEFF or, as UTF-16, with its byte-swapped form. Platforms treat these in
/// different ways.
bool begins_with_byte_order_mark(std::span<const char> utf8) noexcept;
bool begins_with_byte_order_mark(std::span<const std::uint32_t> utf16) noexcept;

/// UTF-8 to UTF-16 units. The conversion returns false for ill-formed text, part of which is then written.
std::size_t utf16_length_of_utf8(std::span<const char> utf8) noexcept;
bool utf16_from_utf8(std::span<const char> utf8, std::uint32_t *units) noexcept;

/// UTF-16 units to UTF-8. Only the low 16 bits of an element count. Returns as above.
std::size_t utf8_length_of_utf16(std::span<const std::uint32_t> units) noexcept;
bool utf8_from_utf16(std::span<const std::uint32_t> units, char *utf8) noexcept;

/// UTF-8 to code points, and back. Return as above.
std::size_t code_point_count_of_utf8(std::span<const char> utf8) noexcept;
bool code_points_from_utf8(std::span<const char> utf8, std::uint32_t *code_points) noexcept;
std::size_t utf8_length_of_code_points(std::span<const std::uint32_t> code_points) noexcept;
bool utf8_from_code_points(std::span<const std::uint32_t> code_points, char *utf8) noexcept;

/// Whether every element is a code point that UTF-8 can encode.
bool are_code_points(std::span<const std::uint32_t> elements) noexcept;

/// Joins each surrogate pair to one code point in place, and returns the remaining count. Unpaired surrogates
/// stay.
std::size_t join_surrogate_pairs(std::span<std::uint32_t> units) noexcept;

/// Returns the number of elements that need a surrogate pair: 0x10000 to 0x10FFFF.
std::size_t count_of_pairs(std::span<const std::uint32_t> code_points) noexcept;

/// Splits, in place, the code points above 0xFFFF in the first `count` elements at `units`; there are `pairs`
/// of them. There must be room for count + pairs elements. All other elements keep their values.
void split_to_surrogate_pairs(std::uint32_t *units, std::size_t count, std::size_t pairs) noexcept;

} // namespace zeb::engine
