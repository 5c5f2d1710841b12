/// Reading and writing open files.
#pragma once

#include "filesystem/engine/file_status.hpp"

#include <cstddef>
#include <sys/stat.h>
#include <utility>

namespace zeb::engine
{

/// The rights of new files, which the process's umask reduces.
constexpr mode_t mode_of_new_files = 0666;

/// An open file descriptor, closed by the destructor. Nothing here blocks: an operation that would is an
/// error. Operations return 0 or the platform's error.
class Open_File
{
public:
    /// Opens for reading.
    static Open_File for_reading(const char *path) noexcept;

    /// Opens for writing. Creates a missing file and does not truncate an existing one.
    static Open_File for_writing(const char *path, mode_t mode = mode_of_new_files) noexcept;

    /// Opens an existing file for writing.
    static Open_File for_rewriting(const char *path) noexcept;

    /// Creates a file; fails with EEXIST if anything is at the path.
    static Open_File for_new_file(const char *path, mode_t mode) noexcept;

    /// Not open, without an error.
    Open_File() noexcept : descriptor(-1), error(0) {}
    Open_File(Open_File &&other) noexcept : Open_File() { swap(other); }
    Open_File &operator=(Open_File &&other) noexcept
    {
        swap(other);
        return *this;
    }
    ~Open_File();

    /// Returns why the file could not be opened; 0 if it was.
    int opening_error() const noexcept { return error; }

    int number() const noexcept { return descriptor; }

    int read_status(struct stat &status) const noexcept;

    /// Reads up to `size` bytes, at most to the end of the file, and sets `count` to the number read.
    int read(void *bytes, std::size_t size, std::size_t &count) noexcept;

    /// Writes and sets `count` to the number of bytes written, which is `size` unless the platform refuses
    /// bytes without an error.
    int write(const void *bytes, std::size_t size, std::size_t &count) noexcept;

    /// Removes the contents of a regular file; other files have nothing to remove.
    int cut() noexcept;

    /// Truncates the file, writes `size` bytes, sets `count` to the number written, and closes the file.
    /// Returns the first error; one that closing returns belongs to an earlier write.
    int write_all_and_close(const void *bytes, std::size_t size, std::size_t &count) noexcept;

    /// Waits until the contents are on the storage device.
    int flush_to_device() noexcept;

    int set_mode(mode_t mode) noexcept;

    /// Sets the owner and the group; -1 keeps one.
    int set_owner(uid_t owner, gid_t group) noexcept;

    /// Sets the mode and the owner, and returns the first error.
    int set_attributes(const Entry_Attributes &attributes) noexcept;

    int close() noexcept;

private:
    Open_File(const char *path, int flags, mode_t mode) noexcept;

    void swap(Open_File &other) noexcept
    {
        std::swap(descriptor, other.descriptor);
        std::swap(error, other.error);
    }

    int descriptor;
    int error;
};

} // namespace zeb::engine
