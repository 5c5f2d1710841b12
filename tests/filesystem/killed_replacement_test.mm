#include "tests/support/child.hpp"
#include "tests/support/failing_calls.h"
#include "tests/support/files.hpp"
#include "tests/support/sanitizer.hpp"

#include <csignal>
#include <random>

using namespace support;

namespace
{

/// A file whose contents are always one of two texts of a length, whole.
class Killed_Replacement : public testing::Test
{
protected:
    void expect_whole(size_t size) const
    {
        const std::string found = file_text(path);
        EXPECT_TRUE(found == std::string(size, 'a') || found == std::string(size, 'b')) << size;
    }

    uint32_t replace(size_t size, char letter) const
    {
        return [file replace_contents:std::string(size, letter).data() length:static_cast<uint32_t>(size)];
    }

    const Scratch_Folder folder{place_in_memory()};
    const std::string path = folder / "file";
    ZEB_File *const file = entry(path);
};

} // namespace

TEST_F(Killed_Replacement, at_any_call_leaves_the_old_or_the_new_file)
{
    for (const size_t size : {1, 4096, 1 << 20}) {
        int end = -1;
        unsigned number = 0;
        while (end != 0) {
            ASSERT_EQ(replace(size, 'a'), 1u); // also beside what a killed one has left
            ++number;
            end = end_of_child(start_child([&] {
                zeb_plan_failure(folder.path.c_str(), "file", number, ZEB_CALL_IS_THE_LAST);
                EXPECT_EQ(replace(size, 'b'), 1u);
            }));
            ASSERT_TRUE(end == 0 || end == SIGKILL);
            expect_whole(size);
        }
        EXPECT_GT(number, 13u);
    }
}

TEST_F(Killed_Replacement, at_any_time_leaves_the_old_or_the_new_file)
{
    constexpr size_t size = 200000;
    std::mt19937 random(1);
    unsigned cut_short = 0;
    replace(size, 'a');
    for (unsigned turn = 0; turn < 1000 / slowness; ++turn) {
        const pid_t child = start_child([&] {
            for (char letter = 'a';; letter ^= 'a' ^ 'b')
                replace(size, letter);
        });
        usleep(random() % 2000);
        kill(child, SIGKILL);
        EXPECT_EQ(end_of_child(child), SIGKILL);
        expect_whole(size);
        for (const auto &left : std::filesystem::directory_iterator(folder.path))
            if (left.path() != path) {
                cut_short += left.file_size() < size;
                std::filesystem::remove(left.path());
            }
    }
    EXPECT_GE(cut_short, 10 / slowness) << "too few were killed while they wrote";
}
