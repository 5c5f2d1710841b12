#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>

namespace zeb::engine
{

/// What kind of text a number became.
enum : std::uint32_t {
    not_a_number_result = 0,
    zero_result = 1,
    fixed_result = 2,
    general_result = 3,
};

/// Room for every text of the scientific form: mantissa and base of at most 31 characters, an exponent of at
/// most 20, a space and the null.
inline constexpr std::uint32_t scientific_text_size = 96;

/// How a number is taken apart.
struct Scientific_Rules {
    std::uint32_t precision; // decimals of the mantissa before its trailing zeros are dropped
    double base;             // of the power
    double zero_reference;   // magnitudes up to 1e-12 times this have the mantissa 0 and the exponent 1
};

/// Writes mantissa, space, base and exponent ("1.23 106" is 1.23 * 10^6); the exponent is meant to be raised,
/// and `range` holds the zero-based offsets of its first and last character in this text. The mantissa lies
/// in [1, base), for Euler's number, whose text is "e", in (1/e, 1]. A mantissa of one character before its
/// point is dropped (with precision 0) is left out together with the space. Infinity gives "Inf", not a
/// number "NaN", a base of 0 or that is not finite, what has no finite logarithm, power or mantissa in this
/// base, or is too long for a part's place, "Err", each with kind 0 and range 0; the kind is general_result
/// otherwise. result_kind and range may be null. The decimal point is '.' in every locale. The buffer needs
/// scientific_text_size bytes; nothing is written after the terminating null, a pointer to which is returned.
char *write_scientific(char *buffer, const Scientific_Rules &rules, double x, std::uint32_t *result_kind,
                       ZEB_Index_Range *range) noexcept;

} // namespace zeb::engine
