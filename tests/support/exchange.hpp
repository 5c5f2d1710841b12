/// Files that machines of different kinds exchange: each leaves its own, and reads what another one has left.
#pragma once

#include "tests/support/scratch_folder.hpp"

#include <optional>

namespace support
{

/// Leaves a file in the folder of this build.
inline void leave_for_others(const std::string &name, const std::string &contents)
{
    if (const char *const folder = std::getenv("ZEB_EXCHANGE_TO"))
        put_file(std::string(folder) + "/" + name, contents);
}

/// The file of that name in another machine's folder, if the run is given one; empty if it is not there.
inline std::optional<std::string> left_by_others(const std::string &name)
{
    const char *const folder = std::getenv("ZEB_EXCHANGE_FROM");
    return folder != nullptr ? std::optional(file_text(std::string(folder) + "/" + name)) : std::nullopt;
}

} // namespace support
