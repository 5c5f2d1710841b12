#include "filesystem/engine/entry_creation.hpp"

#include "filesystem/engine/interrupted_calls.hpp"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zeb::engine
{
namespace
{

constexpr mode_t owner_bits = 0700;

std::uint32_t bits_of(Access_Rights rights) noexcept
{
    return (rights.read ? 4u : 0u) | (rights.write ? 2u : 0u) | (rights.execute ? 1u : 0u);
}

} // namespace

std::uint32_t permissions_of(Access_Rights owner, Access_Rights group, Access_Rights other) noexcept
{
    return bits_of(owner) << 6 | bits_of(group) << 3 | bits_of(other);
}

int create_empty_file(const char *path, const Entry_Attributes &attributes, int &attribute_error) noexcept
{
    const auto mode = static_cast<mode_t>(attributes.permissions);
    // Neither waits for a FIFO's partner nor truncates what appeared since the caller looked.
    const int file = uninterrupted(
        [&] { return ::open(path, O_WRONLY | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, mode); });
    if (file < 0)
        return errno;
    const int mode_error = error_of([&] { return fchmod(file, mode); });
    const int owner_error = error_of([&] { return fchown(file, attributes.uid, attributes.gid); });
    attribute_error = mode_error != 0 ? mode_error : owner_error;
    ::close(file);
    return 0;
}

int create_directory(const char *path, const Entry_Attributes &attributes, int &attribute_error) noexcept
{
    if (mkdir(path, owner_bits | static_cast<mode_t>(attributes.permissions & 0077)) != 0)
        return errno;
    attribute_error = error_of([&] { return lchown(path, attributes.uid, attributes.gid); });
    return 0;
}

int create_symbolic_link(const char *target, const char *path) noexcept
{
    return error_of([&] { return symlink(target, path); });
}

int read_symbolic_link(const char *path, char (&target)[max_link_target + 1], std::size_t &length) noexcept
{
    const ssize_t count = readlink(path, target, sizeof target);
    if (count < 0)
        return errno;
    length = static_cast<std::size_t>(count);
    return length > max_link_target ? ENAMETOOLONG : 0;
}

int remove_entry(const char *path) noexcept
{
    return error_of([&] { return std::remove(path); });
}

} // namespace zeb::engine
