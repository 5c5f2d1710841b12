#include "numbers/engine/pretty_number.hpp"

#include "numbers/engine/exponent_text.hpp"
#include "numbers/engine/fixed_text.hpp"

#include <cmath>
#include <cstring>

namespace zeb::engine
{
namespace
{

char *write_word(char *buffer, const char *word) noexcept
{
    const std::size_t length = std::strlen(word);
    std::memcpy(buffer, word, length + 1);
    return buffer + length;
}

/// Writes a number outside the range of fixed notation.
template <int significant_digits>
char *write_outside_number(char *buffer, double x) noexcept
{
    if (x == 0)
        return write_word(buffer, "0");
    if (std::isinf(x))
        return write_word(buffer, "Inf");
    if (std::isnan(x))
        return write_word(buffer, "NaN");
    char *end = put_exponent_form<significant_digits>(buffer, x);
    *end = '\0';
    return end;
}

} // namespace

char *write_pretty_double(char *buffer, double x) noexcept
{
    const double magnitude = std::fabs(x);
    if (!(magnitude >= 0.0001 && magnitude < 1000000.0))
        return write_outside_number<15>(buffer, x);
    return write_fixed_in_pretty_range(buffer, x);
}

char *write_pretty_float(char *buffer, float x) noexcept
{
    const double magnitude = std::fabs(static_cast<double>(x));
    if (!(magnitude >= 0.0001 && magnitude < 1000000.0))
        return write_outside_number<6>(buffer, static_cast<double>(x));
    return write_fixed_float(buffer, 4, x);
}

} // namespace zeb::engine
