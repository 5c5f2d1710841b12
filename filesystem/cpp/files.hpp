/// Whole files, read and replaced.
#pragma once

#include <Korvane_ZEB_engine/array.hpp>

namespace zeb
{

/// Replaces the contents with those of a file, of at most `greatest_size` bytes. Returns 0, or the platform's
/// error with the contents unchanged: EFBIG for a file that is larger, ENOMEM if there is no memory for it,
/// EIO where fewer bytes can be read than it has.
[[nodiscard]] int read_file(const char *path, Array<std::uint8_t> &contents,
                            std::uint64_t greatest_size = greatest_count - 1) noexcept;

/// Writes a new file beside the one at `path`, flushes it to the device, and renames it over that one, whose
/// mode and owner it takes. Returns 0, or the platform's error: until the renaming the old file is unchanged.
/// A symbolic link leads to the file that is replaced.
[[nodiscard]] int replace_file(const char *path, std::span<const std::uint8_t> contents) noexcept;

} // namespace zeb
