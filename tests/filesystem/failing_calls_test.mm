#include "tests/support/captured.hpp"
#include "tests/support/failing_calls.h"
#include "tests/support/files.hpp"

#include <cerrno>

using namespace support;

namespace
{

const std::string old_text = "old", new_text = "new contents";

/// An operation with one call to the platform failing in it, and what is to come of that.
struct Row {
    const char *call;
    int outcome;
    uint32_t answer;
    int last_error;
    const char *message; /* the path and a line break follow, where there is one */
    std::string text;
    int compressed = 0, report_errors = 1;
    unsigned number = 1;
};

const char writing[] = "Error writing contents to file: ";
const char short_write[] = "Warning: Discrepancy in actual length written 0 v.s. specified length 12 while "
                           "writing contents to file: ";
const char compressing[] = "Error: Compress failed before writing contents of file: ";

const Row write_rows[] = {
    {"open", EIO, 0, EIO, "Error opening file: ", old_text},
    {"open", EINTR, 1, 0, "", new_text},
    {"ftruncate", EIO, 0, EIO, writing, old_text},
    {"ftruncate", EINTR, 1, 0, "", new_text},
    {"write", ENOSPC, 0, ENOSPC, writing, ""},
    {"write", EINTR, 1, 0, "", new_text},
    {"write", ZEB_CALL_DOES_HALF, 1, 0, "", new_text},
    {"write", ZEB_CALL_ANSWERS_0, 1, EIO, short_write, ""},
    {"close", EIO, 0, EIO, writing, new_text},
    {"close", EINTR, 1, 0, "", new_text},
    {"memory", ENOMEM, 0, ENOMEM, compressing, old_text, 1},
    {"memory", ENOMEM, 1, ENOMEM, "", "", 1, 0},
};

const char short_read[] =
    "Warning: Discrepancy in actual length read 0 v.s. content size 12 while reading contents of file: ";

const Row read_rows[] = {
    {"open", EACCES, 0, EACCES, "Error opening file: ", ""},
    {"open", EINTR, 0, 0, "", new_text},
    {"read", EIO, 0, EIO, "Error reading contents of file: ", ""},
    {"read", EINTR, 0, 0, "", new_text},
    {"read", ZEB_CALL_DOES_HALF, 0, 0, "", new_text},
    {"read", ZEB_CALL_ANSWERS_0, 0, ENODATA, short_read, std::string(12, '\0')},
    {"close", EIO, 0, 0, "", new_text},
    {"memory", ENOMEM, 0, ENOMEM,
     "decompress error: stream is not OK.\nError: Decompress failed while reading contents of file: ", "", 1,
     1, 2},
};

const Row status_rows[] = {
    {"stat", EIO, 1, EIO, "", "0"},
    {"stat", EACCES, 1, EACCES, "", "0"},
    {"stat", ENOENT, 1, 0, "", "0"},
    {"stat", ENOTDIR, 1, 0, "", "0"},
};

const Row backstore_rows[] = {{"rename", EIO, 0, EIO, "Error backstoring file: ", old_text}};
const Row restore_rows[] = {{"rename", EXDEV, 0, EXDEV, "Error restoring file: ", old_text}};

} // namespace

class Failing_Calls : public File_Test
{
protected:
    /// Runs an operation for each row, on an entry whose last operation went otherwise.
    template <size_t count, class Work, class Result>
    void run(const Row (&rows)[count], const std::string &before, Work work, Result result)
    {
        for (const Row &row : rows) {
            SCOPED_TRACE(std::string(row.call) + ", outcome " + std::to_string(row.outcome));
            put_file(path, before);
            ZEB_File *const file = entry(path);
            [file set_contents_compressed:row.compressed];
            [file set_report_errors:row.report_errors];
            [file set_last_error:row.last_error == 0 ? EPERM : 0];
            uint32_t answer = 0;
            const std::string told = standard_error_of([&] {
                zeb_plan_failure(folder.path.c_str(), row.call, row.number, row.outcome);
                answer = work(file);
            });
            const unsigned calls = zeb_calls_made(row.call);
            zeb_plan_failure("", "file", 0, 0);
            // Beneath a sanitizer allocations are its own.
            if (calls == 0 && std::string(row.call) == "memory")
                continue;
            EXPECT_NE(calls, 0u);
            EXPECT_EQ(answer, row.answer);
            EXPECT_EQ([file last_error], row.last_error);
            EXPECT_EQ(told, *row.message != '\0' ? row.message + path + "\n" : "");
            EXPECT_EQ(result(file), row.text);
            EXPECT_EQ(text_of([file path]), path);
        }
    }
};

TEST_F(Failing_Calls, are_told_and_lose_nothing)
{
    const auto file_at = [](const std::string &place) {
        return [=](ZEB_File *) { return file_text(place); };
    };
    run(
        write_rows, old_text, [](ZEB_File *file) { return [file write_contents:new_text.data() length:12]; },
        file_at(path));
    run(
        backstore_rows, old_text, [](ZEB_File *file) { return [file backstore]; }, file_at(path));
    run(
        restore_rows, old_text, [](ZEB_File *file) { return [file restore]; }, file_at(path));
    run(
        status_rows, old_text, [](ZEB_File *file) { return [file refresh_status]; },
        [](ZEB_File *file) { return std::to_string([file exists] + [file size]); });
    ZEB_Byte_Array *const target = bytes("");
    const auto read = [=](ZEB_File *file) {
        [target set_contents_of_array:bytes("what was there goes")];
        [file read_contents:target];
        return 0;
    };
    run(read_rows, new_text, read, [=](ZEB_File *) { return text_of(target); });
}

TEST_F(Failing_Calls, for_memory_leave_no_path_that_leads_elsewhere)
{
    const auto is_refused_memory = [&](unsigned number, auto work) {
        zeb_plan_failure(folder.path.c_str(), "memory", number, ENOMEM);
        struct stat found;
        stat(path.c_str(), &found); // from here on allocations count
        work();
        const unsigned calls = zeb_calls_made("memory");
        zeb_plan_failure("", "file", 0, 0);
        return calls >= number;
    };
    // The first length behind which "~" needs another block.
    const std::string deep = long_path(2046);
    put_file(deep, "far");
    put_file(path, old_text);
    ZEB_File *const far = entry(deep), *const near = entry(path);
    ZEB_String *const new_path = text(deep);
    const Redirection unread(stderr);
    if (!is_refused_memory(1, [&] { [far refresh_status]; }))
        GTEST_SKIP() << "beneath a sanitizer allocations are its own";
    EXPECT_EQ([far last_error], ENOMEM);
    uint32_t answer = 0;
    for (unsigned number = 1; is_refused_memory(number, [&] { answer = [far backstore]; }); ++number) {
        EXPECT_EQ(answer, 0u);
        EXPECT_EQ([far last_error], ENOMEM);
        EXPECT_EQ(text_of([far path]), deep);
        EXPECT_EQ(file_text(deep), "far");
    }
    EXPECT_EQ(answer, 1u);

    is_refused_memory(1, [&] { [near set_path:new_path]; });
    EXPECT_EQ([near last_error], ENOMEM);
    EXPECT_EQ([near write_contents:"x" length:1], 0u);
    EXPECT_EQ(file_text(path), old_text);
}
