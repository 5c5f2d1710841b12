/// Seeded texts that come close to what a scanner reads, and miss it in many ways.
#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace zeb_test
{

inline std::string random_run(std::mt19937_64 &random, const std::string &alphabet, std::size_t longest)
{
    std::string text(random() % (longest + 1), ' ');
    for (char &c : text)
        c = alphabet[random() % alphabet.size()];
    return text;
}

/// Replaces, inserts and removes a few characters.
inline std::string spoiled(std::mt19937_64 &random, std::string text, const std::string &alphabet)
{
    for (std::uint64_t changes = random() % 4; changes > 0 && !text.empty(); --changes) {
        const std::size_t place = random() % text.size();
        const char c = alphabet[random() % alphabet.size()];
        switch (random() % 3) {
        case 0:
            text[place] = c;
            break;
        case 1:
            text.insert(place, 1, c);
            break;
        default:
            text.erase(place, 1);
        }
    }
    return text;
}

inline std::string spaces(std::mt19937_64 &random)
{
    static const char *const some[] = {"", "", "", " ", "  ", "\t\n", "\v\r\f"};
    return some[random() % 7];
}

/// An integer of up to 21 digits, now and then with a sign, mostly short.
inline std::string random_integer(std::mt19937_64 &random)
{
    static const char *const signs[] = {"", "", "", "", "-", "+", "--"};
    return signs[random() % 7] + std::to_string(random() >> random() % 64) + (random() % 64 ? "" : "99");
}

} // namespace zeb_test
