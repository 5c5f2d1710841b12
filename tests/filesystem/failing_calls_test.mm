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
    std::string message; /* where there is one, the path and a line break follow; @ and # stand for the paths
                            of a copy */
    std::string text;
    int compressed = 0, report_errors = 1;
    unsigned number = 1;
};

const char opening[] = "Error opening file: ";
const char writing[] = "Error writing contents to file: ";
const char short_write[] = "Warning: Discrepancy in actual length written 0 v.s. specified length 12 while "
                           "writing contents to file: ";
const char compressing[] = "Error: Compress failed before writing contents of file: ";

const Row write_rows[] = {
    {"open", EIO, 0, EIO, opening, old_text},
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
    {"open", EACCES, 0, EACCES, opening, ""},
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

// What lies in the folder is counted behind the contents: a file, and none beside it.
const std::string old_file = old_text + "1", new_file = new_text + "1";

const Row replace_rows[] = {
    {"lstat", EIO, 0, EIO, opening, old_file},
    {"open", EACCES, 0, EACCES, opening, old_file},
    {"close", EIO, 1, 0, "", new_file},
    {"memory", ENOMEM, 0, ENOMEM, opening, old_file},
    {"open", ENOSPC, 0, ENOSPC, opening, old_file, 0, 1, 2},
    {"open", EEXIST, 1, 0, "", new_file, 0, 1, 2},
    {"fchown", EPERM, 1, 0, "", new_file},
    {"fchmod", EIO, 0, EIO, writing, old_file},
    {"write", ENOSPC, 0, ENOSPC, writing, old_file},
    {"write", EINTR, 1, 0, "", new_file},
    {"write", ZEB_CALL_DOES_HALF, 1, 0, "", new_file},
    {"write", ZEB_CALL_ANSWERS_0, 0, EIO, writing, old_file},
    {"fsync", EIO, 0, EIO, writing, old_file},
    {"close", EDQUOT, 0, EDQUOT, writing, old_file, 0, 1, 2},
    {"rename", EIO, 0, EIO, writing, old_file},
    {"open", EACCES, 1, EACCES, "", new_file, 0, 1, 3},
    {"fsync", EIO, 1, EIO, "", new_file, 0, 1, 2},
    {"fsync", EINVAL, 1, 0, "", new_file, 0, 1, 2},
};

const std::string source = std::string(70000, 's') + std::string(30000, 't');
const std::string piece = source.substr(0, 65536); // what is copied at a time without the kernel
const char copying_to[] = "Error copying to file: #", copying_from[] = "Error copying contents from file: @",
           writing_copy[] = "Error copying contents to file: #";

const Row copy_rows[] = {
    {"open", EACCES, 0, EACCES, "Error opening source file for copying: @ -> #", old_text},
    {"fstat", EIO, 0, EIO, copying_to, old_text},
    {"stat", EIO, 0, EIO, copying_to, old_text},
    {"open", EACCES, 0, EACCES, copying_to, old_text, 0, 1, 2},
    {"ftruncate", EIO, 0, EIO, copying_to, old_text},
    {"copy_file_range", EXDEV, 1, 0, "", source},
    {"copy_file_range", ZEB_CALL_DOES_HALF, 1, 0, "", source},
    {"copy_file_range", EIO, 1, 0, "", source, 0, 1, 2},
    {"copy_file_range", ZEB_CALL_ANSWERS_0, 1, 0, "", source},
    {"read", ZEB_CALL_DOES_HALF, 1, 0, "", source},
    {"read", EIO, 0, EIO, copying_from, "", 0, 1, 2},
    {"read", ZEB_CALL_ANSWERS_0, 1, ENODATA,
     "Warning: Discrepancy in actual length read 65536 v.s. content size 100000 while copying contents from "
     "file: @",
     piece, 0, 1, 2},
    {"write", ZEB_CALL_DOES_HALF, 1, 0, "", source},
    {"write", ENOSPC, 0, ENOSPC, writing_copy, piece, 0, 1, 2},
    {"write", ZEB_CALL_ANSWERS_0, 1, EIO,
     "Warning: Discrepancy in actual length read 65536 v.s. actual length written 0 while copying contents "
     "to "
     "file: @",
     ""},
    {"fchmod", EPERM, 1, EPERM, "", source},
    {"fchown", EPERM, 1, EPERM, "", source},
    {"close", EIO, 0, EIO, writing_copy, source},
    {"close", EIO, 1, 0, "", source, 0, 1, 2},
};

const Row move_rows[] = {{"rename", EXDEV, 0, EXDEV, "Error moving file: @ to #", old_text}};
const Row backstore_rows[] = {{"rename", EIO, 0, EIO, "Error backstoring file: ", old_text}};
const Row restore_rows[] = {{"rename", EXDEV, 0, EXDEV, "Error restoring file: ", old_text}};

} // namespace

