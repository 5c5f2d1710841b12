#include "tests/support/files.hpp"

#include <climits>
#include <unistd.h>

namespace
{

class File_Copying : public File_Test
{
protected:
    void expect_copied(ZEB_File *file, int error, const std::string &message, const std::string &contents)
    {
        expect_told(file, 1, error, message, [&] { return [file copy_to:text(other)]; });
        EXPECT_EQ(file_text(other), contents);
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
            expect_copied(file, 0, "", "contents");
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

TEST_F(File_Copying, goes_by_the_snapshot)
{
    const std::string shorter = "Warning: Discrepancy in actual length read 3 v.s. content size ",
                      copied = " while copying contents from file: ";
    expect_copied(changed_entry("contents", "contents that grew"), 0, "", "contents");
    expect_copied(changed_entry("contents", "cut"), ENODATA, shorter + "8" + copied, "cut");
    std::filesystem::resize_file(path, (uint64_t{4} << 30) + 5);
    ZEB_File *const file = entry(path);
    put_file(path, "cut");
    expect_copied(file, ENODATA, shorter + "4294967301" + copied, "cut");
    EXPECT_EQ(standard_error_of([=] { EXPECT_EQ([file copy_to:nil], 0u); }), "Error copying to file: \n");
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
    ZEB_File *const file = entry(folder / name);
    expect_told(file, 0, ENAMETOOLONG, "Error backstoring file: ", [=] { return [file backstore]; });
}

TEST_F(File_Copying, moving_follows_the_file)
{
    put_file(path, "contents");
    ZEB_File *const file = entry(path);
    const std::string no_place = "Error moving file: " + path + " to \n";
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([file move_to:nil], 0u); }), no_place);
    EXPECT_EQ(text_of([file path]), path);
    EXPECT_EQ([file move_to:text(other)], 1u);
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
