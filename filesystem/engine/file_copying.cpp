#include "filesystem/engine/file_copying.hpp"

#include "filesystem/engine/file_contents.hpp"
#include "filesystem/engine/interrupted_calls.hpp"

#include <algorithm>
#include <unistd.h>

namespace zeb::engine
{
namespace
{

constexpr std::size_t buffer_size = std::size_t{64} << 10; // secondary threads may have 512 KiB of stack
constexpr std::uint64_t max_kernel_transfer = std::uint64_t{1} << 30;

/// Lets the kernel copy as much as it does; what it leaves, for whatever reason, is the buffer's.
void copy_by_kernel(Open_File &source, Open_File &destination, std::uint64_t size,
                    Copy_Result &result) noexcept
{
#ifdef __linux__
    while (result.read < size) {
        const auto piece = static_cast<std::size_t>(std::min(size - result.read, max_kernel_transfer));
        const ssize_t moved = uninterrupted([&] {
            return ::copy_file_range(source.number(), nullptr, destination.number(), nullptr, piece, 0);
        });
        if (moved <= 0)
            return;
        result.read += static_cast<std::uint64_t>(moved);
        result.written = result.read;
    }
#else
    (void)source, (void)destination, (void)size, (void)result;
#endif
}

/// Copies a piece, and returns whether more can follow.
bool copy_piece(Open_File &source, Open_File &destination, std::size_t size, Copy_Result &result) noexcept
{
    char buffer[buffer_size];
    std::size_t read, written;
    result.error = source.read(buffer, size, read);
    if (result.error != 0) {
        result.step = Copying_Step::reading;
        return false;
    }
    result.error = destination.write(buffer, read, written);
    result.read += read;
    result.written += written;
    result.is_source_short = read != size;
    return result.error == 0 && read == size && written == read;
}

void copy_contents(Open_File &source, Open_File &destination, std::uint64_t size,
                   Copy_Result &result) noexcept
{
    result.step = Copying_Step::writing;
    copy_by_kernel(source, destination, size, result);
    while (result.read < size &&
           copy_piece(source, destination,
                      static_cast<std::size_t>(std::min<std::uint64_t>(size - result.read, buffer_size)),
                      result)) {
    }
}

/// Finds out whether something is at the destination. Returns EINVAL if that is the source.
int examine_destination(const Open_File &source, const char *path, bool &exists) noexcept
{
    struct stat own, other;
    const int error = source.read_status(own);
    if (error != 0)
        return error;
    exists = ::stat(path, &other) == 0;
    if (!exists)
        return errno == ENOENT || errno == ENOTDIR ? 0 : errno;
    return own.st_dev == other.st_dev && own.st_ino == other.st_ino ? EINVAL : 0;
}

/// Opens and empties the destination, unless it is the source.
int open_destination(const Copy_Request &request, const Open_File &source, Open_File &destination,
                     bool &existed) noexcept
{
    const int error = examine_destination(source, request.to, existed);
    if (error != 0)
        return error;
    destination = Open_File::for_writing(
        request.to, request.sets_new_attributes ? request.attributes.permissions : mode_of_new_files);
    return destination.opening_error() != 0 ? destination.opening_error() : destination.cut();
}

/// Sets the attributes, and closes the destination: an error of that belongs to an earlier write.
void finish(const Copy_Request &request, Open_File &destination, bool existed, Copy_Result &result) noexcept
{
    const int attributes_error =
        existed || request.sets_new_attributes ? destination.set_attributes(request.attributes) : 0;
    result.error = destination.close();
    if (result.error != 0)
        return;
    result.step = Copying_Step::setting_attributes;
    result.error = attributes_error;
}

} // namespace

Copy_Result copy_file(const Copy_Request &request) noexcept
{
    Copy_Result result{Copying_Step::opening_source, 0, 0, 0, false};
    Open_File source = Open_File::for_reading(request.from);
    result.error = source.opening_error();
    if (result.error != 0)
        return result;
    result.step = Copying_Step::opening_destination;
    Open_File destination;
    bool existed = false;
    result.error = open_destination(request, source, destination, existed);
    if (result.error != 0)
        return result;
    copy_contents(source, destination, request.size, result);
    if (result.step == Copying_Step::reading)
        destination.cut();
    if (result.error == 0)
        finish(request, destination, existed, result);
    return result;
}

} // namespace zeb::engine
