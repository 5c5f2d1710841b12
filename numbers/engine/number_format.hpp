#pragma once

#include "numbers/engine/scientific_form.hpp"

namespace zeb::engine
{

/// The error code of a number that is infinite or not a number, and of a text that could not be made.
inline constexpr std::uint32_t number_format_error = 201;

/// What a new number format starts with.
inline constexpr Scientific_Rules default_number_format{6, 10.0, 1.0};

/// What a formatted number says about itself. The range counts from the start of the number's own text.
struct Number_Format_Result {
    std::uint32_t result_kind;
    std::uint32_t error_code; // 0 or number_format_error
    ZEB_Index_Range range;    // of a raised exponent, else 0
};

/// Writes a number for a reader: "0" for a magnitude of at most 1e-12 times the zero reference, fixed
/// notation from 0.0001 to below 1000000, the scientific form outside. The buffer needs scientific_text_size
/// bytes; returns a pointer to the terminating null.
char *format_value(char *buffer, const Scientific_Rules &rules, double x,
                   Number_Format_Result &result) noexcept;

/// Writes a number with a fixed count of decimals, its trailing zeros included and no padding; its kind is
/// fixed_result. A text of more than 63 characters cannot be made: the buffer is then empty, the kind 0 and
/// the error code set. The buffer needs 64 bytes; returns a pointer to the terminating null.
char *format_fixed(char *buffer, std::uint32_t decimals, double x, Number_Format_Result &result) noexcept;

} // namespace zeb::engine
