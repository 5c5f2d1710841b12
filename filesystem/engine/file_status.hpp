/// What the platform says of a file-system entry.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstdint>

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

/// Reads the status of what a null-terminated path leads to, symbolic links followed. Answers 0, or the
/// platform's error, and then leaves `status` alone.
int read_status(const char *path, File_Status &status) noexcept;

/// The rights that a process has to an entry: those of the owner where the process is its owner, and
/// beside them those of the group, where it is in that, and of others. `before` is what is kept of a
/// process that is neither.
Access_Rights effective_rights(const File_Status &status, bool is_owner, bool is_in_group,
                               Access_Rights before) noexcept;

} // namespace zeb::engine
