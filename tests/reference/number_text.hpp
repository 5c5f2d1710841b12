#pragma once

// Number text as plainly as it can be said, with the C library's formatting in the "C" locale.

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string>

namespace reference
{

inline std::string without_zeros(std::string text)
{
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text;
}

// For numbers whose digits fit in a signed 64-bit integer.
inline std::string fixed(unsigned decimals, double x)
{
    double scale = 1.0;
    for (unsigned i = 0; i < decimals; ++i)
        scale *= 10.0;
    const auto scaled = static_cast<std::uint64_t>(std::floor(std::fabs(x) * scale + 0.5));
    if (scaled == 0)
        return "0";
    std::string digits = std::to_string(scaled);
    if (digits.size() <= decimals)
        digits.insert(0, decimals + 1 - digits.size(), '0');
    digits.insert(digits.size() - decimals, ".");
    return (x < 0 ? "-" : "") + without_zeros(digits);
}

inline std::string fraction(unsigned decimals, double x)
{
    const std::string text = fixed(decimals, std::fabs(x));
    return text[0] == '0' ? text.substr(1) : text;
}

inline std::string pretty(double x, unsigned decimals_below_one, unsigned decimals, int significant_digits)
{
    const double magnitude = std::fabs(x);
    if (std::isnan(x) || std::isinf(x))
        return std::isnan(x) ? "NaN" : "Inf";
    if (x == 0)
        return "0";
    if (magnitude >= 0.0001 && magnitude < 1000000)
        return fixed(magnitude < 1 ? decimals_below_one : decimals, x);
    char text[64];
    std::snprintf(text, sizeof text, "%.*e", significant_digits - 1, x);
    const std::string printed = text;
    const std::size_t e = printed.find('e');
    return without_zeros(printed.substr(0, e)) + printed.substr(e);
}

inline std::string pretty_double(double x) { return pretty(x, 12, 10, 15); }
inline std::string pretty_float(float x) { return pretty(static_cast<double>(x), 4, 4, 6); }

// The standard library's shortest digits, in the framework's notation.
template <class Number>
std::string shortest(Number x)
{
    const std::string sign = std::signbit(x) && !std::isnan(x) ? "-" : "";
    if (!std::isfinite(x) || x == 0)
        return std::isnan(x) ? "NaN" : sign + (x == 0 ? "0" : "Inf");
    char place[64];
    const auto end =
        std::to_chars(place, place + sizeof place, std::fabs(x), std::chars_format::scientific).ptr;
    const std::string printed(place, end);
    const std::size_t e = printed.find('e');
    const int exponent = std::stoi(printed.substr(e + 1));
    if (exponent < -4 || exponent > 15)
        return sign + printed;
    std::string digits = printed.substr(0, 1) + printed.substr(e > 1 ? 2 : 1, e > 1 ? e - 2 : 0);
    digits.insert(0, static_cast<std::size_t>(exponent < 0 ? -exponent : 0), '0');
    const std::size_t point = exponent < 0 ? 1 : static_cast<std::size_t>(exponent) + 1;
    digits.append(point > digits.size() ? point - digits.size() : 0, '0');
    return sign + (point < digits.size() ? digits.insert(point, ".") : digits);
}

} // namespace reference
