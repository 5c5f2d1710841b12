#include "filesystem/engine/file_contents.hpp"

#include "filesystem/engine/interrupted_calls.hpp"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace zeb::engine
{
namespace
{

// Some platforms transfer less than 2 GiB per call.
constexpr std::size_t max_transfer = std::size_t{1} << 30;

/// Transfers `size` bytes in pieces. `move` returns the number of bytes moved, 0 at the end, or a negative
/// value for an error.
template <class Move>
int move_all(std::size_t size, std::size_t &count, Move move) noexcept
{
    count = 0;
    while (count < size) {
        const ssize_t moved =
            uninterrupted([&] { return move(count, std::min(size - count, max_transfer)); });
        if (moved < 0)
            return errno;
        if (moved == 0)
            break;
        count += static_cast<std::size_t>(moved);
    }
    return 0;
}

} // namespace

Open_File::Open_File(const char *path, int flags, mode_t mode) noexcept
    : descriptor(uninterrupted([&] { return ::open(path, flags | O_NONBLOCK | O_CLOEXEC, mode); })),
      error(descriptor < 0 ? errno : 0)
{
}

Open_File Open_File::for_reading(const char *path) noexcept { return Open_File(path, O_RDONLY, 0); }

Open_File Open_File::for_writing(const char *path, mode_t mode) noexcept
{
    return Open_File(path, O_WRONLY | O_CREAT, mode);
}

Open_File Open_File::for_rewriting(const char *path) noexcept { return Open_File(path, O_WRONLY, 0); }

Open_File Open_File::for_new_file(const char *path, mode_t mode) noexcept
{
    return Open_File(path, O_WRONLY | O_CREAT | O_EXCL, mode);
}

Open_File::~Open_File() { close(); }

int Open_File::read_status(struct stat &status) const noexcept
{
    return error_of([&] { return ::fstat(descriptor, &status); });
}

int Open_File::read(void *bytes, std::size_t size, std::size_t &count) noexcept
{
    return move_all(size, count, [&](std::size_t at, std::size_t piece) {
        return ::read(descriptor, static_cast<char *>(bytes) + at, piece);
    });
}

int Open_File::write_all_and_close(const void *bytes, std::size_t size, std::size_t &count) noexcept
{
    count = 0;
    int first = cut();
    if (first == 0)
        first = write(bytes, size, count);
    const int last = close();
    return first != 0 ? first : last;
}

int Open_File::cut() noexcept
{
    // ftruncate refuses anything but a regular file with EINVAL; then there is nothing to truncate.
    const int refusal = error_of([&] { return ::ftruncate(descriptor, 0); });
    return refusal == EINVAL ? 0 : refusal;
}

int Open_File::write(const void *bytes, std::size_t size, std::size_t &count) noexcept
{
    return move_all(size, count, [&](std::size_t at, std::size_t piece) {
        return ::write(descriptor, static_cast<const char *>(bytes) + at, piece);
    });
}

int Open_File::flush_to_device() noexcept
{
#ifdef F_FULLFSYNC
    // fsync leaves the bytes in the device's own memory there; not every file system has more.
    if (uninterrupted([&] { return ::fcntl(descriptor, F_FULLFSYNC); }) >= 0)
        return 0;
#endif
    return error_of([&] { return ::fsync(descriptor); });
}

int Open_File::set_mode(mode_t mode) noexcept
{
    return error_of([&] { return ::fchmod(descriptor, mode); });
}

int Open_File::set_owner(uid_t owner, gid_t group) noexcept
{
    return error_of([&] { return ::fchown(descriptor, owner, group); });
}

int Open_File::set_attributes(const Entry_Attributes &attributes) noexcept
{
    const int mode_error = set_mode(attributes.permissions);
    const int owner_error = set_owner(attributes.uid, attributes.gid);
    return mode_error != 0 ? mode_error : owner_error;
}

int Open_File::close() noexcept
{
    if (descriptor < 0)
        return 0;
    // An interrupted close has closed the descriptor.
    const bool is_closed = ::close(descriptor) == 0 || errno == EINTR;
    descriptor = -1;
    return is_closed ? 0 : errno;
}

} // namespace zeb::engine
