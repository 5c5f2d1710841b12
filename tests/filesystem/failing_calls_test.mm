#include "tests/support/failing_calls.h"
#include "tests/support/files.hpp"
#include "tests/support/sanitizer.hpp"

namespace
{

const std::string old_text = "old", new_text = "new contents";

/// An operation with one call to the platform failing in it, and what is to come of that.
struct Row {
    const char *call;
    int outcome;
    uint32_t answer;
    int last_error;
    std::string message; /* # and % stand for the paths; a line break follows what is not empty */
    std::string text;
    unsigned number = 1;
    int compressed = 0, report_errors = 1;
};

const char opening[] = "Error opening file: #", writing[] = "Error writing contents to file: #",
           compressing[] = "Error: Compress failed before writing contents of file: #",
           decompressing[] = "decompress error: stream is not OK.\n"
                             "Error: Decompress failed while reading contents of file: #",
           reading[] = "Error reading contents of file: #";
const std::string discrepancy = "Warning: Discrepancy in actual length ",
                  short_write =
                      discrepancy + "written 0 v.s. specified length 12 while writing contents to file: #",
                  short_read = discrepancy + "read 0 v.s. content size 12 while reading contents of file: #";

const Row write_rows[] = {
    {"open", EIO, 0, EIO, opening, old_text},
    {"ftruncate", EIO, 0, EIO, writing, old_text},
    {"write", ENOSPC, 0, ENOSPC, writing, ""},
    {"write", ZEB_CALL_ANSWERS_0, 1, EIO, short_write, ""},
    {"close", EIO, 0, EIO, writing, new_text},
    {"memory", ENOMEM, 0, ENOMEM, compressing, old_text, 1, 1},
    {"memory", ENOMEM, 1, ENOMEM, "", "", 1, 1, 0},
};

const Row read_rows[] = {
    {"open", EACCES, 0, EACCES, opening, ""},
    {"read", EIO, 0, EIO, reading, ""},
    {"read", ZEB_CALL_ANSWERS_0, 0, ENODATA, short_read, std::string(12, '\0')},
    {"close", EIO, 1, 0, "", new_text},
    {"memory", ENOMEM, 0, ENOMEM, decompressing, "", 2, 1},
};

// What lies in the folder is counted behind the contents: a file, and none beside it.
const std::string old_file = old_text + "1", new_file = new_text + "1";

const Row replace_rows[] = {
    {"lstat", EIO, 0, EIO, opening, old_file},
    {"open", EACCES, 0, EACCES, opening, old_file},
    {"close", EIO, 1, 0, "", new_file},
    {"memory", ENOMEM, 0, ENOMEM, opening, old_file},
    {"open", ENOSPC, 0, ENOSPC, opening, old_file, 2},
    {"open", EEXIST, 1, 0, "", new_file, 2},
    {"fchown", EPERM, 1, 0, "", new_file},
    {"fchmod", EIO, 0, EIO, writing, old_file},
    {"write", ENOSPC, 0, ENOSPC, writing, old_file},
    {"write", ZEB_CALL_ANSWERS_0, 0, EIO, writing, old_file},
    {"fsync", EIO, 0, EIO, writing, old_file},
    {"close", EDQUOT, 0, EDQUOT, writing, old_file, 2},
    {"rename", EIO, 0, EIO, writing, old_file},
    {"open", EACCES, 1, EACCES, "", new_file, 3},
    {"fsync", EIO, 1, EIO, "", new_file, 2},
    {"fsync", EINVAL, 1, 0, "", new_file, 2},
};

const std::string source = std::string(70000, 's') + std::string(30000, 't');
const std::string piece = source.substr(0, 65536); // what is copied at a time without the kernel
const char copying_to[] = "Error copying to file: %", copying_from[] = "Error copying contents from file: #",
           writing_copy[] = "Error copying contents to file: %";
const std::string short_source =
                      discrepancy + "read 65536 v.s. content size 100000 while copying contents from file: #",
                  short_copy = discrepancy +
                               "read 65536 v.s. actual length written 0 while copying contents to file: #";

const Row copy_rows[] = {
    {"open", EACCES, 0, EACCES, "Error opening source file for copying: # -> %", old_text},
    {"fstat", EIO, 0, EIO, copying_to, old_text},
    {"stat", EIO, 0, EIO, copying_to, old_text},
    {"open", EACCES, 0, EACCES, copying_to, old_text, 2},
    {"ftruncate", EIO, 0, EIO, copying_to, old_text},
    {"copy_file_range", EXDEV, 1, 0, "", source},
    {"copy_file_range", ZEB_CALL_ANSWERS_0, 1, 0, "", source},
    {"read", EIO, 0, EIO, copying_from, "", 2},
    {"read", ZEB_CALL_ANSWERS_0, 1, ENODATA, short_source, piece, 2},
    {"write", ENOSPC, 0, ENOSPC, writing_copy, piece, 2},
    {"write", ZEB_CALL_ANSWERS_0, 1, EIO, short_copy, ""},
    {"fchmod", EPERM, 1, EPERM, "", source},
    {"fchown", EPERM, 1, EPERM, "", source},
    {"close", EIO, 0, EIO, writing_copy, source},
    {"close", EIO, 1, 0, "", source, 2},
};

} // namespace

class Failing_Calls : public File_Test
{
protected:
    const std::string other = path + " copy";

