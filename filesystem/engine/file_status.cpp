#include "filesystem/engine/file_status.hpp"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace zeb::engine
{
namespace
{

ZEB_File_Kind kind_of(mode_t mode) noexcept
{
    switch (mode & S_IFMT) {
    case S_IFDIR:
        return ZEB_FILE_KIND_DIRECTORY;
    case S_IFREG:
        return ZEB_FILE_KIND_REGULAR;
    case S_IFLNK:
        return ZEB_FILE_KIND_LINK;
    default:
        return ZEB_FILE_KIND_OTHER;
    }
}

/// Returns the rights in the three bits of a mode from `shift` on.
Access_Rights rights_of(mode_t mode, int shift) noexcept
{
    const unsigned bits = static_cast<unsigned>(mode) >> shift;
    return {(bits & 4) != 0, (bits & 2) != 0, (bits & 1) != 0};
}

mode_t bits_of(Access_Rights rights) noexcept
{
    return (rights.read ? 4u : 0u) | (rights.write ? 2u : 0u) | (rights.execute ? 1u : 0u);
}

ZEB_Time_Value time_of(const struct timespec &time) noexcept
{
    return {static_cast<std::uint64_t>(time.tv_sec), static_cast<std::uint64_t>(time.tv_nsec)};
}

File_Status status_of(const struct stat &found) noexcept
{
    File_Status status;
    status.kind = kind_of(found.st_mode);
    status.size = static_cast<std::uint64_t>(found.st_size);
    status.owner = rights_of(found.st_mode, 6);
    status.group = rights_of(found.st_mode, 3);
    status.other = rights_of(found.st_mode, 0);
#if defined(__APPLE__)
    status.access_time = time_of(found.st_atimespec);
    status.modification_time = time_of(found.st_mtimespec);
    status.status_change_time = time_of(found.st_ctimespec);
#else
    status.access_time = time_of(found.st_atim);
    status.modification_time = time_of(found.st_mtim);
    status.status_change_time = time_of(found.st_ctim);
#endif
    status.uid = found.st_uid;
    status.gid = found.st_gid;
    return status;
}

void add(Access_Rights &rights, Access_Rights further) noexcept
{
    rights.read = rights.read || further.read;
    rights.write = rights.write || further.write;
    rights.execute = rights.execute || further.execute;
}

} // namespace

mode_t permissions_of(Access_Rights owner, Access_Rights group, Access_Rights other) noexcept
{
    return static_cast<mode_t>(bits_of(owner) << 6 | bits_of(group) << 3 | bits_of(other));
}

int read_status(const char *path, File_Status &status) noexcept
{
    return read_status_in(AT_FDCWD, path, Links::are_followed, status);
}

int read_status_in(int directory, const char *name, Links links, File_Status &status) noexcept
{
    struct stat found;
    if (fstatat(directory, name, &found, links == Links::are_entries ? AT_SYMLINK_NOFOLLOW : 0) != 0)
        return errno;
    status = status_of(found);
    return 0;
}

bool exists_at(const char *path) noexcept
{
    File_Status status;
    return read_status(path, status) == 0;
}

bool covers(Access_Rights granted, Access_Rights wanted) noexcept
{
    return (!wanted.read || granted.read) && (!wanted.write || granted.write) &&
           (!wanted.execute || granted.execute);
}

Access_Rights effective_rights(const File_Status &status, bool is_owner, bool is_in_group,
                               Access_Rights before) noexcept
{
    Access_Rights rights = is_owner ? status.owner : before;
    if (is_in_group)
        add(rights, status.group);
    add(rights, status.other);
    return rights;
}

} // namespace zeb::engine
