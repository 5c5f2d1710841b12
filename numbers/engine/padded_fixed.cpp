#include "numbers/engine/padded_fixed.hpp"

#include "core/engine/c_locale.hpp"

#include <cstdio>

namespace zeb::engine
{

std::uint32_t put_padded_fixed(char *out, std::uint32_t size, std::uint32_t decimals, double x) noexcept
{
    constexpr std::uint32_t max_decimals = 64; // more never fit, and up to here the count is a valid int
    if (decimals > max_decimals)
        return 0;
    const C_Locale_Scope in_c_locale;
    const int printed = std::snprintf(out, size, "%-20.*f", static_cast<int>(decimals), x);
    return printed <= 0 || printed >= static_cast<int>(size) ? 0 : static_cast<std::uint32_t>(printed);
}

std::uint32_t length_without_padding(const char *text, std::uint32_t length) noexcept
{
    while (length > 0 && text[length - 1] == ' ')
        --length;
    return length;
}

} // namespace zeb::engine
