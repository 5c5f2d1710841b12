#include "tests/support/files.hpp"

#include <cerrno>
#include <cstring>
#import <objc/runtime.h>
#include <tuple>
#include <unistd.h>
#include <vector>

using namespace support;

// What the interceptor was asked about.
static std::vector<uint32_t> asked;

/// Decides always the same. It acts by answering how often it did; a sparse one lacks the actions on
/// contents.
@interface Recording_Interceptor : ZEB_Object <ZEB_File_Interceptor> {
@public
    uint32_t decision;
    uint32_t acted;
    bool is_sparse;
}
@end

@implementation Recording_Interceptor

- (BOOL)respondsToSelector:(SEL)selector
{
    const bool is_lacking = is_sparse && std::strstr(sel_getName(selector), "_contents:") != nullptr;
    return !is_lacking && [super respondsToSelector:selector];
}

- (uint32_t)decide_action:(ZEB_File_Action)action file:(ZEB_File *)file
{
    asked.push_back(action);
    return decision;
}

- (uint32_t)intercept_refresh_status:(ZEB_File *)file
{
    [file set_last_error:EREMOTE];
    return ++acted;
}

#define ACT(signature)                                                                                       \
    -(uint32_t)signature { return ++acted; }

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

/// What refreshing, writing and backstoring answer, how often the interceptor acts on the last of them; what
/// the file then holds, what was read of it, and by what its path has grown.
using Outcome = std::tuple<uint32_t, uint32_t, uint32_t, uint32_t, std::string, std::string, std::string>;

Outcome outcome_of(uint32_t decision, const std::string &path)
{
    put_file(path, "old");
    asked.clear();
    Recording_Interceptor *const interceptor = [[[Recording_Interceptor alloc] init] autorelease];
    interceptor->decision = decision;
    ZEB_File *const file = entry(path);
    [file set_interceptor:interceptor];
    ZEB_Byte_Array *const target = bytes("kept");
    const auto answer_of = [&](auto work) {
        interceptor->acted = 0;
        return work();
    };
    const uint32_t refreshed = answer_of([&] { return [file refresh_status]; });
    const uint32_t written = answer_of([&] { return [file write_contents:"new" length:3]; });
    const std::string contents = file_text(path);
    [file read_contents:target];
    const uint32_t backstored = answer_of([&] { return [file backstore]; });
    EXPECT_EQ(asked, (std::vector<uint32_t>{ZEB_FILE_REFRESH_STATUS, ZEB_FILE_WRITE_CONTENTS,
                                            ZEB_FILE_READ_CONTENTS, ZEB_FILE_BACKSTORE}));
    const std::string suffix = text_of([file path]).substr(path.size());
    return Outcome(refreshed, written, backstored, interceptor->acted, contents, text_of(target), suffix);
}

using Interceptor = File_Test;

} // namespace

TEST_F(Interceptor, is_obeyed_by_its_code)
{
    const std::string suffix("~\0", 2);
    // 2 acts in the entry's place; 3 acts, and the entry too but for refreshing and reading; others let it
    // act.
    EXPECT_EQ(outcome_of(0, path), Outcome(0, 0, 0, 0, "old", "kept", ""));
    EXPECT_EQ(outcome_of(2, path), Outcome(1, 1, 1, 1, "old", "kept", suffix));
    EXPECT_EQ(outcome_of(3, path), Outcome(1, 1, 1, 1, "new", "kept", suffix));
    EXPECT_EQ(outcome_of(1, path), Outcome(1, 1, 1, 0, "new", "new", suffix));
}

