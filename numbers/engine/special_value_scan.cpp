#include "numbers/engine/special_value_scan.hpp"

#include "core/engine/ascii.hpp"

#include <cstddef>

namespace zeb::engine
{
namespace
{

/// Whether the array begins with the word, followed by white space or the end.
template <std::size_t size>
bool begins_with_word(const char *chars, std::uint32_t length, const char (&word)[size]) noexcept
{
    constexpr std::uint32_t word_length = size - 1;
    if (length < word_length)
        return false;
    for (std::uint32_t i = 0; i < word_length; ++i)
        if (ascii_lower(chars[i]) != word[i])
            return false;
    return length == word_length || is_ascii_space(chars[word_length]);
}

} // namespace

std::uint32_t find_special_value(const char *chars, std::uint32_t length) noexcept
{
    for (std::uint32_t index = 0; index < length; ++index) {
        const char *rest = chars + index;
        const std::uint32_t left = length - index;
        const char first = ascii_lower(*rest);
        if (first == 'i' && (begins_with_word(rest, left, "infinity") || begins_with_word(rest, left, "inf")))
            return index;
        if (first == 'n' && begins_with_word(rest, left, "nan"))
            return index;
    }
    return length;
}

} // namespace zeb::engine