    /// Runs an operation on an entry whose last operation went otherwise. Returns whether the call was made.
    template <class Work, class Result>
    bool expect(const Row &row, const std::string &before, Work work, Result result)
    {
        SCOPED_TRACE(std::string(row.call) + ", outcome " + std::to_string(row.outcome));
        put_file(path, before);
        ZEB_File *const file = entry(path);
        [file set_contents_compressed:row.compressed];
        [file set_report_errors:row.report_errors];
        [file set_last_error:row.last_error == 0 ? EPERM : 0];
        uint32_t answer = 0;
        unsigned calls = 0;
        const std::string told = standard_error_of([&] {
            calls = run_failing(folder.path, row.call, row.number, row.outcome, [&] { answer = work(file); });
        });
        // Beneath a sanitizer allocations are its own, and beneath that of threads so is this call.
        const std::string call = row.call;
        if (calls == 0 && support::slowness > 1 && (call == "memory" || (call == "fstat" && row.number == 1)))
            return true;
        EXPECT_EQ(answer, row.answer);
        EXPECT_EQ([file last_error], row.last_error);
        EXPECT_EQ(told, row.message.empty() ? "" : placed(row.message, path, other) + "\n");
        EXPECT_EQ(result(), row.text);
        EXPECT_EQ(text_of([file path]), path);
        return calls >= row.number;
    }

    /// Runs an operation for each row, and with each of its calls interrupted, or cut short, without harm.
    template <size_t count, class Work, class Result>
    void run(const Row (&rows)[count], const std::string &before, const std::string &after, Work work,
             Result result)
    {
        for (const Row &row : rows)
            EXPECT_TRUE(expect(row, before, work, result)) << row.call;
        const auto go_on_after = [&](const char *call, int outcome) {
            for (unsigned number = 1; expect({call, outcome, 1, 0, "", after, number}, before, work, result);)
                ++number;
        };
        for (const char *const call : {"open", "fstat", "ftruncate", "fchown", "fchmod", "fsync", "close"})
            go_on_after(call, EINTR);
        for (const char *const call : {"read", "write", "copy_file_range"})
            for (const int outcome : {EINTR, int{ZEB_CALL_DOES_HALF}})
                go_on_after(call, outcome);
    }
};

TEST_F(Failing_Calls, are_told_and_lose_nothing)
{
    const auto write = [](ZEB_File *file) { return [file write_contents:new_text.data() length:12]; };
    run(write_rows, old_text, new_text, write, [&] { return file_text(path); });
    const auto replace = [](ZEB_File *file) { return [file replace_contents:new_text.data() length:12]; };
    run(replace_rows, old_text, new_file, replace, [&] {
        const std::filesystem::directory_iterator all(folder.path);
        return file_text(path) + std::to_string(std::distance(begin(all), end(all)));
    });
    const auto copy = [&](ZEB_File *file) {
        put_file(other, old_text);
        return [file copy_to:text(other)];
    };
    run(copy_rows, source, source, copy, [&] { return file_text(other); });
    ZEB_Byte_Array *const target = bytes("");
    const auto read = [=](ZEB_File *file) {
        [target set_contents_of_array:bytes("what was there goes")];
        [file read_contents:target];
        return [file last_error] == 0 ? 1u : 0u;
    };
    run(read_rows, new_text, new_text, read, [=] { return text_of(target); });
}

TEST_F(Failing_Calls, to_follow_a_link_replace_nothing)
{
    put_file(path, old_text);
    ASSERT_EQ(symlink("file", other.c_str()), 0);
    ZEB_File *const file = entry(other);
    [file set_report_errors:0];
    for (const auto &[call, number] : {std::pair{"realpath", 1u}, {"lstat", 2u}}) {
        run_failing(folder.path, call, number, EACCES,
                    [=] { EXPECT_EQ([file replace_contents:"new" length:3], 0u); });
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
    run_failing(folder.path, "fchmod", 1, EPERM, [&] { EXPECT_EQ([file copy_to:text(other)], 1u); });
    umask(mask);
    EXPECT_EQ(std::filesystem::status(other).permissions(), std::filesystem::perms(0600));
}

TEST_F(Failing_Calls, for_memory_leave_no_path_that_leads_elsewhere)
{
    const auto is_refused_memory = [&](unsigned number, auto work) {
        return run_failing(folder.path, "memory", number, ENOMEM, [&] {
                   struct stat found;
                   stat(path.c_str(), &found); // from here on allocations count
                   work();
               }) >= number;
    };
    // The first length behind which "~" needs another block.
    const std::string deep = long_path(2046);
    put_file(deep, "far");
    put_file(path, old_text);
    ZEB_File *const far = entry(deep), *const near = entry(path), *const changed = entry(path);
    ZEB_String *const new_path = text(deep);
    const Redirection unread(stderr);
    if (!is_refused_memory(1, [&] { [far refresh_status]; }))
        GTEST_SKIP() << "beneath a sanitizer allocations are its own";
    EXPECT_EQ([far last_error], ENOMEM);
    is_refused_memory(1, [&] { [changed set_path:new_path]; });
    EXPECT_EQ([changed last_error], ENOMEM);
    EXPECT_EQ([changed write_contents:"x" length:1], 0u);
    const auto expect_unmoved = [&](ZEB_File *file, const std::string &contents, auto work) {
        const std::string place = text_of([file path]);
        uint32_t answer = 0;
        for (unsigned number = 1; is_refused_memory(number, [&] { answer = work(); }); ++number) {
            EXPECT_EQ(answer, 0u);
            EXPECT_EQ([file last_error], ENOMEM);
            EXPECT_EQ(text_of([file path]), place);
            EXPECT_EQ(file_text(place), contents);
        }
        EXPECT_EQ(answer, 1u);
    };
    expect_unmoved(far, "far", [=] { return [far backstore]; });
    expect_unmoved(near, old_text, [=] { return [near move_to:new_path]; });
    EXPECT_EQ(text_of([near path]), deep);
}
