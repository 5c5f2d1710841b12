/// The formats and delimiters of a new stream.
#pragma once

#include "core/engine/char_span.hpp"

namespace zeb::engine
{

inline constexpr const char *default_char_format = "%c";
inline constexpr const char *default_int_format = "%d";
inline constexpr const char *default_unsigned_format = "%u";
inline constexpr const char *default_float_format = "%g";
inline constexpr const char *default_double_format = "%g";
inline constexpr const char *default_character_code_format = "'\\%03X'";
inline constexpr const char *default_unsigned_long_format = "%lu";
inline constexpr const char *default_hex_format = "%08X";
inline constexpr const char *default_date_format = "%m/%d/%Y %H:%M:%S";
inline constexpr Char_Span default_open_delimiter = span_of("{");
inline constexpr Char_Span default_close_delimiter = span_of("}");
inline constexpr Char_Span default_separator = span_of(", ");

/// Returns `format`, or `first` for a null one.
inline const char *or_default(const char *format, const char *first) noexcept
{
    return format != nullptr ? format : first;
}

} // namespace zeb::engine
