#include "tests/support/captured.hpp"
#include "tests/support/files.hpp"

#include <cerrno>
#include <tuple>
#include <unistd.h>

using namespace support;

namespace
{

/// What reading leaves: the line that tells of a failure, its cause, and the contents.
using Reading = std::tuple<std::string, int, std::string>;

Reading reading_of(ZEB_File *file)
{
    ZEB_Byte_Array *const target = bytes("what was there goes");
    const std::string line = standard_error_of([&] { [file read_contents:target]; });
    return {line, [file last_error], text_of(target)};
}

/// What writing answers, the line that tells of a failure, and its cause.
using Writing = std::tuple<uint32_t, std::string, int>;

Writing writing_of(const std::string &path)
{
    ZEB_File *const file = entry(path);
    uint32_t answer = 2;
    const std::string line = standard_error_of([&] { answer = [file write_contents:"x" length:1]; });
    return {answer, line, [file last_error]};
}

using File_Contents = File_Test;

} // namespace

TEST_F(File_Contents, are_written_and_read_as_they_are_or_compressed)
{
    const std::string contents = std::string(50000, 'a') + '\0' + "end";
    for (const int compressed : {0, 1}) {
        ZEB_File *const file = entry(path);
        [file set_contents_compressed:compressed];
        ASSERT_EQ([file write_contents:contents.data() length:static_cast<uint32_t>(contents.size())], 1u);
        EXPECT_EQ(file_text(path).size() < 1000, compressed == 1);
        [file refresh_status];
        EXPECT_EQ(reading_of(file), Reading("", 0, contents));
        ZEB_Byte_Array *const loaded = bytes("");
        [file load_contents:loaded];
        EXPECT_EQ(text_of(loaded), contents);
    }
}

TEST_F(File_Contents, failures_to_read_are_told_and_leave_nothing)
{
    EXPECT_EQ(reading_of(entry(path)), Reading("Error opening file: " + path + "\n", ENOENT, ""));
    EXPECT_EQ(reading_of(entry(folder.path)),
              Reading("Error reading contents of file: " + folder.path + "\n", EISDIR, ""));
    put_file(path, "");
    EXPECT_EQ(reading_of(entry(path)),
              Reading("Error, zero content size for file: " + path + "\n", ENODATA, ""));
    put_file(path, "not a zlib stream");
    ZEB_File *const plain = entry(path);
    [plain set_contents_compressed:1];
    EXPECT_EQ(reading_of(plain),
              Reading("Error: Decompress failed while reading contents of file: " + path + "\n", EILSEQ, ""));
    [plain set_report_errors:0];
    EXPECT_EQ(reading_of(plain), Reading("", EILSEQ, ""));
    ASSERT_EQ(truncate(path.c_str(), off_t{5} << 30), 0);
    EXPECT_EQ(std::get<int>(reading_of(entry(path))), ENOMEM);
}

TEST_F(File_Contents, a_file_that_shrank_is_told_and_reads_as_zero_behind_its_end)
{
    put_file(path, "twelve bytes");
    ZEB_File *const file = entry(path);
    put_file(path, "six by");
    EXPECT_EQ(reading_of(file), Reading("Warning: Discrepancy in actual length read 6 v.s. content size 12 "
                                        "while reading contents of file: " +
                                            path + "\n",
                                        ENODATA, std::string("six by\0\0\0\0\0\0", 12)));
}

TEST_F(File_Contents, failures_to_write_are_told)
{
    const auto expect = [](const std::string &to, const char *message, int error) {
        EXPECT_EQ(writing_of(to), Writing(0, message + to + "\n", error));
    };
    expect(folder / "missing/data", "Error opening file: ", ENOENT);
    expect(folder.path, "Error opening file: ", EISDIR);
    if (access("/dev/full", W_OK) == 0)
        expect("/dev/full", "Error writing contents to file: ", ENOSPC);
    EXPECT_EQ(writing_of("/dev/null"), Writing(1, "", 0));
    // A path with a null inside is no path of the platform's.
    expect(path + std::string("\0x", 2), "Error opening file: ", EINVAL);
    EXPECT_EQ(access(path.c_str(), F_OK), -1);
}

TEST_F(File_Contents, a_fifo_without_a_partner_is_a_failure)
{
    put_file(path, "old");
    ZEB_File *const file = entry(path);
    unlink(path.c_str());
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    alarm(20);
    EXPECT_EQ(writing_of(path), Writing(0, "Error opening file: " + path + "\n", ENXIO));
    EXPECT_EQ(std::get<int>(reading_of(file)), ENODATA);
    alarm(0);
}

TEST_F(File_Contents, backstore_sets_aside_and_restore_brings_back)
{
    put_file(path, "first");
    put_file(path + "~", "older");
    ZEB_File *const file = entry(path), *const own = entry(path);
    [file set_log_actions:1];
    [own set_log_actions:1];
    EXPECT_EQ(standard_output_of([&] { EXPECT_EQ([file backstore], 1u); }),
              "Backstored file: " + path + "\n");
    EXPECT_EQ(text_of([file path]), path + std::string("~\0", 2));
    EXPECT_EQ(file_text(path + "~"), "first");
    [file refresh_status];
    EXPECT_EQ([file size], 5u);
    EXPECT_EQ(standard_output_of([&] { EXPECT_EQ([own restore], 1u); }), "Restored file: " + path + "\n");
    EXPECT_EQ(file_text(path), "first");
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([own restore], 0u); }),
              "Error restoring file: " + path + "\n");
}

TEST_F(File_Contents, paths_may_be_longer_than_a_thousand_bytes)
{
    const std::string deep = long_path(1500);
    ZEB_File *const file = entry(deep);
    EXPECT_EQ([file write_contents:"x" length:1], 1u);
    EXPECT_EQ([file backstore], 1u);
    EXPECT_EQ(file_text(deep + "~"), "x");
}
