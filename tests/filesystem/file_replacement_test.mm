#include "tests/support/child.hpp"
#include "tests/support/files.hpp"

#include <csignal>
#include <fcntl.h>
#include <grp.h>
#include <sys/resource.h>
#include <unistd.h>

namespace
{

uint32_t replace(ZEB_File *file, const std::string &contents)
{
    return [file replace_contents:contents.data() length:static_cast<uint32_t>(contents.size())];
}

void expect_replaced(const std::string &path, const std::string &contents)
{
    ZEB_File *const file = entry(path);
    EXPECT_EQ(replace(file, contents), 1u);
    EXPECT_EQ([file last_error], 0);
    EXPECT_EQ(file_text(path), contents);
}

using File_Replacement = File_Test;

} // namespace

TEST_F(File_Replacement, keeps_mode_and_links)
{
    const mode_t mask = umask(027);
    expect_replaced(path, "first");
    EXPECT_EQ(status_of(path).st_mode & 07777, 0640u);
    umask(mask);
    chmod(path.c_str(), 0757);
    ASSERT_EQ(symlink("file", (folder / "link").c_str()), 0);
    ASSERT_EQ(link(path.c_str(), (folder / "other name").c_str()), 0);
    expect_replaced(folder / "link", "second");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(file_text(path), "second");
    EXPECT_EQ(file_text(folder / "other name"), "first");
    EXPECT_EQ(status_of(path).st_mode & 07777, 0757u);
    const int before = open(".", O_RDONLY); // above which another user may not see
    ASSERT_EQ(chdir(folder.path.c_str()), 0);
    expect_replaced("file", "");
    EXPECT_EQ(fchdir(before), 0);
    close(before);
}

TEST_F(File_Replacement, gives_nobody_more_rights)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root has files of several owners";
    constexpr uid_t some = 65534, other = 1234;
    const struct {
        uid_t user, owner, group;
        mode_t before, after;
        gid_t group_after;
    } rows[] = {
        {0, other, 4321, 06640, 06640, 4321},   {some, some, some, 0640, 0640, some},
        {some, some, other, 0664, 0644, some},  {some, other, other, 06676, 0666, some},
        {some, other, some, 04662, 0662, some},
    };
    // From within the folder, the way to which may be closed to other users.
    const auto as = [&](uid_t user, auto work) {
        return end_of_child(start_child([&] {
            if (chdir(folder.path.c_str()) != 0 ||
                (user != 0 && (setgroups(0, nullptr) != 0 || setgid(user) != 0 || setuid(user) != 0)))
                FAIL();
            work();
        }));
    };
    chmod(folder.path.c_str(), 0777);
    for (const auto &row : rows) {
        put_file(path, "old");
        ASSERT_EQ(chown(path.c_str(), row.owner, row.group), 0);
        chmod(path.c_str(), row.before);
        EXPECT_EQ(as(row.user, [&] { expect_replaced("file", "new"); }), 0);
        const struct stat found = status_of(path);
        EXPECT_EQ(found.st_mode & 07777, row.after);
        EXPECT_EQ(found.st_uid, row.user == 0 ? row.owner : row.user);
        EXPECT_EQ(found.st_gid, row.group_after) << row.before;
        unlink(path.c_str());
    }
    put_file(path, "old");
    chmod(path.c_str(), 0644);
    const auto try_in_vain = [] {
        ZEB_File *const file = entry("file");
        expect_told(file, 0, EACCES, "Error opening file: ", [=] { return replace(file, "new"); });
    };
    EXPECT_EQ(as(some, try_in_vain), 0);
}

TEST_F(File_Replacement, or_copying_of_more_than_there_is_room_for_is_told)
{
    put_file(path, std::string(100001, 'c'));
    EXPECT_EQ(end_of_child(start_child([&] {
                  std::signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit{100000, RLIM_INFINITY};
                  setrlimit(RLIMIT_FSIZE, &limit);
                  ZEB_File *const file = entry(path);
                  expect_told(file, 0, EFBIG, "Error writing contents to file: ", [=] {
                      return replace(file, std::string(100001, 'n'));
                  });
                  const Redirection unread(stderr);
                  EXPECT_EQ([file copy_to:text(folder / "copy")], 0u);
                  EXPECT_EQ([file last_error], EFBIG);
              })),
              0);
    EXPECT_EQ(file_text(path), std::string(100001, 'c'));
}
