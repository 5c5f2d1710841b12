#include "tests/support/captured.hpp"
#include "tests/support/child.hpp"
#include "tests/support/files.hpp"

#include <cerrno>
#include <csignal>
#include <grp.h>
#include <sys/resource.h>
#if defined(__linux__)
#include <sched.h>
#include <sys/mount.h>
#endif

using namespace support;

namespace
{

mode_t mode_of(const std::string &path)
{
    struct stat found {
    };
    stat(path.c_str(), &found);
    return found.st_mode & 07777;
}

uint32_t replace(const std::string &path, const std::string &contents, int error)
{
    ZEB_File *const file = entry(path);
    const uint32_t answer = [file replace_contents:contents.data()
                                            length:static_cast<uint32_t>(contents.size())];
    EXPECT_EQ([file last_error], error) << path;
    return answer;
}

class File_Replacement : public File_Test
{
protected:
    void expect_refused(const std::string &to, int error)
    {
        std::string line;
        line = standard_error_of([&] { EXPECT_EQ(replace(to, "new", error), 0u) << to; });
        EXPECT_EQ(line, "Error opening file: " + to + "\n");
    }

    size_t count() const
    {
        const std::filesystem::directory_iterator all(folder.path);
        return static_cast<size_t>(std::distance(begin(all), end(all)));
    }
};

/// A full disk leaves the old file, and a copy is told to be incomplete.
void expect_full(const std::string &folder, int error)
{
    const std::string file = folder + "/full", old(300000, 'o'), all(900000, 'n');
    put_file(file, old);
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ(replace(file, all, error), 0u); }),
              "Error writing contents to file: " + file + "\n");
    EXPECT_EQ(file_text(file), old);
    EXPECT_EQ(unlink(file.c_str()), 0);
    const Scratch_Folder elsewhere;
    put_file(elsewhere / "large", all);
    ZEB_File *const large = entry(elsewhere / "large");
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([large copy_to:text(file)], 0u); }),
              "Error copying contents to file: " + file + "\n");
    EXPECT_EQ([large last_error], error);
    unlink(file.c_str());
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

} // namespace

TEST_F(File_Replacement, keeps_mode_and_links)
{
    umask(027);
    EXPECT_EQ(replace(path, "first", 0), 1u);
    EXPECT_EQ(mode_of(path), 0640u);
    umask(022);
    chmod(path.c_str(), 0751);
    ASSERT_EQ(symlink("file", (folder / "link").c_str()), 0);
    ASSERT_EQ(link(path.c_str(), (folder / "other name").c_str()), 0);
    EXPECT_EQ(replace(folder / "link", "second", 0), 1u);
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(file_text(path), "second");
    EXPECT_EQ(file_text(folder / "other name"), "first");
    EXPECT_EQ(mode_of(path), 0751u);
    EXPECT_EQ(replace(path, "", 0), 1u);
    EXPECT_EQ(file_text(path), "");
    EXPECT_EQ(count(), 3u);

    const std::string contents(50000, 'c');
    ZEB_File *const file = entry(path);
    [file set_contents_compressed:1];
    [file replace_contents:contents.data() length:50000];
    [file refresh_status];
    EXPECT_LT([file size], 1000u);
    ZEB_Byte_Array *const target = bytes("");
    [file read_contents:target];
    EXPECT_EQ(text_of(target), contents);
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([file replace_contents:nullptr length:9], 0u); }),
              "Error writing contents to file: " + path + "\n");

    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path);
    EXPECT_EQ(replace("file", "relative", 0), 1u);
    std::filesystem::current_path(before);
    EXPECT_EQ(file_text(path), "relative");
}

