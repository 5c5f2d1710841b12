#include "filesystem/engine/file_contents.hpp"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace zeb
{
namespace
{

// One call moves less than 2 GiB on some platforms.
constexpr std::size_t greatest_piece = std::size_t{1} << 30;

constexpr mode_t mode_of_new_files = 0666;

/// Moves `size` bytes by pieces; `move` answers how many bytes went, 0 at the end, less than 0 for an error.
template <class Move>
bool move_all(std::size_t size, std::size_t &count, Move move) noexcept
{
    count = 0;
    while (count < size) {
        const ssize_t moved = move(count, std::min(size - count, greatest_piece));
        if (moved == 0)
            break;
        if (moved > 0)
            count += static_cast<std::size_t>(moved);
        else if (errno != EINTR)
            return false;
    }
    return true;
}

} // namespace

Open_File Open_File::for_reading(const char *path) noexcept
{
    return Open_File(::open(path, O_RDONLY | O_CLOEXEC));
}

Open_File Open_File::for_writing(const char *path) noexcept
{
    return Open_File(::open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode_of_new_files));
}

Open_File::~Open_File() { close(); }

bool Open_File::read(void *bytes, std::size_t size, std::size_t &count) noexcept
{
    return move_all(size, count, [&](std::size_t at, std::size_t piece) {
        return ::read(descriptor, static_cast<char *>(bytes) + at, piece);
    });
}

bool Open_File::write(const void *bytes, std::size_t size, std::size_t &count) noexcept
{
    return move_all(size, count, [&](std::size_t at, std::size_t piece) {
        return ::write(descriptor, static_cast<const char *>(bytes) + at, piece);
    });
}

bool Open_File::close() noexcept
{
    if (!is_open())
        return true;
    const int closed = ::close(descriptor);
    descriptor = -1;
    return closed == 0 || errno == EINTR;
}

} // namespace zeb
