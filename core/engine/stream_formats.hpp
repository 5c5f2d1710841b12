/// The formats and delimiters of a new stream.
#pragma once

#include "core/engine/char_span.hpp"

namespace zeb::engine
{

inline constexpr const char *first_char_format = "%c";
inline constexpr const char *first_int_format = "%d";
inline constexpr const char *first_unsigned_format = "%u";
inline constexpr const char *first_float_format = "%g";
inline constexpr const char *first_double_format = "%g";
inline constexpr const char *first_character_code_format = "'\\%03X'";
inline constexpr const char *first_unsigned_long_format = "%lu";
inline constexpr const char *first_hex_format = "%08X";
inline constexpr const char *first_date_format = "%m/%d/%Y %H:%M:%S";
inline constexpr Char_Span first_open_delimiter = span_of("{");
inline constexpr Char_Span first_close_delimiter = span_of("}");
inline constexpr Char_Span first_separator = span_of(", ");

/// Returns `format`, or `first` for a null one.
inline const char *or_first(const char *format, const char *first) noexcept
{
    return format != nullptr ? format : first;
}

} // namespace zeb::engine