class Failing_Calls : public File_Test
{
protected:
    /// The line of a message, with the paths in it.
    std::string line_of(std::string message) const
    {
        if (message.empty())
            return message;
        if (message.find_first_of("@#") == std::string::npos)
            message += "@";
        for (const auto &[sign, text] : {std::pair{'@', path}, {'#', other}})
            if (const size_t at = message.find(sign); at != std::string::npos)
                message.replace(at, 1, text);
        return message + "\n";
    }

    const std::string other = path + " copy";

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
            EXPECT_EQ(told, line_of(row.message));
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
    const auto file_and_count = [&](ZEB_File *) {
        const std::filesystem::directory_iterator all(folder.path);
        return file_text(path) + std::to_string(std::distance(begin(all), end(all)));
    };
    run(
        replace_rows, old_text,
        [](ZEB_File *file) { return [file replace_contents:new_text.data() length:12]; }, file_and_count);
    const auto copy = [&](ZEB_File *file) {
        put_file(other, old_text);
        return [file copy_to:text(other)];
    };
    run(copy_rows, source, copy, file_at(other));
    run(
        move_rows, old_text, [&](ZEB_File *file) { return [file move_to:text(other)]; }, file_at(path));
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

TEST_F(Failing_Calls, to_follow_a_link_replace_nothing)
{
    put_file(path, old_text);
    ASSERT_EQ(symlink("file", other.c_str()), 0);
    ZEB_File *const file = entry(other);
    [file set_report_errors:0];
    for (const auto &[call, number] : {std::pair{"realpath", 1u}, {"lstat", 2u}}) {
        zeb_plan_failure(folder.path.c_str(), call, number, EACCES);
        EXPECT_EQ([file replace_contents:new_text.data() length:12], 0u);
        zeb_plan_failure("", "file", 0, 0);
        EXPECT_EQ([file last_error], EACCES);
        EXPECT_EQ(file_text(path), old_text);
    }
}

TEST_F(Failing_Calls, leave_a_copy_restricted)
{
    put_file(path, source);
    chmod(path.c_str(), 0600);
    ZEB_File *const file = entry(path);
    const mode_t mask = umask(0);
    zeb_plan_failure(folder.path.c_str(), "fchmod", 1, EPERM);
    EXPECT_EQ([file copy_to:text(other)], 1u);
    zeb_plan_failure("", "file", 0, 0);
    umask(mask);
    EXPECT_EQ(std::filesystem::status(other).permissions(), std::filesystem::perms(0600));
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

    for (unsigned number = 1; is_refused_memory(number, [&] { answer = [near move_to:new_path]; });
         ++number) {
        EXPECT_EQ(answer, 0u);
        EXPECT_EQ([near last_error], ENOMEM);
        EXPECT_EQ(text_of([near path]), path);
        EXPECT_EQ(file_text(path), old_text);
    }
    EXPECT_EQ(answer, 1u);
    EXPECT_EQ(text_of([near path]), deep);

    put_file(path, old_text);
    ZEB_File *const changed = entry(path);
    is_refused_memory(1, [&] { [changed set_path:new_path]; });
    EXPECT_EQ([changed last_error], ENOMEM);
    EXPECT_EQ([changed write_contents:"x" length:1], 0u);
    EXPECT_EQ(file_text(path), old_text);
}