TEST_F(File_Replacement, refuses_what_is_no_file_to_be_written)
{
    put_file(path, "old");
    mkdir((folder / "folder").c_str(), 0700);
    mkfifo((folder / "fifo").c_str(), 0600);
    EXPECT_EQ(symlink("nothing", (folder / "dangling").c_str()), 0);
    EXPECT_EQ(symlink("loop", (folder / "loop").c_str()), 0);
    alarm(20);
    expect_refused("", ENOENT);
    expect_refused(folder / "new/", EISDIR);
    expect_refused(folder / "missing/file", ENOENT);
    expect_refused(path + "/below", ENOTDIR);
    expect_refused(folder / "folder", EISDIR);
    expect_refused(folder / "fifo", EINVAL);
    expect_refused("/dev/null", EINVAL);
    expect_refused(folder / "dangling", ENOENT);
    expect_refused(folder / "loop", ELOOP);
    expect_refused(folder / std::string(256, 'n'), ENAMETOOLONG);
    expect_refused(path + std::string("\0x", 2), EINVAL);
    alarm(0);
    EXPECT_EQ(count(), 5u);
    EXPECT_EQ(file_text(path), "old");
}

TEST_F(File_Replacement, gives_nobody_more_rights)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root has files of several owners";
    const uid_t somebody = 65534;
    struct {
        uid_t user;
        uid_t owner;
        gid_t group;
        mode_t before, after;
        gid_t group_after;
    } const rows[] = {
        {0, 1234, 4321, 06640, 06640, 4321},
        {somebody, somebody, somebody, 0640, 0640, somebody},
        {somebody, somebody, 1234, 0664, 0644, somebody},
        {somebody, 1234, 1234, 06676, 0666, somebody},
        {somebody, 1234, somebody, 04662, 0662, somebody},
    };
    chmod(folder.path.c_str(), 0777);
    for (const auto &row : rows) {
        SCOPED_TRACE(std::to_string(row.user) + ", " + std::to_string(row.owner));
        put_file(path, "old");
        ASSERT_EQ(chown(path.c_str(), row.owner, row.group), 0);
        chmod(path.c_str(), row.before);
        EXPECT_EQ(in_child([&] {
                      if (row.user != 0 &&
                          (setgroups(0, nullptr) != 0 || setgid(row.user) != 0 || setuid(row.user) != 0))
                          FAIL();
                      EXPECT_EQ(replace(path, "new", 0), 1u);
                  }),
                  0);
        struct stat found;
        stat(path.c_str(), &found);
        EXPECT_EQ(found.st_mode & 07777, row.after);
        EXPECT_EQ(found.st_uid, row.user == 0 ? row.owner : row.user);
        EXPECT_EQ(found.st_gid, row.group_after);
        unlink(path.c_str());
    }
    // A file that may not be written is not replaced.
    put_file(path, "old");
    EXPECT_EQ(in_child([&] {
                  if (setuid(somebody) == 0)
                      expect_refused(path, EACCES);
              }),
              0);
}

TEST_F(File_Replacement, on_a_full_disk_leaves_the_old_file)
{
    const std::string small = folder / "small";
    mkdir(small.c_str(), 0700);
#if defined(__linux__)
    if (geteuid() == 0 && in_child([] { _exit(unshare(CLONE_NEWNS)); }) == 0) {
        EXPECT_EQ(in_child([&] {
                      unshare(CLONE_NEWNS);
                      mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
                      ASSERT_EQ(mount("tmpfs", small.c_str(), "tmpfs", 0, "size=800k"), 0);
                      expect_full(small, ENOSPC);
                      put_file(small + "/file", "old");
                      ASSERT_EQ(mount(nullptr, small.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
                      expect_refused(small + "/file", EROFS);
                      expect_refused(small + "/new", EROFS);
                  }),
                  0);
    } else
        std::puts("nothing can be mounted here: the greatest size of files stands for a full disk");
#endif
    EXPECT_EQ(in_child([&] {
                  std::signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit{900000, RLIM_INFINITY};
                  setrlimit(RLIMIT_FSIZE, &limit);
                  const std::string file = small + "/file";
                  put_file(file, "old");
                  EXPECT_EQ(standard_error_of(
                                [&] { EXPECT_EQ(replace(file, std::string(900001, 'n'), EFBIG), 0u); }),
                            "Error writing contents to file: " + file + "\n");
                  EXPECT_EQ(file_text(file), "old");
              }),
              0);
}
