/// Numbers as mantissa and power of a base.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>

namespace zeb::engine
{

/// The notation of a formatted number.
enum : std::uint32_t {
    not_a_number_result = 0,
    zero_result = 1,
    fixed_result = 2,
    general_result = 3,
};

/// Size of a buffer for every scientific text: mantissa and base of at most 31 characters each, an exponent
/// of at most 20, a space and the null.
inline constexpr std::uint32_t scientific_text_size = 96;

/// The settings of the scientific form.
struct Scientific_Rules {
    std::uint32_t precision; // decimals of the mantissa before its trailing zeros are removed
    double base;             // of the power
    double zero_reference;   // magnitudes up to 1e-12 times this have the mantissa 0 and the exponent 1
};

/// Writes mantissa, space, base and exponent ("1.23 106" is 1.23 * 10^6). The exponent is meant to be raised;
/// `range` receives the zero-based offsets of its first and last character in this text. The mantissa lies in
/// [1, base), or in (1/e, 1] for Euler's number, which is written "e". A mantissa that is reduced to one
/// character (with precision 0) is omitted with its space.
///
/// Infinity is "Inf" and NaN "NaN"; a base that is 0 or not finite, a number without a finite logarithm,
/// power or mantissa in this base, and a part that is too long give "Err". The kind and the range of these
/// are 0; otherwise the kind is general_result. result_kind and range may be null. The decimal point is '.'
/// in every locale. The buffer needs scientific_text_size bytes; nothing is written after the terminating
/// null, a pointer to which is returned.
char *write_scientific(char *buffer, const Scientific_Rules &rules, double x, std::uint32_t *result_kind,
                       ZEB_Index_Range *range) noexcept;

} // namespace zeb::engine
