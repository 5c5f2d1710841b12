#include "tests/support/captured.hpp"
#include "tests/support/failing_calls.h"
#include "tests/support/files.hpp"

#include <cerrno>
#include <functional>

using namespace support;
namespace fs = std::filesystem;

namespace
{

/// An operation on an entry at a path, the calls in it that may fail, and whether its result tells of that
/// too.
struct Operation {
    std::string name;
    std::function<uint32_t(ZEB_File *)> work;
    std::vector<const char *> calls;
    bool has_result = true;
};

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
    bool run(const Operation &operation, Class kind, const char *call, unsigned number)
    {
        SCOPED_TRACE(operation.name + ": " + call + " " + std::to_string(number));
        SetUp();
        ZEB_File *const file = [[[kind alloc] init] autorelease];
        [file set_path:text(folder / operation.name)];
        uint32_t answer = 2;
        const std::string told = standard_error_of([&] {
            zeb_plan_failure(folder.path.c_str(), call, number, EIO);
            answer = operation.work(file);
        });
        const bool is_made = zeb_calls_made(call) >= number;
        zeb_plan_failure("", "file", 0, 0);
        // A directory whose names were read before the error may be removed all the same.
        const bool fails = is_made && (std::string(call) != "readdir" || fs::exists(folder / "tree"));
        EXPECT_EQ([file last_error], fails ? EIO : 0);
        EXPECT_EQ(answer, fails && operation.has_result ? 0u : 1u);
        EXPECT_EQ(told.empty(), answer == 1 && (!fails || *call == 'f' || *call == 'l'));
        EXPECT_EQ(file_text(folder / "outside/file"), "kept");
        if (kind == [ZEB_Directory class]) {
            EXPECT_EQ(fs::exists(folder / "tree"), answer != 1);
        }
        return is_made;
    }
};

} // namespace

TEST_F(Failing_Entries, are_told_and_lose_nothing)
{
    const auto link = [](ZEB_File *file) {
        return [file make_symbolic_link:[file path] target_path:text("x")];
    };
    const auto remove = [](ZEB_File *file) { return [file remove]; };
    const Operation operations[] = {
        {"new", [](ZEB_File *file) { return [file create_file]; }, {"open"}},
        {"new", [](ZEB_File *file) { return [file create_file]; }, {"fchmod", "fchown"}, false},
        {"new", [](ZEB_File *file) { return [file create_directory]; }, {"lchown"}, false},
        {"new", [](ZEB_File *file) { return [file create_directory]; }, {"mkdir"}},
        {"x/y/new", [](ZEB_File *file) { return [file create_parent_directories]; }, {"mkdir"}},
        {"new", link, {"symlink"}, false},
        {"tree/link", link, {"remove"}},
        {"tree/a", remove, {"remove"}},
    };
    for (const Operation &operation : operations)
        for (const char *const call : operation.calls)
            for (unsigned number = 1; run(operation, [ZEB_File class], call, number); ++number) {
            }
    const Operation removal{"tree", remove, {"openat", "fdopendir", "readdir", "unlinkat"}};
    for (const char *const call : removal.calls) {
        unsigned number = 1;
        while (run(removal, [ZEB_Directory class], call, number))
            ++number;
        EXPECT_GT(number, 2u) << call;
    }
}
