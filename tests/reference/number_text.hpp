#pragma once

// Number text as plainly as it can be said, with the C library's formatting in the "C" locale.

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

namespace reference
{

inline double power_of_ten(unsigned power)
{
    double result = 1.0;
    for (unsigned i = 0; i < power; ++i)
        result *= 10.0;
    return result;
}

// n with k decimals; digit counts are those of the integer, found by dividing.
inline std::string lay_out(std::uint64_t n, unsigned k, bool leading_zero)
{
    std::string digits;
    for (std::uint64_t rest = n; rest != 0; rest /= 10)
        digits.insert(digits.begin(), "0123456789"[rest % 10]);
    if (k == 0)
        return digits;
    while (digits.size() < k)
        digits.insert(digits.begin(), '0');
    std::string whole = digits.substr(0, digits.size() - k);
    if (whole.empty() && leading_zero)
        whole = "0";
    return whole + "." + digits.substr(digits.size() - k);
}

// Digits from the last one backwards, their number by logarithm: right for every 32-bit value.
inline char *unsigned_digits(char *buffer, std::uint32_t value)
{
    if (value == 0) {
        buffer[0] = '0';
        buffer[1] = '\0';
        return buffer + 1;
    }
    const int count = static_cast<int>(std::trunc(std::log10(static_cast<double>(value)))) + 1;
    for (int i = count - 1; i >= 0; --i) {
        buffer[i] = "0123456789"[value % 10];
        value /= 10;
    }
    buffer[count] = '\0';
    return buffer + count;
}

// For numbers whose product fits in a signed 64-bit integer; of others the result is not used.
#if defined(__clang__)
__attribute__((no_sanitize("float-cast-overflow")))
#endif
inline std::string
fixed(unsigned d, double x)
{
    std::uint64_t n = static_cast<std::uint64_t>(std::floor(std::fabs(x) * power_of_ten(d) + 0.5));
    if (n == 0)
        return "0";
    unsigned k = d;
    while (k > 0 && n % 10 == 0) {
        n = n / 10;
        k = k - 1;
    }
    return (x < 0 ? "-" : "") + lay_out(n, k, true);
}

inline std::string fraction(unsigned d, double x)
{
    const std::string text = fixed(d, std::fabs(x));
    if (text == "0")
        return "";
    return text[0] == '0' ? text.substr(1) : text;
}

inline std::string exponent_form(double x, const char *format)
{
    char text[64];
    std::snprintf(text, sizeof text, format, x);
    std::string result = text;
    const std::size_t e = result.find('e');
    std::size_t end = e;
    while (result[end - 1] == '0')
        --end;
    if (result[end - 1] == '.')
        --end;
    return result.substr(0, end) + result.substr(e);
}

inline std::string pretty_double(double x)
{
    const double a = std::fabs(x);
    if (std::isinf(a))
        return "Inf";
    if (std::isnan(a))
        return "NaN";
    if (x == 0)
        return "0";
    if (a < 0.0001)
        return exponent_form(x, "%-.14e");
    if (a < 1)
        return fixed(12, x);
    if (a < 1000000)
        return fixed(10, x);
    return exponent_form(x, "%-.14e");
}

inline std::string pretty_float(float x)
{
    const double a = std::fabs(static_cast<double>(x));
    if (std::isinf(a))
        return "Inf";
    if (std::isnan(a))
        return "NaN";
    if (x == 0)
        return "0";
    if (a < 0.0001 || a >= 1000000)
        return exponent_form(static_cast<double>(x), "%-.5e");
    return fixed(4, static_cast<double>(x));
}

} // namespace reference
