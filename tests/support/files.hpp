/// File entries for tests.
#pragma once

#include "tests/support/scratch_folder.hpp"
#include "tests/support/strings.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

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

class File_Test : public testing::Test
{
protected:
    /// A path of so many bytes, most of them those of folders.
    std::string long_path(size_t length) const
    {
        std::string made = folder.path;
        for (; made.size() + 240 < length; mkdir(made.c_str(), 0700))
            made += "/" + std::string(120, 'd');
        return made + "/" + std::string(length - made.size() - 1, 'f');
    }

    const Scratch_Folder folder;
    const std::string path = folder / "file";
};

} // namespace support
