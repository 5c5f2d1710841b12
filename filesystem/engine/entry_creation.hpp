/// Creating, linking and removing single entries. Paths are null-terminated; operations return 0 or the
/// platform's error.
#pragma once

#include "filesystem/engine/file_status.hpp"

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// Creates an empty file. A file that another process has created meanwhile keeps its contents. If the
/// permissions or the owner cannot be set, `attribute_error` is the reason and the file stays.
int create_empty_file(const char *path, const Entry_Attributes &attributes, int &attribute_error) noexcept;

/// Creates a directory, always with all rights for its owner. `attribute_error` as above.
int create_directory(const char *path, const Entry_Attributes &attributes, int &attribute_error) noexcept;

int create_symbolic_link(const char *target, const char *path) noexcept;

/// The greatest length of a link's target that is read.
constexpr std::size_t max_link_target = 1024;

/// Reads the target of a symbolic link; a longer one is ENAMETOOLONG.
int read_symbolic_link(const char *path, char (&target)[max_link_target + 1], std::size_t &length) noexcept;

/// Removes a file, a link or an empty directory.
int remove_entry(const char *path) noexcept;

} // namespace zeb::engine
