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
