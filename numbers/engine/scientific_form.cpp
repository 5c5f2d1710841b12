#include "numbers/engine/scientific_form.hpp"

#include "numbers/engine/padded_fixed.hpp"
#include "numbers/engine/unsigned_text.hpp"

#include <cmath>
#include <cstring>

namespace zeb::engine
{
namespace
{

constexpr std::uint32_t part_size = 32; // of mantissa and base, null included
constexpr double eulers_number = 2.718281828459045;
constexpr double largest_exponent = 0x1p63;

struct Power_Form {
    double mantissa;
    std::int64_t exponent;
};

bool is_eulers_number(double base) noexcept { return std::fabs(base - eulers_number) < 1e-12; }

/// Splits a magnitude into mantissa and exponent. Returns false if the base or a step is not finite.
bool split(const Scientific_Rules &rules, double magnitude, Power_Form &form) noexcept
{
    if (rules.base == 0 || !std::isfinite(rules.base))
        return false;
    if (magnitude <= 1e-12 * rules.zero_reference) {
        form = {0.0, 1};
        return true;
    }
    const double ratio = std::log10(magnitude) / std::log10(rules.base);
    const double exponent = is_eulers_number(rules.base) ? std::ceil(ratio) : std::floor(ratio + 1e-12);
    if (!(std::fabs(exponent) < largest_exponent))
        return false;
    const double power = std::pow(rules.base, exponent);
    form = {magnitude / power, static_cast<std::int64_t>(exponent)};
    return std::isfinite(power) && std::isfinite(form.mantissa);
}

/// Returns the length without trailing spaces and zeros; a trailing point stays.
std::uint32_t trimmed_length(const char *text, std::uint32_t length) noexcept
{
    while (length > 0 && (text[length - 1] == ' ' || text[length - 1] == '0'))
        --length;
    return length;
}

std::uint32_t length_without_point(const char *text, std::uint32_t length) noexcept
{
    return length > 0 && text[length - 1] == '.' ? length - 1 : length;
}

// Each of these returns the end of its part, or null if the part does not fit.

char *put_mantissa(char *out, std::uint32_t precision, double mantissa, bool negative) noexcept
{
    if (negative)
        *out = '-';
    const std::uint32_t printed = put_padded_fixed(out + negative, part_size - negative, precision, mantissa);
    if (printed == 0)
        return nullptr;
    const std::uint32_t length = trimmed_length(out, printed + negative);
    if (length <= 1)
        return out;
    char *end = out + length_without_point(out, length);
    *end = ' ';
    return end + 1;
}

char *put_base(char *out, double base) noexcept
{
    if (is_eulers_number(base)) {
        *out = 'e';
        return out + 1;
    }
    const std::uint32_t printed = put_padded_fixed(out, part_size, 6, base);
    return printed == 0 ? nullptr : out + length_without_point(out, trimmed_length(out, printed));
}

/// The assembled text: parts are printed with padding, and a later one may fail, so the caller's buffer is
/// written only at the end.
struct Scientific_Text {
    char text[scientific_text_size];
    char *exponent = nullptr;
    char *end = nullptr;
};

bool assemble(Scientific_Text &result, const Scientific_Rules &rules, double x) noexcept
{
    Power_Form form;
    if (!split(rules, std::fabs(x), form))
        return false;
    char *const base = put_mantissa(result.text, rules.precision, form.mantissa, x < 0);
    result.exponent = base ? put_base(base, rules.base) : nullptr;
    if (!result.exponent)
        return false;
    result.end = put_signed_64(result.exponent, form.exponent);
    return true;
}

char *finish(char *buffer, const char *text, std::size_t length) noexcept
{
    std::memcpy(buffer, text, length);
    buffer[length] = '\0';
    return buffer + length;
}

} // namespace

char *write_scientific(char *buffer, const Scientific_Rules &rules, double x, std::uint32_t *result_kind,
                       ZEB_Index_Range *range) noexcept
{
    ZEB_Index_Range unused_range;
    std::uint32_t unused_kind;
    ZEB_Index_Range &exponent_range = range ? *range : unused_range;
    std::uint32_t &kind = result_kind ? *result_kind : unused_kind;
    exponent_range = {0, 0};
    kind = not_a_number_result;
    if (!std::isfinite(x))
        return finish(buffer, std::isnan(x) ? "NaN" : "Inf", 3);

    Scientific_Text made;
    if (!assemble(made, rules, x))
        return finish(buffer, "Err", 3);
    exponent_range = {static_cast<std::uint32_t>(made.exponent - made.text),
                      static_cast<std::uint32_t>(made.end - made.text) - 1};
    kind = general_result;
    return finish(buffer, made.text, static_cast<std::size_t>(made.end - made.text));
}

} // namespace zeb::engine
