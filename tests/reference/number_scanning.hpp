#pragma once

// The scanners as plainly as they can be said: a copy of 31 characters and the C library.

#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <strings.h>

namespace reference
{

template <typename Result, typename Convert>
std::uint32_t scan(const std::string &text, Result *result, Convert convert)
{
    char copy[32] = {};
    std::memcpy(copy, text.data(), text.size() < 31 ? text.size() : 31);
    char *end = copy;
    const auto value = convert(copy, &end);
    if (end == copy)
        return 0;
    *result = static_cast<Result>(value);
    return static_cast<std::uint32_t>(end - copy);
}

inline std::uint32_t scan_double(const std::string &text, double *result)
{
    return scan(text, result, [](const char *copy, char **end) { return std::strtod(copy, end); });
}

inline std::uint32_t scan_float(const std::string &text, float *result)
{
    return scan(text, result, [](const char *copy, char **end) { return std::strtof(copy, end); });
}

template <typename Signed>
std::uint32_t scan_signed(const std::string &text, int base, Signed *result)
{
    if (base == 1 || base < 0 || base > 36)
        return 0;
    return scan(text, result, [base](const char *copy, char **end) { return std::strtoll(copy, end, base); });
}

template <typename Unsigned>
std::uint32_t scan_unsigned(const std::string &text, int base, Unsigned *result)
{
    if (base == 1 || base < 0 || base > 36)
        return 0;
    return scan(text, result,
                [base](const char *copy, char **end) { return std::strtoull(copy, end, base); });
}

inline std::uint32_t special_value(const std::string &text)
{
    const auto stands_at = [&text](std::size_t index, const std::string &word) {
        const std::size_t after = index + word.size();
        return after <= text.size() && strncasecmp(text.data() + index, word.data(), word.size()) == 0 &&
               (after == text.size() || std::isspace(static_cast<unsigned char>(text[after])));
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.size() - i >= 8 && stands_at(i, "infinity"))
            return static_cast<std::uint32_t>(i);
        if (stands_at(i, "inf") || stands_at(i, "nan"))
            return static_cast<std::uint32_t>(i);
    }
    return static_cast<std::uint32_t>(text.size());
}

} // namespace reference
