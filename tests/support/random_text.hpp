/// Seeded texts: any, and such as come close to what a scanner reads and miss it in many ways.
#pragma once

#include <cstdint>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace zeb_test
{

/// A text of `length` characters out of `alphabet`; out of all 256 bytes when that is empty.
template <class Random>
std::string draw_text(Random &random, size_t length, const std::string &alphabet)
{
    std::string text(length, ' ');
    for (char &c : text)
        c = alphabet.empty() ? static_cast<char>(random()) : alphabet[random() % alphabet.size()];
    return text;
}

/// The words of a text, which white space parts.
inline std::vector<std::string> words_of(const std::string &text)
{
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// Replaces, inserts and removes a few characters.
inline std::string spoiled(std::mt19937_64 &random, std::string text, const std::string &alphabet)
{
    for (std::uint64_t changes = random() % 4; changes > 0 && !text.empty(); --changes)
        text.replace(random() % text.size(), random() % 2, random() % 2,
                     alphabet[random() % alphabet.size()]);
    return text;
}

inline std::string spaces(std::mt19937_64 &random)
{
    static const char *const some[] = {"", "", "", " ", "  ", "\t\n", "\v\r\f"};
    return some[random() % 7];
}

/// An integer of up to 22 digits, now and then with a sign, mostly short.
inline std::string random_integer(std::mt19937_64 &random)
{
    static const char *const signs[] = {"", "", "", "", "-", "+", "--"};
    return signs[random() % 7] + std::to_string(random() >> random() % 64) + (random() % 64 ? "" : "99");
}

} // namespace zeb_test
