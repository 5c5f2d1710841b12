#include "numbers/engine/number_format.hpp"

#include "numbers/engine/padded_fixed.hpp"
#include "numbers/engine/pretty_number.hpp"

#include <cmath>
#include <cstring>

namespace zeb::engine
{
namespace
{

constexpr std::uint32_t fixed_text_size = 64;
constexpr Number_Format_Result failed_result{not_a_number_result, number_format_error, {0, 0}};

char *write_not_finite(char *buffer, double x, Number_Format_Result &result) noexcept
{
    result = failed_result;
    return write_pretty_double(buffer, x);
}

} // namespace

char *format_value(char *buffer, const Scientific_Rules &rules, double x,
                   Number_Format_Result &result) noexcept
{
    if (!std::isfinite(x))
        return write_not_finite(buffer, x, result);
    const double magnitude = std::fabs(x);
    if (magnitude <= 1e-12 * rules.zero_reference) {
        result = {zero_result, 0, {0, 0}};
        return write_pretty_double(buffer, 0.0);
    }
    if (magnitude >= 0.0001 && magnitude < 1000000.0) {
        result = {fixed_result, 0, {0, 0}};
        return write_pretty_double(buffer, x);
    }
    result.error_code = 0;
    return write_scientific(buffer, rules, x, &result.result_kind, &result.range);
}

char *format_fixed(char *buffer, std::uint32_t decimals, double x, Number_Format_Result &result) noexcept
{
    if (!std::isfinite(x))
        return write_not_finite(buffer, x, result);
    char padded[fixed_text_size];
    const std::uint32_t length =
        length_without_padding(padded, put_padded_fixed(padded, fixed_text_size, decimals, x));
    result = length == 0 ? failed_result : Number_Format_Result{fixed_result, 0, {0, 0}};
    std::memcpy(buffer, padded, length);
    buffer[length] = '\0';
    return buffer + length;
}

} // namespace zeb::engine
