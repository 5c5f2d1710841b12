/// Seeded texts for differential tests.
#pragma once

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

} // namespace zeb_test
