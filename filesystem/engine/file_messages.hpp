/// The messages of file operations; the path follows.
#pragma once

#include "core/engine/char_span.hpp"

namespace zeb::engine::messages
{

inline constexpr Char_Span error_opening = span_of("Error opening file: ");
inline constexpr Char_Span error_no_size = span_of("Error, zero content size for file: ");
inline constexpr Char_Span error_too_large = span_of("Error, contents too large for file: ");
inline constexpr Char_Span error_reading = span_of("Error reading contents of file: ");
inline constexpr Char_Span error_decompressing =
    span_of("Error: Decompress failed while reading contents of file: ");
inline constexpr Char_Span error_compressing =
    span_of("Error: Compress failed before writing contents of file: ");
inline constexpr Char_Span error_writing = span_of("Error writing contents to file: ");

inline constexpr Char_Span warning_length_read = span_of("Warning: Discrepancy in actual length read ");
inline constexpr Char_Span against_content_size = span_of(" v.s. content size ");
inline constexpr Char_Span while_reading = span_of(" while reading contents of file: ");
inline constexpr Char_Span warning_length_written = span_of("Warning: Discrepancy in actual length written ");
inline constexpr Char_Span against_specified_length = span_of(" v.s. specified length ");
inline constexpr Char_Span while_writing = span_of(" while writing contents to file: ");

inline constexpr Char_Span error_opening_source = span_of("Error opening source file for copying: ");
inline constexpr Char_Span leads_to = span_of(" -> ");
inline constexpr Char_Span error_copying_to = span_of("Error copying to file: ");
inline constexpr Char_Span error_reading_copied = span_of("Error copying contents from file: ");
inline constexpr Char_Span error_writing_copied = span_of("Error copying contents to file: ");
inline constexpr Char_Span while_reading_copied = span_of(" while copying contents from file: ");
inline constexpr Char_Span against_length_written = span_of(" v.s. actual length written ");
inline constexpr Char_Span while_writing_copied = span_of(" while copying contents to file: ");
inline constexpr Char_Span copied = span_of("Copied file: ");
inline constexpr Char_Span moved = span_of("Moved file: ");
inline constexpr Char_Span error_moving = span_of("Error moving file: ");
inline constexpr Char_Span to = span_of(" to ");

inline constexpr Char_Span error_no_document = span_of("Error, too short for a document: ");
inline constexpr Char_Span error_check_sum = span_of("Error, check sum differs in document: ");

inline constexpr Char_Span backstored = span_of("Backstored file: ");
inline constexpr Char_Span error_backstoring = span_of("Error backstoring file: ");
inline constexpr Char_Span restored = span_of("Restored file: ");
inline constexpr Char_Span error_restoring = span_of("Error restoring file: ");

} // namespace zeb::engine::messages