TEST_F(Interceptor, decides_on_creation_and_removal)
{
    using Work = uint32_t (*)(ZEB_File *);
    const struct {
        ZEB_File_Action action;
        Class kind;
        std::string name;
        Work work;
    } rows[] = {
        {ZEB_FILE_CREATE_FILE, [ZEB_File class], "new", [](ZEB_File *f) { return [f create_file]; }},
        {ZEB_FILE_CREATE_DIRECTORY, [ZEB_File class], "new",
         [](ZEB_File *f) { return [f create_directory]; }},
        {ZEB_FILE_CREATE_PARENT_DIRECTORIES, [ZEB_File class], "new/below",
         [](ZEB_File *f) { return [f create_parent_directories]; }},
        {ZEB_FILE_REMOVE, [ZEB_File class], "old", [](ZEB_File *f) { return [f remove]; }},
        {ZEB_FILE_REMOVE, [ZEB_Directory class], "tree", [](ZEB_File *f) { return [f remove]; }},
    };
    for (const auto &row : rows)
        for (const uint32_t decision : {0u, 1u, 2u, 3u, 99u}) {
            const Scratch_Folder place;
            put_file(place / "old", "");
            mkdir((place / "tree").c_str(), 0700);
            put_file(place / "tree/inside", "");
            asked.clear();
            Recording_Interceptor *const interceptor = [[[Recording_Interceptor alloc] init] autorelease];
            interceptor->decision = decision;
            interceptor->acted = 40;
            ZEB_File *const file = [[[row.kind alloc] init] autorelease];
            [file set_path:text(place / row.name)];
            [file set_interceptor:interceptor];
            EXPECT_EQ(row.work(file), decision == 0 ? 0u : decision == 2 ? 41u : 1u);
            EXPECT_EQ(asked, std::vector<uint32_t>{row.action});
            EXPECT_EQ(interceptor->acted, decision == 2 || decision == 3 ? 41u : 40u);
            const bool is_new_there = access((place / "new").c_str(), F_OK) == 0;
            const bool is_there = access((place / row.name).c_str(), F_OK) == 0;
            EXPECT_EQ(is_new_there || (!is_there && row.action == ZEB_FILE_REMOVE), decision % 2 == 1);
        }
}

TEST_F(Interceptor, is_obeyed_in_copying_replacing_and_moving)
{
    const std::string other = folder / "other";
    struct {
        uint32_t decision, answer;
        bool acts, follows;
    } const rows[] = {{0, 0, false, false}, {2, 1, false, true}, {3, 1, true, true}, {1, 1, true, true}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.decision);
        put_file(path, "old");
        put_file(other, "other");
        asked.clear();
        Recording_Interceptor *const interceptor = [[[Recording_Interceptor alloc] init] autorelease];
        interceptor->decision = row.decision;
        ZEB_File *const file = entry(path);
        [file set_interceptor:interceptor];
        ZEB_String *const destination = text(other);
        EXPECT_EQ([file copy_to:destination], row.answer);
        EXPECT_EQ(file_text(other), row.acts ? "old" : "other");
        interceptor->acted = 0;
        EXPECT_EQ([file replace_contents:"new" length:3], row.answer);
        EXPECT_EQ(file_text(path), row.acts ? "new" : "old");
        interceptor->acted = 0;
        EXPECT_EQ([file move_to:destination], row.answer);
        EXPECT_EQ(file_text(other), row.acts ? "new" : "other");
        EXPECT_EQ(text_of([file path]), row.follows ? other : path);
        EXPECT_EQ(asked, (std::vector<uint32_t>{ZEB_FILE_COPY, ZEB_FILE_WRITE_CONTENTS, ZEB_FILE_MOVE}));
        EXPECT_EQ([file last_error], row.decision == 0 ? ECANCELED : 0);
    }
}

TEST_F(Interceptor, that_lacks_an_operation_lets_the_entry_act)
{
    ZEB_File *const file = entry(path);
    // An object without any of the operations is one too.
    [file set_interceptor:static_cast<id>([[[ZEB_Object alloc] init] autorelease])];
    EXPECT_EQ([file write_contents:"one" length:3], 1u);
    Recording_Interceptor *const sparse = [[[Recording_Interceptor alloc] init] autorelease];
    sparse->is_sparse = true;
    [file set_interceptor:sparse];
    for (const uint32_t decision : {2u, 3u}) {
        sparse->decision = decision;
        EXPECT_EQ([file write_contents:"two" length:3], 1u);
        EXPECT_EQ(file_text(path), "two");
        sparse->acted = 6;
        EXPECT_EQ([file refresh_status], 7u);
        EXPECT_EQ([file last_error], EREMOTE);
    }
    EXPECT_EQ([file write_contents:"two" length:3], 1u);
    EXPECT_EQ([file last_error], 0);
    sparse->decision = ZEB_INTERCEPT_REFUSE;
    EXPECT_EQ([file write_contents:"three" length:5], 0u);
    EXPECT_EQ([file last_error], ECANCELED);
}
