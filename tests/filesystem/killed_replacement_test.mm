#include "tests/support/child.hpp"
#include "tests/support/failing_calls.h"
#include "tests/support/files.hpp"

#include <csignal>

namespace
{

uint32_t replace(ZEB_File *file, size_t size, char letter)
{
    return [file replace_contents:std::string(size, letter).data() length:static_cast<uint32_t>(size)];
}

} // namespace

TEST(Killed_Replacement, at_any_call_leaves_the_old_or_the_new_file)
{
    const Scratch_Folder folder{place_in_memory()};
    const std::string path = folder / "file";
    ZEB_File *const file = entry(path);
    for (const size_t size : {1, 4096, 1 << 20}) {
        int end = -1;
        unsigned number = 0;
        while (end != 0) {
            ASSERT_EQ(replace(file, size, 'a'), 1u); // also beside what a killed one has left
            ++number;
            end = end_of_child(start_child([&] {
                zeb_plan_failure(folder.path.c_str(), "file", number, ZEB_CALL_IS_THE_LAST);
                EXPECT_EQ(replace(file, size, 'b'), 1u);
            }));
            ASSERT_TRUE(end == 0 || end == SIGKILL);
            const std::string found = file_text(path);
            EXPECT_TRUE(found == std::string(size, 'a') || found == std::string(size, 'b')) << size;
        }
        EXPECT_GT(number, 13u);
    }
}
