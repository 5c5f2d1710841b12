/// Seeded texts for differential tests.
#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace zeb_test
{

/// A text of `length` characters out of `alphabet`; out of all 256 bytes when that is empty.
inline std::string draw_text(std::mt19937 &random, size_t length, const std::string &alphabet)
{
    std::string text(length, ' ');
    for (char &c : text)
        c = alphabet.empty() ? static_cast<char>(random()) : alphabet[random() % alphabet.size()];
    return text;
}

/// All characters of a literal, nulls inside it too.
template <size_t size>
std::string characters_of(const char (&literal)[size])
{
    return {literal, size - 1};
}

/// Few letters, in both cases, and bytes on both sides of 0x80.
inline const std::string case_alphabet = characters_of("aAbBzZ@[`{\x7F\x80\xC9\xE9\xFF\0");

/// The bytes of UTF-8 where its rules change.
inline const std::string utf8_alphabet = characters_of(
    "a\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xED\xEE\xEF\xF0\xF1\xF4\xF5\xF8\xFE\xFF");

/// A code point that UTF-8 can hold, from each of its lengths alike.
inline uint32_t draw_code_point(std::mt19937 &random)
{
    static const uint32_t bounds[] = {0, 0x80, 0x800, 0x10000, 0x110000};
    const size_t length = random() % 4;
    const uint32_t drawn =
        bounds[length] + static_cast<uint32_t>(random() % (bounds[length + 1] - bounds[length]));
    return drawn >= 0xD800 && drawn < 0xE000 ? drawn - 0x1000 : drawn;
}

} // namespace zeb_test
