#include "tests/support/captured.hpp"
#include "tests/support/files.hpp"
#include "tests/support/scratch_folder.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

using namespace support;

class File_Contents : public testing::Test
{
protected:
    Scratch_Folder folder;
    const std::string path = folder / "data";
};

TEST_F(File_Contents, are_written_and_read_as_they_are_or_compressed)
{
    const std::string contents = std::string(50000, 'a') + '\0' + "end";
    for (const int compressed : {0, 1}) {
        ZEB_File *file = entry(path);
        [file set_contents_compressed:compressed];
        ASSERT_EQ([file write_contents:contents.data() length:static_cast<uint32_t>(contents.size())], 1u);
        EXPECT_EQ(file_text(path).size() < 1000, compressed == 1);
        [file refresh_status];
        ZEB_Byte_Array *const back = bytes("what was there goes");
        [file read_contents:back];
        EXPECT_EQ(text_of(back), contents);
        [back clear];
        [file load_contents:back];
        EXPECT_EQ(text_of(back), contents);
    }
}

TEST_F(File_Contents, failures_to_read_are_told_and_leave_nothing)
{
    put_file(folder / "empty", "");
    put_file(folder / "plain", "not a zlib stream");
    const auto read = [&](ZEB_File *file) {
        ZEB_Byte_Array *const target = bytes("old");
        const std::string line = standard_error_of([&] { [file read_contents:target]; });
        EXPECT_EQ([target count], 0u);
        return line + std::to_string([file last_error]);
    };
    const auto number = [](int error) { return "\n" + std::to_string(error); };
    EXPECT_EQ(read(entry(path)), "Error opening file: " + path + number(ENOENT));
    EXPECT_EQ(read(entry(folder / "empty")),
              "Error, zero content size for file: " + (folder / "empty") + number(ENODATA));
    EXPECT_EQ(read(entry(folder.path)), "Error reading contents of file: " + folder.path + number(EISDIR));
    ZEB_File *const plain = entry(folder / "plain");
    [plain set_contents_compressed:1];
    EXPECT_EQ(read(plain), "Error: Decompress failed while reading contents of file: " + (folder / "plain") +
                               number(EILSEQ));
    [plain set_report_errors:0];
    EXPECT_EQ(read(plain), std::to_string(EILSEQ));
    put_file(folder / "huge", "");
    ASSERT_EQ(truncate((folder / "huge").c_str(), off_t{5} << 30), 0);
    EXPECT_NE(read(entry(folder / "huge")).find(number(ENOMEM)), std::string::npos);
}

TEST_F(File_Contents, a_file_that_shrank_is_told_and_reads_as_zero_behind_its_end)
{
    put_file(path, "twelve bytes");
    ZEB_File *const file = entry(path);
    put_file(path, "six by");
    ZEB_Byte_Array *const target = bytes("");
    EXPECT_EQ(
        standard_error_of([&] { [file read_contents:target]; }),
        "Warning: Discrepancy in actual length read 6 v.s. content size 12 while reading contents of file: " +
            path + "\n");
    EXPECT_EQ(text_of(target), std::string("six by") + std::string(6, '\0'));
    EXPECT_EQ([file last_error], ENODATA);
}

TEST_F(File_Contents, a_fifo_without_a_partner_is_a_failure)
{
    put_file(path, "old");
    ZEB_File *const file = entry(path);
    unlink(path.c_str());
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    alarm(20);
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([file write_contents:"x" length:1], 0u); }),
              "Error opening file: " + path + "\n");
    EXPECT_EQ([file last_error], ENXIO);
    standard_error_of([&] { [file read_contents:bytes("old")]; });
    EXPECT_EQ([file last_error], ENODATA);
    alarm(0);
}

TEST_F(File_Contents, failures_to_write_are_told)
{
    const auto expect = [](const std::string &to, const char *message, int error) {
        ZEB_File *const file = entry(to);
        EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([file write_contents:"x" length:1], 0u); }),
                  message + to + "\n");
        EXPECT_EQ([file last_error], error) << to;
    };
    expect(folder / "missing/data", "Error opening file: ", ENOENT);
    expect(folder.path, "Error opening file: ", EISDIR);
    if (access("/dev/full", W_OK) == 0)
        expect("/dev/full", "Error writing contents to file: ", ENOSPC);
    // A path with a null inside is no path of the platform's.
    expect(path + std::string("\0x", 2), "Error opening file: ", EINVAL);
    EXPECT_EQ(access(path.c_str(), F_OK), -1);
}

TEST_F(File_Contents, a_device_takes_what_it_is_given)
{
    EXPECT_EQ([entry("/dev/null") write_contents:"x" length:1], 1u);
}

TEST_F(File_Contents, backstore_sets_aside_and_restore_brings_back)
{
    put_file(path, "first");
    put_file(path + "~", "older");
    ZEB_File *const file = entry(path);
    [file set_log_actions:1];
    EXPECT_EQ(standard_output_of([&] { EXPECT_EQ([file backstore], 1u); }),
              "Backstored file: " + path + "\n");
    EXPECT_EQ(text_of([file path]), path + std::string("~\0", 2));
    EXPECT_EQ(file_text(path + "~"), "first");
    [file refresh_status];
    EXPECT_EQ([file exists], 1);
    EXPECT_EQ([file size], 5u);

    ZEB_File *const own = entry(path);
    [own set_log_actions:1];
    EXPECT_EQ(standard_output_of([&] { EXPECT_EQ([own restore], 1u); }), "Restored file: " + path + "\n");
    EXPECT_EQ(file_text(path), "first");
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([own restore], 0u); }),
              "Error restoring file: " + path + "\n");
    EXPECT_EQ(text_of([own path]), path);
    const std::string missing = folder / "missing";
    ZEB_File *const none = entry(missing);
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([none backstore], 0u); }),
              "Error backstoring file: " + missing + "\n");
    EXPECT_EQ(text_of([none path]), missing);
}

TEST_F(File_Contents, paths_may_be_longer_than_a_thousand_bytes)
{
    std::string deep = folder.path;
    for (int i = 0; i < 12; ++i) {
        deep += "/" + std::string(120, 'd');
        ASSERT_EQ(mkdir(deep.c_str(), 0700), 0);
    }
    ZEB_File *const file = entry(deep + "/file");
    EXPECT_EQ([file write_contents:"x" length:1], 1u);
    EXPECT_EQ([file backstore], 1u);
    EXPECT_EQ(file_text(deep + "/file~"), "x");
}
