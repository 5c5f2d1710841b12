#include "tests/support/captured.hpp"
#include "tests/support/files.hpp"

#include <cerrno>
#include <climits>
#include <unistd.h>

using namespace support;

namespace
{

struct stat status_of(const std::string &path)
{
    struct stat found {
    };
    EXPECT_EQ(stat(path.c_str(), &found), 0) << path;
    return found;
}

class File_Copying : public File_Test
{
protected:
    /// A copy to `to` that fails, with its line and its cause.
    void expect_failure(const std::string &from, const std::string &to, const std::string &line, int error)
    {
        ZEB_File *const file = entry(from);
        EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([file copy_to:text(to)], 0u); }), line + "\n");
        EXPECT_EQ([file last_error], error) << line;
    }

    const std::string other = folder / "other";
};

} // namespace

TEST_F(File_Copying, carries_mode_and_owner)
{
    umask(022);
    put_file(path, "contents");
    chmod(path.c_str(), 0606);
    for (const bool existed : {false, true})
        for (const uint8_t load_details : {0, 1}) {
            unlink(other.c_str());
            if (existed)
                put_file(other, "something longer than the contents");
            ZEB_File *const file = entry(path);
            [file set_load_details:load_details];
            [file set_log_actions:1];
            EXPECT_EQ(standard_output_of([&] { EXPECT_EQ([file copy_to:text(other)], 1u); }),
                      "Copied file: " + path + " to " + other + "\n");
            EXPECT_EQ([file last_error], 0);
            EXPECT_EQ(file_text(other), "contents");
            EXPECT_EQ(status_of(other).st_mode & 0777, existed || load_details ? 0606u : 0644u);
        }
    ZEB_File *const file = entry(path);
    [file set_uid:1234];
    [file set_gid:4321];
    EXPECT_EQ([file copy_to:text(other)], 1u);
    const bool is_root = geteuid() == 0;
    EXPECT_EQ([file last_error], is_root ? 0 : EPERM);
    EXPECT_EQ(status_of(other).st_uid, is_root ? 1234 : geteuid());
}

TEST_F(File_Copying, refuses_the_same_file_and_changes_nothing)
{
    put_file(path, "contents");
    mkdir((folder / "folder").c_str(), 0700);
    ASSERT_EQ(symlink("file", (folder / "link").c_str()), 0);
    ASSERT_EQ(link(path.c_str(), (folder / "hard link").c_str()), 0);
    for (const std::string &same : {path, folder / "link", folder / "hard link", folder / "folder/../file"})
        expect_failure(path, same, "Error copying to file: " + same, EINVAL);
    EXPECT_EQ(file_text(path), "contents");
}

TEST_F(File_Copying, tells_failures)
{
    expect_failure(path, other, "Error opening source file for copying: " + path + " -> " + other, ENOENT);
    EXPECT_NE(access(other.c_str(), F_OK), 0);
    put_file(path, "contents");
    put_file(other, "old");
    ASSERT_EQ(mkfifo((folder / "fifo").c_str(), 0600), 0);
    alarm(20);
    for (const auto &[to, error] : {std::pair{folder.path, EISDIR}, {"", ENOENT}, {folder / "fifo", ENXIO}})
        expect_failure(path, to, "Error copying to file: " + to, error);
    expect_failure(folder.path, other, "Error copying contents from file: " + folder.path, EISDIR);
    EXPECT_EQ(file_text(other), "");
    EXPECT_EQ([entry(folder / "fifo") copy_to:text(other)], 1u); // of no size
    alarm(0);
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([entry(path) copy_to:nil], 0u); }),
              "Error copying to file: \n");
}

