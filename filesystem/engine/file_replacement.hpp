/// Replacing a file by a new one of the same name.
#pragma once

#include <cstddef>

namespace zeb::engine
{

enum class Replacing_Step { opening, writing, flushing_name };

struct Replacement_Result {
    Replacing_Step step; // the step that failed, or the last one: then the file is replaced
    int error;
};

/// Writes `size` bytes into a new file beside the one at `path`, flushes it to the device, and renames it
/// over that one, whose mode and owner it has. On failure before the renaming, the new file is removed and
/// the old one unchanged. A symbolic link leads to the file to replace. What exists must be a regular file
/// that may be written.
Replacement_Result replace_file(const char *path, const void *bytes, std::size_t size) noexcept;

} // namespace zeb::engine
