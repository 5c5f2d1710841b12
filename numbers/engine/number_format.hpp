/// Numbers formatted for display, with the notation used and the place of the exponent.
#pragma once

#include "numbers/engine/scientific_form.hpp"

namespace zeb::engine
{

/// The error code for infinity, NaN, and a text that is too long.
inline constexpr std::uint32_t number_format_error = 201;

/// The settings of a new number format.
inline constexpr Scientific_Rules default_number_format{6, 10.0, 1.0};

/// The notation of a formatted number. The range counts from the start of the number's own text.
struct Number_Format_Result {
    std::uint32_t result_kind;
    std::uint32_t error_code; // 0 or number_format_error
    ZEB_Index_Range range;    // of a raised exponent, else 0
};

/// Writes a number for display: "0" for a magnitude of at most 1e-12 times the zero reference, fixed notation
/// from 0.0001 to below 1000000, else the scientific form. The buffer needs scientific_text_size bytes;
/// returns a pointer to the terminating null.
char *format_value(char *buffer, const Scientific_Rules &rules, double x,
                   Number_Format_Result &result) noexcept;

/// Writes a number with exactly `decimals` decimals, without padding; its kind is fixed_result. If the text
/// exceeds 63 characters, the buffer is empty, the kind 0 and the error code set. The buffer needs 64 bytes;
/// returns a pointer to the terminating null.
char *format_fixed(char *buffer, std::uint32_t decimals, double x, Number_Format_Result &result) noexcept;

} // namespace zeb::engine