TEST_F(File_Copying, goes_by_the_snapshot)
{
    put_file(path, "contents");
    ZEB_File *const file = entry(path);
    put_file(path, "contents that grew");
    EXPECT_EQ([file copy_to:text(other)], 1u);
    EXPECT_EQ(file_text(other), "contents");
    ZEB_Byte_Array *const target = bytes("");
    [file read_contents:target];
    EXPECT_EQ(text_of(target), "contents");
    put_file(path, "cut");
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([file copy_to:text(other)], 1u); }),
              "Warning: Discrepancy in actual length read 3 v.s. content size 8 while copying contents from "
              "file: " +
                  path + "\n");
    EXPECT_EQ([file last_error], ENODATA);
    EXPECT_EQ(file_text(other), "cut");
    // Its size is told as 0, although it has contents.
    if (access("/proc/self/status", R_OK) == 0) {
        ZEB_File *const process = entry("/proc/self/status");
        EXPECT_EQ(standard_error_of([&] { [process read_contents:target]; }),
                  "Error, zero content size for file: /proc/self/status\n");
        EXPECT_EQ([process copy_to:text(other)], 1u);
        EXPECT_EQ(file_text(other), "");
    }
}

TEST_F(File_Copying, and_moving_know_sizes_above_4_GiB)
{
    put_file(path, "");
    const off_t size = (off_t{4} << 30) + 5;
    ASSERT_EQ(truncate(path.c_str(), size), 0);
    ZEB_File *const file = entry(path);
    EXPECT_EQ([file move_to:text(other)], 1u);
    EXPECT_EQ(status_of(other).st_size, size);
    put_file(other, "cut");
    EXPECT_EQ(
        standard_error_of([&] { EXPECT_EQ([file copy_to:text(path)], 1u); }),
        "Warning: Discrepancy in actual length read 3 v.s. content size 4294967301 while copying contents "
        "from file: " +
            other + "\n");
}

TEST_F(File_Copying, takes_every_name_and_long_paths)
{
    std::string name = "~";
    for (int byte = 1; byte < 256; ++byte)
        if (byte != '/')
            name.push_back(static_cast<char>(byte));
    ASSERT_EQ(name.size(), size_t{NAME_MAX});
    for (const std::string &place : {folder / name, long_path(4000)}) {
        ZEB_File *const file = entry(path);
        EXPECT_EQ([file replace_contents:"contents" length:8], 1u);
        [file refresh_status];
        EXPECT_EQ([file copy_to:text(place)], 1u);
        EXPECT_EQ([entry(place) replace_contents:"new" length:3], 1u);
        EXPECT_EQ(file_text(place), "new");
        EXPECT_EQ([file move_to:text(place)], 1u);
        EXPECT_EQ(file_text(place), "contents");
        EXPECT_EQ(text_of([file path]), place);
    }
    const Redirection unread(stderr);
    ZEB_File *const file = entry(folder / name);
    EXPECT_EQ([file backstore], 0u);
    EXPECT_EQ([file last_error], ENAMETOOLONG);
}

TEST_F(File_Copying, moving_follows_the_file)
{
    put_file(path, "contents");
    ZEB_File *const file = entry(path);
    [file set_log_actions:1];
    for (ZEB_String *const nowhere : {text(folder / "none/x"), text(""), static_cast<ZEB_String *>(nil)})
        EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([file move_to:nowhere], 0u); }),
                  "Error moving file: " + path + " to " + (nowhere ? text_of(nowhere) : "") + "\n");
    EXPECT_EQ([file last_error], ENOENT);
    EXPECT_EQ(text_of([file path]), path);
    EXPECT_EQ(standard_output_of([&] { EXPECT_EQ([file move_to:text(other)], 1u); }),
              "Moved file: " + path + " to " + other + "\n");
    const Redirection unread(stdout);
    EXPECT_EQ([file move_to:[file path]], 1u);
    EXPECT_EQ(text_of([file path]), other);
    // A link onto the path itself.
    ZEB_String *const start = [ZEB_String link_to_chars:[[file path] char_data]
                                                  count:static_cast<uint32_t>(other.size() - 1)];
    EXPECT_EQ([file move_to:start], 1u);
    EXPECT_EQ(text_of([file path]), folder / "othe");
    EXPECT_STREQ([[file path] char_data], (folder / "othe").c_str());
    EXPECT_EQ(file_text(folder / "othe"), "contents");
}
