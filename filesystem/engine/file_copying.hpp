/// Copying files.
#pragma once

#include "filesystem/engine/file_status.hpp"

#include <cstdint>

namespace zeb::engine
{

struct Copy_Request {
    const char *from;
    const char *to;
    std::uint64_t size;          // of the bytes to copy
    Entry_Attributes attributes; // of an existing destination, and of a new one if `sets_new_attributes`
    bool sets_new_attributes;
};

enum class Copying_Step { opening_source, opening_destination, reading, writing, setting_attributes };

struct Copy_Result {
    Copying_Step step; // the step that failed, or the last one, which may fail without harm to the contents
    int error;
    std::uint64_t read;
    std::uint64_t written;
    bool is_source_short; // the source ended before the size was reached
};

/// Copies the first `size` bytes of a file. Memory does not grow with the size. A destination that is the
/// source is refused with EINVAL before it is opened; one whose source cannot be read becomes empty.
Copy_Result copy_file(const Copy_Request &request) noexcept;

} // namespace zeb::engine
