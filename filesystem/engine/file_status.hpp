/// The status of a file-system entry.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>
#include <sys/types.h>

namespace zeb::engine
{

/// The rights of one class of users.
struct Access_Rights {
    bool read;
    bool write;
    bool execute;
};

struct File_Status {
    ZEB_File_Kind kind;
    std::uint64_t size;
    Access_Rights owner;
    Access_Rights group;
    Access_Rights other;
    ZEB_Time_Value access_time;
    ZEB_Time_Value modification_time;
    ZEB_Time_Value status_change_time;
    std::uint32_t uid;
    std::uint32_t gid;
};

/// The permission bits and the owner that an entry receives.
struct Entry_Attributes {
    mode_t permissions;
    uid_t uid;
    gid_t gid;
};

/// Joins the nine permission bits.
mode_t permissions_of(Access_Rights owner, Access_Rights group, Access_Rights other) noexcept;

/// Reads the status of the entry at a null-terminated path, following symbolic links. Returns 0, or the
/// platform's error with `status` unchanged.
int read_status(const char *path, File_Status &status) noexcept;

/// Whether symbolic links stand for themselves or for what they lead to.
enum class Links { are_entries, are_followed };

/// Reads the status of `name` below an open directory, or below the working directory for AT_FDCWD, in the
/// same way.
int read_status_in(int directory, const char *name, Links links, File_Status &status) noexcept;

/// Whether something exists at a path, following symbolic links.
bool exists_at(const char *path) noexcept;

/// Whether every right that is wanted is granted.
bool covers(Access_Rights granted, Access_Rights wanted) noexcept;

/// Returns the rights of a process to an entry: the owner's if it is the owner, joined with the group's if it
/// is in the group, and with those of others. A process that is not the owner starts from `before`.
Access_Rights effective_rights(const File_Status &status, bool is_owner, bool is_in_group,
                               Access_Rights before) noexcept;

} // namespace zeb::engine
