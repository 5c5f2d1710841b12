#include "tests/support/child.hpp"
#include "tests/support/failing_calls.h"
#include "tests/support/files.hpp"
#include "tests/support/sanitizer.hpp"

#include <csignal>
#include <random>

using namespace support;

namespace
{

/// Contents of which no part is the whole of others.
std::string contents_of(size_t size, char letter) { return std::string(size - 1, letter) + '\n'; }

bool is_whole(const std::string &contents, size_t size)
{
    return contents == contents_of(size, 'a') || contents == contents_of(size, 'b');
}

uint32_t replace(ZEB_File *file, const std::string &contents)
{
    return [file replace_contents:contents.data() length:static_cast<uint32_t>(contents.size())];
}

} // namespace

TEST(Killed_Replacement, leaves_the_old_or_the_new_file_whole)
{
    const Scratch_Folder folder(place_in_memory());
    const std::string path = folder / "file";
    ZEB_File *const file = entry(path);
    unsigned killed = 0;
    for (const size_t size : {2, 4096, 100000, 1 << 20}) {
        const std::string older = contents_of(size, 'a'), newer = contents_of(size, 'b');
        int end = -1;
        for (unsigned number = 1; end != 0; ++number) {
            ASSERT_EQ(replace(file, older), 1u); // also beside what a killed one has left
            end = in_child([&] {
                zeb_plan_failure(folder.path.c_str(), "file", number, ZEB_CALL_IS_THE_LAST);
                EXPECT_EQ(replace(file, newer), 1u);
            });
            ASSERT_TRUE(end == 0 || end == SIGKILL);
            killed += end != 0;
            EXPECT_TRUE(is_whole(file_text(path), size)) << "call " << number << ", size " << size;
        }
        EXPECT_EQ(file_text(path), newer);
    }
    EXPECT_GE(killed, 40u);

    std::mt19937 random(1);
    constexpr size_t size = 200000;
    const std::string both[] = {contents_of(size, 'a'), contents_of(size, 'b')};
    replace(file, both[0]);
    unsigned cut_short = 0;
    for (unsigned turn = 0; turn < 1000 / slowness; ++turn) {
        const pid_t child = start_child([&] {
            for (unsigned i = 1;; ++i)
                replace(file, both[i % 2]);
        });
        usleep(random() % 2000);
        kill(child, SIGKILL);
        EXPECT_EQ(end_of_child(child), SIGKILL);
        ASSERT_TRUE(is_whole(file_text(path), size)) << "turn " << turn;
        for (const auto &left : std::filesystem::directory_iterator(folder.path))
            if (left.path() != path) {
                cut_short += left.file_size() < size;
                std::filesystem::remove(left.path());
            }
    }
    EXPECT_GE(cut_short, 10 / slowness) << "too few were killed while they wrote";
}
