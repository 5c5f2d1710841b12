/// Reading and writing whole files.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// An open file descriptor, closed by the destructor. Nothing here blocks: an operation that would is an
/// error. Operations return 0 or the platform's error.
class Open_File
{
public:
    /// Opens for reading.
    static Open_File for_reading(const char *path) noexcept;

    /// Opens for writing. Creates a missing file and does not truncate an existing one.
    static Open_File for_writing(const char *path) noexcept;

    ~Open_File();
    Open_File(const Open_File &) = delete;
    Open_File &operator=(const Open_File &) = delete;

    /// Returns why the file could not be opened; 0 if it was.
    int opening_error() const noexcept { return error; }

    /// Reads up to `size` bytes, at most to the end of the file, and sets `count` to the number read.
    int read(void *bytes, std::size_t size, std::size_t &count) noexcept;

    /// Truncates the file, writes `size` bytes, sets `count` to the number written, and closes the file.
    /// Returns the first error; one that closing returns belongs to an earlier write.
    int write_all_and_close(const void *bytes, std::size_t size, std::size_t &count) noexcept;

private:
    Open_File(const char *path, int flags) noexcept;

    int cut() noexcept;
    int write(const void *bytes, std::size_t size, std::size_t &count) noexcept;
    int close() noexcept;

    int descriptor;
    int error;
};

} // namespace zeb::engine
