/// Where numbers begin and end in 8-bit text.
///
/// A number character is a digit, a sign, a full stop, or one of the exponent letters E, F, G, e, f, g. The
/// words inf, infinity and nan count as numbers in any case. White space is that of the C library's current
/// locale. Indexes are zero-based; ZEB_NOT_FOUND means that there is none.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>
#include <span>

namespace zeb::engine
{

/// Returns where a number can begin: after leading white space, at a special word, else at the first number
/// character.
std::uint32_t index_of_number_start(std::span<const char> text) noexcept;

/// Returns the length of a leading special word, else the count of leading number characters. ZEB_NOT_FOUND
/// for an empty text, and for one of number characters only.
std::uint32_t number_prefix_length(std::span<const char> text) noexcept;

/// Returns the index of the last character of the last number: before trailing white space, the end of a
/// special word, else the last number character.
std::uint32_t index_of_number_end(std::span<const char> text) noexcept;

/// Returns the index of the last character that is no number character. Here E, F and G are not number
/// characters.
std::uint32_t index_of_last_non_number(std::span<const char> text) noexcept;

} // namespace zeb::engine
