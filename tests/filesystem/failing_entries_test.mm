#include "tests/support/failing_calls.h"
#include "tests/support/files.hpp"

#include <vector>

namespace fs = std::filesystem;

namespace
{

/// An operation on an entry at a path, the calls in it that may fail, and whether its result tells of that
/// too.
struct Operation {
    std::string name;
    uint32_t (*work)(ZEB_File *);
    std::vector<const char *> calls;
    bool has_result = true;
};

#define WORK(call) [](ZEB_File *file) { return call; }

class Failing_Entries : public File_Test
{
protected:
    void SetUp() override
    {
        fs::remove_all(folder.path);
        fs::create_directories(folder / "tree/sub");
        fs::create_directory(folder / "outside");
        put_file(folder / "outside/file", "kept");
        put_file(folder / "tree/a", "");
        put_file(folder / "tree/sub/b", "");
        fs::create_symlink("../outside", folder / "tree/link");
    }

    /// Runs an operation while one call of it fails; returns whether the call was made.
    bool run(const Operation &operation, const char *call, unsigned number)
    {
        SCOPED_TRACE(operation.name + ": " + call + " " + std::to_string(number));
        SetUp();
        const bool is_tree = operation.name == "tree";
        const Class kind = is_tree ? [ZEB_Directory class] : [ZEB_File class];
        ZEB_File *const file = [[[kind alloc] init] autorelease];
        [file set_path:text(folder / operation.name)];
        uint32_t answer = 2;
        unsigned calls = 0;
        const std::string told = standard_error_of([&] {
            calls = run_failing(folder.path, call, number, EIO, [&] { answer = operation.work(file); });
        });
        const bool is_made = calls >= number;
        // A directory whose names were read before the error may be removed all the same.
        const bool fails = is_made && (std::string(call) != "readdir" || fs::exists(folder / "tree"));
        EXPECT_EQ([file last_error], fails ? EIO : 0);
        EXPECT_EQ(answer, fails && operation.has_result ? 0u : 1u);
        EXPECT_EQ(told.empty(), answer == 1 && (!fails || *call == 'f' || *call == 'l'));
        EXPECT_EQ(file_text(folder / "outside/file"), "kept");
        EXPECT_EQ(fs::exists(folder / "tree"), !is_tree || answer != 1);
        return is_made;
    }
};

} // namespace

TEST_F(Failing_Entries, are_told_and_lose_nothing)
{
    const Operation operations[] = {
        {"new", WORK([file create_file]), {"open"}},
        {"new", WORK([file create_file]), {"fchmod", "fchown"}, false},
        {"new", WORK([file create_directory]), {"lchown"}, false},
        {"new", WORK([file create_directory]), {"mkdir"}},
        {"x/y/new", WORK([file create_parent_directories]), {"mkdir"}},
        {"new", WORK([file make_symbolic_link:[file path] target_path:text("x")]), {"symlink"}, false},
        {"tree/link", WORK([file make_symbolic_link:[file path] target_path:text("x")]), {"remove"}},
        {"tree/a", WORK([file remove]), {"remove"}},
        {"tree", WORK([file remove]), {"openat", "fdopendir", "readdir", "unlinkat"}},
    };
    for (const Operation &operation : operations)
        for (const char *const call : operation.calls) {
            unsigned number = 1;
            while (run(operation, call, number))
                ++number;
            EXPECT_GT(number, operation.name == "tree" ? 2u : 1u) << call;
        }
}
