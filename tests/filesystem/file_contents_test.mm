#include "tests/support/files.hpp"

using namespace std::string_literals;

namespace
{

using File_Contents = File_Test;

void expect_read(ZEB_File *file, int error, const std::string &message, const std::string &contents = "")
{
    ZEB_Byte_Array *const target = bytes("what was there goes");
    expect_told(file, 1, error, message, [=] { return [file read_contents:target], 1u; });
    EXPECT_EQ(text_of(target), contents);
}

std::string shorter(int count, int size)
{
    return "Warning: Discrepancy in actual length read " + std::to_string(count) + " v.s. content size " +
           std::to_string(size) + " while reading contents of file: ";
}

} // namespace

TEST_F(File_Contents, are_written_and_read_as_they_are_or_compressed)
{
    const std::string contents = std::string(50000, 'a') + '\0' + "end";
    const auto size = static_cast<uint32_t>(contents.size());
    for (const bool replaces : {false, true})
        for (const int compressed : {0, 1}) {
            ZEB_File *const file = entry(path);
            [file set_contents_compressed:compressed];
            EXPECT_EQ(replaces ? [file replace_contents:contents.data() length:size]
                               : [file write_contents:contents.data() length:size],
                      1u);
            EXPECT_EQ(file_text(path).size() < 1000, compressed == 1);
            [file refresh_status];
            expect_read(file, 0, "", contents);
            ZEB_Byte_Array *const loaded = bytes("");
            [file load_contents:loaded];
            EXPECT_EQ(text_of(loaded), contents);
        }
}

TEST_F(File_Contents, are_read_as_far_as_they_are_there)
{
    expect_read(entry(path), ENOENT, "Error opening file: ");
    expect_read(entry(folder.path), EISDIR, "Error reading contents of file: ");
    expect_read(changed_entry("", ""), ENODATA, "Error, zero content size for file: ");
    expect_read(changed_entry("contents", "contents that grew"), 0, "", "contents");
    expect_read(changed_entry("twelve bytes", "six by"), ENODATA, shorter(6, 12), "six by\0\0\0\0\0\0"s);
    ZEB_File *const plain = changed_entry("not a zlib stream", "not a zlib stream");
    [plain set_contents_compressed:1];
    expect_read(plain, EILSEQ, "Error: Decompress failed while reading contents of file: ");
    ZEB_File *const lost = changed_entry("old", "");
    std::filesystem::remove(path);
    mkfifo(path.c_str(), 0600);
    alarm(20);
    expect_read(lost, ENODATA, shorter(0, 3), "\0\0\0"s);
    alarm(0);
    std::filesystem::remove(path);
    put_file(path, "");
    std::filesystem::resize_file(path, uint64_t{5} << 30);
    ZEB_File *const huge = entry(path);
    const Redirection unread(stderr);
    [huge read_contents:bytes("")];
    EXPECT_EQ([huge last_error], ENOMEM);
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
    EXPECT_EQ(text_of([file path]), path + "~\0"s);
    EXPECT_EQ(file_text(path + "~"), "first");
    [file refresh_status];
    EXPECT_EQ([file size], 5u);
    EXPECT_EQ(standard_output_of([&] { EXPECT_EQ([own restore], 1u); }), "Restored file: " + path + "\n");
    EXPECT_EQ(file_text(path), "first");
}
