/// File entries for tests.
#pragma once

#include "tests/support/class_test.hpp"
#include "tests/support/scratch_folder.hpp"

#include <cerrno>
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

inline struct stat status_of(const std::string &path)
{
    struct stat found {
    };
    EXPECT_EQ(stat(path.c_str(), &found), 0) << path;
    return found;
}

/// Runs an operation that is to answer so, to write a line onto the error stream that ends with the path, and
/// to leave an error; no message, no line.
template <class Work>
void expect_told(ZEB_File *file, uint32_t answer, int error, const std::string &message, Work work)
{
    const std::string line = message.empty() ? "" : message + text_of([file path]) + "\n";
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ(work(), answer); }), line);
    EXPECT_EQ([file last_error], error) << line;
}

class File_Test : public testing::Test
{
protected:
    /// The entry at the path, whose contents have changed since its status was read.
    ZEB_File *changed_entry(const std::string &before, const std::string &after) const
    {
        put_file(path, before);
        ZEB_File *const file = entry(path);
        put_file(path, after);
        return file;
    }

    /// A text with the paths for "#" and "%", and the folder for "@", which may stand in these.
    std::string placed(std::string text, const std::string &path = "", const std::string &other = "") const
    {
        for (const auto &[sign, meant] : {std::pair('#', path), {'%', other}, {'@', folder.path}})
            for (size_t at = text.find(sign); at != std::string::npos; at = text.find(sign))
                text.replace(at, 1, meant);
        return text;
    }

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
