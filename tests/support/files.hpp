/// File entries for tests.
#pragma once

#include "tests/support/strings.hpp"

namespace support
{

/// An entry for a path, its status refreshed.
inline ZEB_File *entry(const std::string &path)
{
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    [file set_path:text(path)];
    [file refresh_status];
    return file;
}

} // namespace support
