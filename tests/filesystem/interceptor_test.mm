#include "tests/support/files.hpp"

#include <cstring>
#import <objc/runtime.h>
#include <vector>

using namespace std::string_literals;

// What the interceptor was asked about.
static std::vector<uint32_t> asked;

/// Decides always the same. It acts by answering how often it did, with an error; one that only decides lacks
/// the actions.
@interface Recording_Interceptor : ZEB_Object <ZEB_File_Interceptor> {
@public
    uint32_t decision;
    uint32_t acted;
    bool only_decides;
}
@end

@implementation Recording_Interceptor

- (BOOL)respondsToSelector:(SEL)selector
{
    const bool is_lacking = only_decides && std::strncmp(sel_getName(selector), "intercept_", 10) == 0;
    return !is_lacking && [super respondsToSelector:selector];
}

- (uint32_t)decide_action:(ZEB_File_Action)action file:(ZEB_File *)file
{
    asked.push_back(action);
    return decision;
}

#define ACT(signature)                                                                                       \
    -(uint32_t)signature                                                                                     \
    {                                                                                                        \
        [file set_last_error:EREMOTE];                                                                       \
        return ++acted;                                                                                      \
    }

ACT(intercept_refresh_status : (ZEB_File *)file)
ACT(intercept_read_contents : (ZEB_File *)file destination : (ZEB_Byte_Array *)destination)
ACT(intercept_write_contents : (ZEB_File *)file bytes : (const void *)bytes length : (uint32_t)length)
ACT(intercept_backstore : (ZEB_File *)file)
ACT(intercept_create_file : (ZEB_File *)file)
ACT(intercept_create_directory : (ZEB_File *)file)
ACT(intercept_create_parent_directories : (ZEB_File *)file)
ACT(intercept_remove : (ZEB_File *)file)
ACT(intercept_copy_to : (ZEB_File *)file destination : (ZEB_String *)destination)
ACT(intercept_move_to : (ZEB_File *)file destination : (ZEB_String *)destination)

@end

namespace
{

/// An action on an entry, for which the interceptor may act alone or before it.
struct Row {
    ZEB_File_Action action;
    std::string name;
    uint32_t (*work)(ZEB_File *, ZEB_String *other, ZEB_Byte_Array *target);
    bool runs_after_acting = true;
    std::string new_name = {}; /* that the path follows */
};

#define WORK(call)                                                                                           \
    [](ZEB_File *file, [[maybe_unused]] ZEB_String *other, [[maybe_unused]] ZEB_Byte_Array *target) {        \
        return call;                                                                                         \
    }

const Row rows[] = {
    {ZEB_FILE_REFRESH_STATUS, "file", WORK([file refresh_status]), false},
    {ZEB_FILE_READ_CONTENTS, "file", WORK(([file read_contents:target], 0u)), false},
    {ZEB_FILE_WRITE_CONTENTS, "file", WORK([file write_contents:"new" length:3])},
    {ZEB_FILE_WRITE_CONTENTS, "file", WORK([file replace_contents:"new" length:3])},
    {ZEB_FILE_BACKSTORE, "file", WORK([file backstore]), true, "file~\0"s},
    {ZEB_FILE_COPY, "file", WORK([file copy_to:other])},
    {ZEB_FILE_MOVE, "file", WORK([file move_to:other]), true, "other"},
    {ZEB_FILE_CREATE_FILE, "new", WORK([file create_file])},
    {ZEB_FILE_CREATE_DIRECTORY, "new", WORK([file create_directory])},
    {ZEB_FILE_CREATE_PARENT_DIRECTORIES, "new/below", WORK([file create_parent_directories])},
    {ZEB_FILE_REMOVE, "file", WORK([file remove])},
    {ZEB_FILE_REMOVE, "tree", WORK([file remove])},
};

/// The names in a folder, with the contents.
std::string tree_of(const std::string &folder)
{
    std::string all;
    for (const auto &found : std::filesystem::recursive_directory_iterator(folder))
        all += found.path().string() + ": " + (found.is_directory() ? "" : file_text(found.path())) + "\n";
    return all;
}

enum class Kind { acts, only_decides, does_neither };

void expect_obeyed(const Row &row, Kind kind, uint32_t decision, uint32_t acted)
{
    SCOPED_TRACE(row.name + " " + std::to_string(row.action) + " " + std::to_string(decision));
    const Scratch_Folder folder;
    mkdir((folder / "tree").c_str(), 0700);
    put_file(folder / "tree/inside", "");
    put_file(folder / "file", "old");
    ZEB_File *const file =
        [[[row.name == "tree" ? [ZEB_Directory class] : [ZEB_File class] alloc] init] autorelease];
    [file set_path:text(folder / row.name)];
    [file refresh_status];
    put_file(folder / "file", "old and grown");
    Recording_Interceptor *const interceptor = [[[Recording_Interceptor alloc] init] autorelease];
    interceptor->decision = decision;
    interceptor->acted = acted;
    interceptor->only_decides = kind == Kind::only_decides;
    // An object without any of the operations is one too.
    const id other = [[[ZEB_Object alloc] init] autorelease];
    [file set_interceptor:kind == Kind::does_neither ? other : interceptor];
    asked.clear();
    ZEB_Byte_Array *const target = bytes("kept");
    const auto state = [&] { return tree_of(folder.path) + text_of(target) + std::to_string([file size]); };
    const std::string before = state();
    const uint32_t answer = row.work(file, text(folder / "other"), target);

    const bool is_refused = decision == ZEB_INTERCEPT_REFUSE && kind != Kind::does_neither;
    const bool acts = (decision == 2 || decision == 3) && kind == Kind::acts;
    const bool runs = !is_refused && (!acts || (decision == 3 && row.runs_after_acting));
    if (row.action != ZEB_FILE_READ_CONTENTS) {
        EXPECT_EQ(answer, is_refused ? 0u : runs ? 1u : acted + 1);
    }
    EXPECT_EQ(asked, std::vector<uint32_t>(kind == Kind::does_neither ? 0 : 1, row.action));
    EXPECT_EQ(interceptor->acted, acts ? acted + 1 : acted);
    EXPECT_EQ(state() != before, runs);
    EXPECT_EQ([file last_error], is_refused ? ECANCELED : runs ? 0 : EREMOTE);
    const bool follows = answer == 1 && !row.new_name.empty();
    EXPECT_EQ(text_of([file path]), folder / (follows ? row.new_name : row.name));
}

} // namespace

TEST(Interceptor, is_obeyed_by_its_code)
{
    for (const Row &row : rows)
        for (const uint32_t decision : {0, 1, 2, 3, 99})
            for (const Kind kind : {Kind::acts, Kind::only_decides, Kind::does_neither})
                for (const uint32_t acted : {0, 40})
                    expect_obeyed(row, kind, decision, acted);
}
