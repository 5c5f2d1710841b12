#include <Korvane_ZEB_engine/files.hpp>

#include "filesystem/engine/file_contents.hpp"
#include "filesystem/engine/file_replacement.hpp"

#include <cerrno>

namespace zeb
{

int read_file(const char *path, Array<std::uint8_t> &contents, std::uint64_t greatest_size) noexcept
{
    engine::Open_File file = engine::Open_File::for_reading(path);
    struct stat status;
    const int error = file.opening_error() != 0 ? file.opening_error() : file.read_status(status);
    if (error != 0)
        return error;
    const auto size = static_cast<std::uint64_t>(status.st_size);
    if (size > greatest_size)
        return EFBIG;
    Array<std::uint8_t> read;
    if (!read.resize(size))
        return ENOMEM;
    std::size_t count = 0;
    if (const int failure = file.read(read.data(), size, count); failure != 0)
        return failure;
    if (count != size)
        return EIO;
    contents = std::move(read);
    return 0;
}

int replace_file(const char *path, std::span<const std::uint8_t> contents) noexcept
{
    return engine::replace_file(path, contents.data(), contents.size()).error;
}

} // namespace zeb
