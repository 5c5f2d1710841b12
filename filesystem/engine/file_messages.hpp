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

inline constexpr Char_Span error_relative_file = span_of("Cannot make relative file: ");
inline constexpr Char_Span error_creating_file = span_of("Error creating file with name: ");
inline constexpr Char_Span created_file = span_of("Created file with name: ");

inline constexpr Char_Span error_relative_directory = span_of("Cannot make relative directory: ");
inline constexpr Char_Span error_creating_directory = span_of("Error creating directory with name: ");
inline constexpr Char_Span because = span_of("; because: ");
inline constexpr Char_Span no_prefix = span_of("A component of the path prefix does not exist.");
inline constexpr Char_Span no_directory = span_of("A component of the path prefix is not a directory.");
inline constexpr Char_Span exists_already = span_of("The named file exists.");
inline constexpr Char_Span full_stop = span_of(".");
inline constexpr Char_Span created_directory = span_of("Created directory with name: ");

inline constexpr Char_Span error_creating_level = span_of("Error creating level ");
inline constexpr Char_Span created_level = span_of("Created level ");
inline constexpr Char_Span partial_path = span_of(" partial path: ");

inline constexpr Char_Span error_link_over_file =
    span_of("Cannot create a symbolic link entry over the regular file: ");
inline constexpr Char_Span error_removing_link = span_of("Error removing symbolic link entry: ");
inline constexpr Char_Span removed_link = span_of("Removed symbolic link entry: ");
inline constexpr Char_Span error_making_link = span_of("Error making symbolic link: ");
inline constexpr Char_Span made_link = span_of("Made symbolic link: ");

inline constexpr Char_Span error_no_unique_path =
    span_of("Maximum tries exceeded, the file name is not be unique. The last path name tried is:");

inline constexpr Char_Span removed_file = span_of("Removed file: ");
inline constexpr Char_Span error_removing_file = span_of("Error removing file: ");
inline constexpr Char_Span tested_directory = span_of("Tested accessibility of directory: ");
inline constexpr Char_Span error_missing_directory = span_of("Error removing nonexistent directory: ");
inline constexpr Char_Span removed_directory = span_of("Removed directory: ");
inline constexpr Char_Span error_removing_directory = span_of("Error removing directory: ");

} // namespace zeb::engine::messages
