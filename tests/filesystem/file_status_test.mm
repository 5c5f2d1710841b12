#include "tests/support/files.hpp"

#include <unistd.h>

class File_Status : public File_Test
{
protected:
    File_Status()
    {
        put_file(path, "12345");
        chmod(path.c_str(), 0751);
    }
};

TEST_F(File_Status, is_what_the_platform_says)
{
    symlink(path.c_str(), (folder / "link").c_str());
    const struct stat found = status_of(path);
    for (ZEB_File *const file : {entry(path), entry(folder / "link")}) {
        const uint8_t bits[] = {[file owner_read], [file owner_write], [file owner_execute],
                                [file group_read], [file group_write], [file group_execute],
                                [file other_read], [file other_write], [file other_execute]};
        unsigned mode = 0;
        for (const uint8_t bit : bits)
            mode = mode * 2 + bit;
        EXPECT_EQ(mode, 0751u);
        EXPECT_EQ([file modification_time].second, static_cast<uint64_t>(found.st_mtime));
        EXPECT_EQ([file access_time].second, static_cast<uint64_t>(found.st_atime));
        EXPECT_EQ([file status_change_time].second, static_cast<uint64_t>(found.st_ctime));
        EXPECT_EQ([file uid], found.st_uid);
        EXPECT_EQ([file can_read] + [file can_write] + [file can_execute], 3);
    }
    EXPECT_EQ([entry(folder.path) kind], ZEB_File_Kind { ZEB_FILE_KIND_DIRECTORY });
    EXPECT_EQ([entry("/dev/null") kind], ZEB_File_Kind { ZEB_FILE_KIND_OTHER });
}

TEST_F(File_Status, that_cannot_be_read_clears_existence_and_size_and_keeps_the_reason)
{
    symlink("loop", (folder / "loop").c_str());
    const std::pair<std::string, int> rows[] = {{folder / "missing", 0},
                                                {folder / "missing/below", 0},
                                                {folder / "file/it", 0},
                                                {folder / "loop", ELOOP},
                                                {folder / std::string(300, 'n'), ENAMETOOLONG},
                                                {std::string("a\0b", 3), EINVAL},
                                                {"", 0}};
    ZEB_File *const file = entry(path);
    for (const auto &[name, error] : rows) {
        for (const std::string &place : {path, name}) {
            [file set_path:text(place)];
            EXPECT_EQ([file refresh_status], 1u);
            EXPECT_EQ([file last_error], place == path ? 0 : error) << name;
            EXPECT_EQ([file exists], place == path);
            EXPECT_EQ([file size], place == path ? 5u : 0u);
            EXPECT_EQ([file kind], ZEB_File_Kind { ZEB_FILE_KIND_REGULAR });
        }
        EXPECT_EQ([[[file copy] autorelease] last_error], error) << name;
    }
}

TEST_F(File_Status, details_are_loaded_when_wanted)
{
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    [file set_load_details:0];
    [file set_path:text(path)];
    [file refresh_status];
    EXPECT_EQ([file size], 5u);
    EXPECT_EQ([file other_execute], 0);
    EXPECT_EQ([file uid], getuid());
    ZEB_File *const copied = [[file copy] autorelease];
    EXPECT_EQ([copied size], 5u);
    EXPECT_EQ([copied load_details], 0);
    EXPECT_EQ(text_of([copied path]), path);
}
