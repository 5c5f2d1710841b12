#include "numbers/engine/number_scanning.hpp"

#include "core/engine/ascii.hpp"
#include "core/engine/c_locale.hpp"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

#if ZEB_HAS_FAST_FLOAT
#include <fast_float/fast_float.h>
#endif

namespace zeb::engine
{
namespace
{

constexpr std::uint32_t longest_number = 31;

/// Scans with `convert`, a strto..._l function in the "C" locale that takes the text and a pointer to the
/// end.
template <class Result, class Convert>
std::uint32_t scan_with_c_library(const char *chars, std::uint32_t length, Result &result,
                                  Convert convert) noexcept
{
    const std::uint32_t size = std::min(length, longest_number);
    if (size == 0)
        return 0;
    char text[longest_number + 1];
    std::memcpy(text, chars, size);
    text[size] = '\0';
    char *end = text;
    const auto value = convert(text, &end);
    const std::uint32_t consumed = static_cast<std::uint32_t>(end - text);
    if (consumed != 0)
        result = static_cast<Result>(value);
    return consumed;
}

/// Whether the base is defined: for others the C libraries differ.
constexpr bool is_base(int base) noexcept { return base == 0 || (base >= 2 && base <= 36); }

template <class Signed>
std::uint32_t scan_signed(const char *chars, std::uint32_t length, int base, Signed &result) noexcept
{
    if (!is_base(base))
        return 0;
    return scan_with_c_library(chars, length, result, [base](const char *text, char **end) {
        return strtoll_l(text, end, base, c_locale());
    });
}

template <class Unsigned>
std::uint32_t scan_natural(const char *chars, std::uint32_t length, int base, Unsigned &result) noexcept
{
    if (!is_base(base))
        return 0;
    return scan_with_c_library(chars, length, result, [base](const char *text, char **end) {
        return strtoull_l(text, end, base, c_locale());
    });
}

#if ZEB_HAS_FAST_FLOAT

/// Whether the text starts with digits or a point after an optional '-', and not with white space, '+', a
/// word or a hexadecimal number.
bool is_plain_decimal(const char *chars, std::uint32_t size) noexcept
{
    const std::uint32_t first = size > 0 && chars[0] == '-';
    if (first >= size || !(is_ascii_digit(chars[first]) || chars[first] == '.'))
        return false;
    return !(chars[first] == '0' && first + 1 < size && ascii_lower(chars[first + 1]) == 'x');
}

template <class Real>
std::uint32_t scan_fast(const char *chars, std::uint32_t length, Real &result) noexcept
{
    const std::uint32_t size = std::min(length, longest_number);
    if (!is_plain_decimal(chars, size))
        return 0;
    Real value;
    const auto answer = fast_float::from_chars(chars, chars + size, value);
    if (answer.ec != std::errc() || !std::isfinite(value))
        return 0;
    result = value;
    return static_cast<std::uint32_t>(answer.ptr - chars);
}

#else

template <class Real>
std::uint32_t scan_fast(const char *, std::uint32_t, Real &) noexcept
{
    return 0;
}

#endif

} // namespace

std::uint32_t scan_double(const char *chars, std::uint32_t length, double &result) noexcept
{
    if (const std::uint32_t consumed = scan_fast(chars, length, result))
        return consumed;
    return scan_with_c_library(chars, length, result,
                               [](const char *text, char **end) { return strtod_l(text, end, c_locale()); });
}

std::uint32_t scan_float(const char *chars, std::uint32_t length, float &result) noexcept
{
    if (const std::uint32_t consumed = scan_fast(chars, length, result))
        return consumed;
    return scan_with_c_library(chars, length, result,
                               [](const char *text, char **end) { return strtof_l(text, end, c_locale()); });
}

std::uint32_t scan_int(const char *chars, std::uint32_t length, int base, std::int32_t &result) noexcept
{
    return scan_signed(chars, length, base, result);
}

std::uint32_t scan_unsigned(const char *chars, std::uint32_t length, int base, std::uint32_t &result) noexcept
{
    return scan_natural(chars, length, base, result);
}

std::uint32_t scan_int_64(const char *chars, std::uint32_t length, int base, std::int64_t &result) noexcept
{
    return scan_signed(chars, length, base, result);
}

std::uint32_t scan_unsigned_64(const char *chars, std::uint32_t length, int base,
                               std::uint64_t &result) noexcept
{
    return scan_natural(chars, length, base, result);
}

} // namespace zeb::engine
