/// Whole files, in and out.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb
{

/// An open file descriptor, closed when it ends.
class Open_File
{
public:
    /// Opens for reading.
    static Open_File for_reading(const char *path) noexcept;

    /// Opens for writing; the file is made, or emptied at once.
    static Open_File for_writing(const char *path) noexcept;

    ~Open_File();
    Open_File(const Open_File &) = delete;
    Open_File &operator=(const Open_File &) = delete;

    bool is_open() const noexcept { return descriptor >= 0; }

    /// Reads up to `size` bytes, to the end of the file at most, and sets `count` to how many came. False
    /// where the platform reports an error.
    bool read(void *bytes, std::size_t size, std::size_t &count) noexcept;

    /// Writes `size` bytes and sets `count` to how many went. False where the platform reports an error.
    bool write(const void *bytes, std::size_t size, std::size_t &count) noexcept;

    /// Closes the file; false where the platform then reports an error of an earlier write.
    bool close() noexcept;

private:
    explicit Open_File(int descriptor) noexcept : descriptor(descriptor) {}

    int descriptor;
};

} // namespace zeb
