/// Where numbers begin and end inside 8-bit text.
///
/// A number character is a digit, a sign, a full stop, or one of the exponent letters E, F, G, e, f, g.
/// The words inf, infinity and nan count as numbers, in capitals or not. White space is what the C
/// library takes for it in the current locale. Indexes are zero-based; ZEB_NOT_FOUND tells that there is
/// none.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>
#include <span>

namespace zeb::engine
{

/// Where a number can begin: past leading white space, at a special word, else at the first number
/// character.
std::uint32_t index_of_number_start(std::span<const char> text) noexcept;

/// How many characters at the front look like a number: the length of a special word, else the count of
/// leading number characters. ZEB_NOT_FOUND for an empty text, and where the number runs to the end.
std::uint32_t number_prefix_length(std::span<const char> text) noexcept;

/// The last character of the last number: before trailing white space, the end of a special word, else
/// the last number character.
std::uint32_t index_of_number_end(std::span<const char> text) noexcept;

/// The last character that is no number character. Here the capitals E, F and G are none either.
std::uint32_t index_of_last_non_number(std::span<const char> text) noexcept;

} // namespace zeb::engine
