#include "filesystem/engine/entry_creation.hpp"

#include "filesystem/engine/file_contents.hpp"
#include "filesystem/engine/interrupted_calls.hpp"

#include <cerrno>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace zeb::engine
{
namespace
{

constexpr mode_t owner_bits = 0700;

} // namespace

int create_empty_file(const char *path, const Entry_Attributes &attributes, int &attribute_error) noexcept
{
    // What appeared since the caller looked is not truncated.
    Open_File file = Open_File::for_writing(path, attributes.permissions);
    if (file.opening_error() == 0)
        attribute_error = file.set_attributes(attributes);
    return file.opening_error();
}

int create_directory(const char *path, const Entry_Attributes &attributes, int &attribute_error) noexcept
{
    if (mkdir(path, owner_bits | (attributes.permissions & 0077)) != 0)
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
