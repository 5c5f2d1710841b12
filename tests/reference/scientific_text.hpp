#pragma once

// The scientific form and the number format as plainly as they can be said, in the "C" locale.

#include "tests/reference/number_text.hpp"

#include <cstdint>

namespace reference
{

struct Scientific {
    std::string text;
    std::uint32_t kind = 0, error = 0, start = 0, end = 0;
};

// A sprintf into a place of `size` bytes; empty when it fails or does not fit.
template <typename... Arguments>
std::string bounded(std::size_t size, const char *format, Arguments... arguments)
{
    std::string text(size, '\0');
    const int length = std::snprintf(text.data(), size, format, arguments...);
    if (length <= 0 || static_cast<std::size_t>(length) >= size)
        return "";
    text.resize(static_cast<std::size_t>(length));
    return text;
}

inline std::string without_zeros(std::string text)
{
    while (!text.empty() && (text.back() == ' ' || text.back() == '0'))
        text.pop_back();
    return text;
}

inline std::string without_point(std::string text)
{
    if (!text.empty() && text.back() == '.')
        text.pop_back();
    return text;
}

inline Scientific scientific(unsigned p, double x, double b, double z)
{
    if (std::isinf(x))
        return {"Inf"};
    if (std::isnan(x))
        return {"NaN"};
    if (b == 0 || !std::isfinite(b))
        return {"Err"};
    const bool euler = std::fabs(b - 2.718281828459045) < 1e-12;
    double mantissa = 0.0, exponent = 1.0;
    if (!(std::fabs(x) <= 1e-12 * z)) {
        const double r = std::log10(std::fabs(x)) / std::log10(b);
        exponent = euler ? std::ceil(r) : std::floor(r + 1e-12);
        const double power = std::pow(b, exponent);
        mantissa = std::fabs(x) / power;
        if (!std::isfinite(r) || !std::isfinite(power) || !std::isfinite(mantissa))
            return {"Err"};
    }
    const std::string printed = bounded(32, x < 0 ? "-%-20.*f" : "%-20.*f", static_cast<int>(p), mantissa);
    const std::string base = euler ? "e" : bounded(32, "%-20.6f", b);
    if (printed.empty() || base.empty())
        return {"Err"};
    Scientific result;
    const std::string trimmed = without_zeros(printed);
    if (trimmed.size() > 1)
        result.text = without_point(trimmed) + " ";
    result.text += euler ? base : without_point(without_zeros(base));
    result.start = static_cast<std::uint32_t>(result.text.size());
    result.text += bounded(32, "%ld", static_cast<long>(exponent));
    result.end = static_cast<std::uint32_t>(result.text.size()) - 1;
    result.kind = 3;
    return result;
}

inline Scientific format_value(unsigned p, double x, double b, double z)
{
    const double a = std::fabs(x);
    if (std::isinf(a))
        return {"Inf", 0, 201};
    if (std::isnan(a))
        return {"NaN", 0, 201};
    if (a <= 1e-12 * z)
        return {"0", 1};
    if (a >= 0.0001 && a < 1)
        return {fixed(12, x), 2};
    if (a >= 1 && a < 1000000)
        return {fixed(10, x), 2};
    return scientific(p, x, b, z);
}

inline Scientific format_fixed(unsigned p, double x)
{
    if (!std::isfinite(x))
        return {std::isnan(x) ? "NaN" : "Inf", 0, 201};
    std::string text = bounded(64, "%-20.*f", static_cast<int>(p), x);
    if (text.empty())
        return {"", 0, 201};
    while (text.back() == ' ')
        text.pop_back();
    return {text, 2};
}

} // namespace reference
