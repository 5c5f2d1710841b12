#include "calendar/engine/padded_fixed.hpp"

#include "calendar/engine/ascii.hpp"

#include <cstdio>

namespace zeb
{

std::uint32_t put_padded_fixed(char *out, std::uint32_t size, std::uint32_t decimals, double x) noexcept
{
    constexpr std::uint32_t most_decimals = 64; // more fit in no place; fewer are no problem for an int
    if (decimals > most_decimals)
        return 0;
    char text[128]; // leaves room for a decimal point of several bytes
    const int printed = std::snprintf(text, sizeof text, "%-20.*f", static_cast<int>(decimals), x);
    if (printed <= 0 || printed >= static_cast<int>(sizeof text))
        return 0;
    std::uint32_t length = 0;
    bool in_point = false;
    for (int i = 0; i < printed; ++i) {
        const char c = text[i];
        const bool point = !is_ascii_digit(c) && c != '-' && c != ' ';
        if (point && in_point)
            continue;
        in_point = point;
        if (length + 1 >= size)
            return 0;
        out[length++] = point ? '.' : c;
    }
    return length;
}

std::uint32_t length_without_padding(const char *text, std::uint32_t length) noexcept
{
    while (length > 0 && text[length - 1] == ' ')
        --length;
    return length;
}

} // namespace zeb
