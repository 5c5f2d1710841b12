/// Every text operation in its plainest form, one step at a time, as slow as that is.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cctype>
#include <cstring>
#include <string>
#include <strings.h>
#include <vector>

namespace reference
{

using std::uint32_t;

inline uint32_t count_of(const std::string &text) { return static_cast<uint32_t>(text.size()); }

inline bool is_number_character(char c) { return c != '\0' && std::strchr("+-.0123456789EFGefg", c); }

/// Whether the bytes at `p` are the word in any case; the caller has looked at how many there are.
inline bool begins_with(const char *p, const char *word)
{
    return strncasecmp(p, word, std::strlen(word)) == 0;
}

inline uint32_t index_of_number_start(const std::string &text)
{
    const uint32_t count = count_of(text);
    if (count == 0)
        return ZEB_NOT_FOUND;
    uint32_t p = 0;
    while (p < count && std::isspace(static_cast<signed char>(text[p])))
        ++p;
    if (p == count)
        return ZEB_NOT_FOUND;
    const uint32_t remaining = count - p;
    const char *const at = text.data() + p;
    if (remaining >= 3) {
        if (*at == 'i' || *at == 'I') {
            if (begins_with(at, "inf"))
                return p;
            if (remaining >= 8 && begins_with(at, "infinity"))
                return p;
        }
        if ((*at == 'n' || *at == 'N') && begins_with(at, "nan"))
            return p;
    }
    for (; p < count; ++p)
        if (is_number_character(text[p]))
            return p;
    return ZEB_NOT_FOUND;
}

inline uint32_t number_prefix_length(const std::string &text)
{
    const uint32_t count = count_of(text);
    if (count == 0)
        return ZEB_NOT_FOUND;
    if (count >= 3 && (text[0] == 'i' || text[0] == 'I')) {
        if (count >= 8 && begins_with(text.data(), "infinity"))
            return 8;
        if (begins_with(text.data(), "inf"))
            return 3;
    }
    if (count >= 3 && (text[0] == 'n' || text[0] == 'N') && begins_with(text.data(), "nan"))
        return 3;
    for (uint32_t i = 0; i < count; ++i)
        if (!is_number_character(text[i]))
            return i;
    return ZEB_NOT_FOUND;
}

inline uint32_t index_of_number_end(const std::string &text)
{
    uint32_t left = count_of(text);
    while (left > 0 && std::isspace(static_cast<signed char>(text[left - 1])))
        --left;
    if (left == 0)
        return ZEB_NOT_FOUND;
    const uint32_t q = left - 1;
    const char last = text[q];
    if (left >= 3) {
        if ((last == 'F' || last == 'f') && begins_with(&text[q - 2], "inf"))
            return q;
        if ((last == 'N' || last == 'n') && begins_with(&text[q - 2], "nan"))
            return q;
        if ((last == 'Y' || last == 'y') && left >= 8 && begins_with(&text[q - 7], "infinity"))
            return q;
    }
    for (uint32_t i = left; i > 0; --i)
        if (is_number_character(text[i - 1]))
            return i - 1;
    return ZEB_NOT_FOUND;
}

inline uint32_t index_of_last_non_number(const std::string &text)
{
    for (uint32_t i = count_of(text); i > 0; --i) {
        const char c = text[i - 1];
        const bool skipped =
            (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.' || c == 'e' || c == 'f' || c == 'g';
        if (!skipped)
            return i - 1;
    }
    return ZEB_NOT_FOUND;
}

/// Lexicographic order over whatever `value` makes of the elements.
template <class Text, class Value>
ZEB_Comparison order(const Text &left, const Text &right, Value value)
{
    for (size_t i = 0; i < left.size() && i < right.size(); ++i) {
        if (value(left[i]) < value(right[i]))
            return 2;
        if (value(left[i]) > value(right[i]))
            return 3;
    }
    return left.size() == right.size() ? 1 : left.size() < right.size() ? 2 : 3;
}

inline ZEB_Comparison compare(const std::string &left, const std::string &right)
{
    return order(left, right, [](char c) { return static_cast<unsigned char>(c); });
}

inline ZEB_Comparison compare(const std::vector<uint32_t> &left, const std::vector<uint32_t> &right)
{
    return order(left, right, [](uint32_t unit) { return unit; });
}

inline int folded(char c)
{
    signed char byte = static_cast<signed char>(c);
    if (std::isupper(byte))
        // Compilers take the small letter of a signed character for a signed character, which it need not be.
        byte = static_cast<signed char>(std::tolower(static_cast<unsigned char>(c)));
    return byte;
}

inline ZEB_Comparison compare_ignoring_case(const std::string &left, const std::string &right)
{
    return order(left, right, folded);
}

/// A growable text and its capacity, as long as the allocator never fails.
template <class Character>
struct Grown_Text {
    std::vector<Character> text;
    uint32_t capacity = 0;
    uint32_t seed = 16;

    void put(const std::string &bytes, bool append)
    {
        if (!append)
            text.clear();
        const size_t n = text.size() + bytes.size();
        if (capacity <= n) {
            if (capacity < seed)
                capacity = seed;
            while (capacity <= n)
                capacity *= 2;
        }
        for (char byte : bytes)
            text.push_back(static_cast<Character>(static_cast<signed char>(byte)));
    }

    void terminate()
    {
        if (capacity <= text.size())
            capacity = capacity < seed ? seed : 2 * capacity;
    }

    uint32_t replace(std::vector<Character> target, std::vector<Character> replacement)
    {
        std::vector<Character> result;
        uint32_t matches = 0;
        for (size_t i = 0; i < text.size();) {
            const bool fits = !target.empty() && i + target.size() <= text.size();
            if (fits && std::memcmp(&text[i], target.data(), target.size() * sizeof(Character)) == 0) {
                result.insert(result.end(), replacement.begin(), replacement.end());
                i += target.size();
                ++matches;
            } else {
                result.push_back(text[i++]);
            }
        }
        text = result;
        if (matches != 0 && replacement.size() > target.size())
            for (capacity = seed; capacity <= text.size();)
                capacity *= 2;
        return matches;
    }
};

/// The well-formed byte sequences of UTF-8, as Unicode's table of them gives the ranges of each byte.
inline size_t well_formed_length(const unsigned char *at, size_t left)
{
    static const struct {
        unsigned char range[4][2];
        size_t length;
    } rows[] = {{{{0x00, 0x7F}}, 1},
                {{{0xC2, 0xDF}, {0x80, 0xBF}}, 2},
                {{{0xE0, 0xE0}, {0xA0, 0xBF}, {0x80, 0xBF}}, 3},
                {{{0xE1, 0xEC}, {0x80, 0xBF}, {0x80, 0xBF}}, 3},
                {{{0xED, 0xED}, {0x80, 0x9F}, {0x80, 0xBF}}, 3},
                {{{0xEE, 0xEF}, {0x80, 0xBF}, {0x80, 0xBF}}, 3},
                {{{0xF0, 0xF0}, {0x90, 0xBF}, {0x80, 0xBF}, {0x80, 0xBF}}, 4},
                {{{0xF1, 0xF3}, {0x80, 0xBF}, {0x80, 0xBF}, {0x80, 0xBF}}, 4},
                {{{0xF4, 0xF4}, {0x80, 0x8F}, {0x80, 0xBF}, {0x80, 0xBF}}, 4}};
    for (const auto &row : rows) {
        bool fits = left >= row.length;
        for (size_t i = 0; fits && i < row.length; ++i)
            fits = at[i] >= row.range[i][0] && at[i] <= row.range[i][1];
        if (fits)
            return row.length;
    }
    return 0;
}

inline bool is_valid_utf8(const std::string &text)
{
    const auto *at = reinterpret_cast<const unsigned char *>(text.data());
    for (size_t i = 0; i < text.size();) {
        const size_t length = well_formed_length(at + i, text.size() - i);
        if (length == 0)
            return false;
        i += length;
    }
    return true;
}

inline std::string utf8_of(uint32_t code_point)
{
    std::string bytes;
    const auto put = [&bytes](uint32_t byte) { bytes.push_back(static_cast<char>(byte)); };
    if (code_point < 0x80) {
        put(code_point);
    } else if (code_point < 0x800) {
        put(0xC0 + code_point / 64);
        put(0x80 + code_point % 64);
    } else if (code_point < 0x10000) {
        put(0xE0 + code_point / 4096);
        put(0x80 + code_point / 64 % 64);
        put(0x80 + code_point % 64);
    } else {
        put(0xF0 + code_point / 262144);
        put(0x80 + code_point / 4096 % 64);
        put(0x80 + code_point / 64 % 64);
        put(0x80 + code_point % 64);
    }
    return bytes;
}

inline std::vector<uint32_t> utf16_of(uint32_t code_point)
{
    if (code_point < 0x10000)
        return {code_point};
    return {0xD800 + (code_point - 0x10000) / 1024, 0xDC00 + (code_point - 0x10000) % 1024};
}

} // namespace reference
