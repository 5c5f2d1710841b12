/// Whole files, in and out.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// An open file descriptor, closed when it ends. Nothing here waits for a partner: what would is an error.
/// Operations answer 0, or the platform's error.
class Open_File
{
public:
    /// Opens for reading.
    static Open_File for_reading(const char *path) noexcept;

    /// Opens for writing; the file is made where it is missing, and keeps what it has.
    static Open_File for_writing(const char *path) noexcept;

    ~Open_File();
    Open_File(const Open_File &) = delete;
    Open_File &operator=(const Open_File &) = delete;

    /// Why the file could not be opened; 0 where it was.
    int opening_error() const noexcept { return error; }

    /// Reads up to `size` bytes, to the end of the file at most, and sets `count` to how many came.
    int read(void *bytes, std::size_t size, std::size_t &count) noexcept;

    /// Cuts what the file had, writes `size` bytes, sets `count` to how many went, and closes the file. The
    /// first error counts; one that the closing tells is that of an earlier write.
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
