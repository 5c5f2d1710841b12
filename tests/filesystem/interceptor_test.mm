#include "tests/support/captured.hpp"
#include "tests/support/files.hpp"
#include "tests/support/scratch_folder.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <unistd.h>
#include <vector>

using namespace support;

/// Decides always the same, and answers 1 when it acts.
@interface Recording_Interceptor : ZEB_Object <ZEB_File_Interceptor> {
@public
    uint32_t decision;
    std::vector<uint32_t> *asked;
    uint32_t acted;
}
@end

@implementation Recording_Interceptor

- (uint32_t)decide_action:(ZEB_File_Action)action file:(ZEB_File *)file
{
    (void)file;
    asked->push_back(action);
    return decision;
}

#define ACT(signature)                                                                                       \
    -(uint32_t)signature { return ++acted; }

ACT(intercept_refresh_status : (ZEB_File *)file)
ACT(intercept_create_file : (ZEB_File *)file)
ACT(intercept_create_directory : (ZEB_File *)file)
ACT(intercept_create_parent_directories : (ZEB_File *)file)
ACT(intercept_remove : (ZEB_File *)file)
ACT(intercept_read_contents : (ZEB_File *)file destination : (ZEB_Byte_Array *)destination)
ACT(intercept_write_contents : (ZEB_File *)file bytes : (const void *)bytes length : (uint32_t)length)
ACT(intercept_copy_to : (ZEB_File *)file destination : (ZEB_String *)destination)
ACT(intercept_move_to : (ZEB_File *)file destination : (ZEB_String *)destination)
ACT(intercept_backstore : (ZEB_File *)file)

@end

/// Decides, and acts on nothing but a status.
@interface Sparse_Interceptor : ZEB_Object <ZEB_File_Interceptor> {
@public
    uint32_t decision;
}
@end

@implementation Sparse_Interceptor

- (uint32_t)decide_action:(ZEB_File_Action)action file:(ZEB_File *)file
{
    return decision;
}

- (uint32_t)intercept_refresh_status:(ZEB_File *)file
{
    [file set_last_error:EREMOTE];
    return 0;
}

@end

namespace
{

struct Outcome {
    uint32_t refreshed, written, backstored;
    uint32_t acted;
    std::string contents, read, path;
};

/// Refreshes, writes, reads and backstores an entry under one decision.
Outcome outcome_of(uint32_t decision)
{
    const Scratch_Folder folder;
    const std::string path = folder / "file";
    put_file(path, "old");
    std::vector<uint32_t> asked;
    Recording_Interceptor *const interceptor = [[[Recording_Interceptor alloc] init] autorelease];
    interceptor->decision = decision;
    interceptor->asked = &asked;
    ZEB_File *const file = entry(path);
    [file set_interceptor:interceptor];
    ZEB_Byte_Array *const target = [ZEB_Byte_Array array_with_capacity:0];
    [target append_byte:'k'];
    Outcome outcome;
    outcome.refreshed = [file refresh_status];
    interceptor->acted = 0;
    outcome.written = [file write_contents:"new" length:3];
    outcome.contents = file_text(path);
    interceptor->acted = 0;
    [file read_contents:target];
    outcome.read = std::string(reinterpret_cast<const char *>([target byte_data]), [target count]);
    interceptor->acted = 0;
    outcome.backstored = [file backstore];
    outcome.acted = interceptor->acted;
    outcome.path = text_of([file path]).substr(path.size());
    EXPECT_EQ(asked, (std::vector<uint32_t>{ZEB_FILE_REFRESH_STATUS, ZEB_FILE_WRITE_CONTENTS,
                                            ZEB_FILE_READ_CONTENTS, ZEB_FILE_BACKSTORE}));
    return outcome;
}

const std::string suffix("~\0", 2);

} // namespace

TEST(Interceptor, is_obeyed_by_its_code)
{
    // 2 acts in the entry's place; 3 acts, and the entry too but for refreshing and reading; others let it
    // act.
    const struct {
        uint32_t decision, refreshed, backstored, acted;
        const char *contents, *read;
        std::string path;
    } rows[] = {{0, 0, 0, 0, "old", "k", ""},
                {2, 1, 1, 1, "old", "k", suffix},
                {3, 1, 1, 1, "new", "k", suffix},
                {1, 1, 1, 0, "new", "new", suffix}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.decision);
        const Outcome outcome = outcome_of(row.decision);
        EXPECT_EQ(outcome.refreshed, row.refreshed);
        EXPECT_EQ(outcome.written, row.refreshed);
        EXPECT_EQ(outcome.contents, row.contents);
        EXPECT_EQ(outcome.read, row.read);
        EXPECT_EQ(outcome.acted, row.acted);
        EXPECT_EQ(outcome.backstored, row.backstored);
        EXPECT_EQ(outcome.path, row.path);
    }
}

TEST(Interceptor, that_lacks_an_operation_lets_the_entry_act)
{
    const Scratch_Folder folder;
    const std::string path = folder / "file";
    ZEB_File *const file = entry(path);
    // An object without any of the operations is one too.
    [file set_interceptor:static_cast<id>([[[ZEB_Object alloc] init] autorelease])];
    EXPECT_EQ([file write_contents:"one" length:3], 1u);
    Sparse_Interceptor *const sparse = [[[Sparse_Interceptor alloc] init] autorelease];
    [file set_interceptor:sparse];
    for (const uint32_t decision : {2u, 3u}) {
        sparse->decision = decision;
        EXPECT_EQ([file write_contents:"two" length:3], 1u);
        EXPECT_EQ(file_text(path), "two");
        EXPECT_EQ([file refresh_status], 0u);
        EXPECT_EQ([file last_error], EREMOTE);
    }
    EXPECT_EQ([file backstore], 1u);
    EXPECT_EQ([file last_error], 0);
    sparse->decision = ZEB_INTERCEPT_REFUSE;
    EXPECT_EQ([file write_contents:"three" length:5], 0u);
    EXPECT_EQ([file last_error], ECANCELED);
}
