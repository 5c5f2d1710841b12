#include "tests/runtime/defaults.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>

using namespace support;

extern char **environ;

namespace
{

const std::string letters[] = {"a", "b", "c"};
constexpr int keys_of_each = 12;

ZEB_Defaults *const *all()
{
    static ZEB_Defaults *const shared[] = {[ZEB_Defaults shared_suite], [ZEB_Defaults shared_standard]};
    return shared;
}

/// Starts this program again, for one of the tests below that are for it alone.
pid_t start(const std::string &test, const std::string &letter = "")
{
    const std::string filter = "--gtest_filter=Other_Process.DISABLED_" + test;
    setenv("ZEB_LETTER", letter.c_str(), 1);
    // The application's defaults go by the name of the program.
    const std::string program = std::filesystem::read_symlink("/proc/self/exe");
    const char *const arguments[] = {program.c_str(), filter.c_str(), "--gtest_also_run_disabled_tests",
                                     "--gtest_brief=1", nullptr};
    pid_t process = -1;
    const int error =
        posix_spawn(&process, arguments[0], nullptr, nullptr, const_cast<char **>(arguments), environ);
    return error == 0 ? process : -1;
}

bool succeeded(pid_t process)
{
    int status = -1;
    return process > 0 && waitpid(process, &status, 0) == process && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
}

ZEB_String *key_of(const std::string &letter, int number) { return text(letter + std::to_string(number)); }

class Persistence : public testing::Test
{
    void SetUp() override
    {
        if (!defaults_are_scratch())
            GTEST_SKIP() << "these defaults are the user's";
    }
};

} // namespace

TEST(Other_Process, DISABLED_reads_values)
{
    for (const Kept_Value &row : kept_values) {
        EXPECT_EQ(values_of(all()[0], text(row.name)), row.in_suite) << row.name;
        EXPECT_EQ(values_of(all()[1], text(row.name)), row.elsewhere) << row.name;
    }
}

TEST(Other_Process, DISABLED_writes_its_keys)
{
    const std::string letter = std::getenv("ZEB_LETTER");
    for (int i = 0; i < keys_of_each; ++i)
        [all()[0] set_integer_for_key:i key:key_of(letter, i)];
    for (int i = 0; i < keys_of_each; i += 2)
        [all()[0] remove_object_for_key:key_of(letter, i)];
}

TEST_F(Persistence, a_new_process_reads_values_of_every_kind)
{
    for (const Kept_Value &row : kept_values)
        for (ZEB_Defaults *const defaults : {all()[0], all()[1]})
            row.store(defaults, text(row.name));
    EXPECT_EQ([all()[1] synchronize], YES); // the suite is saved by each write
    EXPECT_TRUE(succeeded(start("reads_values")));
    EXPECT_TRUE(std::filesystem::exists(std::string(std::getenv("HOME")) + "/Defaults/Korvane.plist"));
}

TEST_F(Persistence, processes_that_write_the_suite_at_once_lose_nothing)
{
    pid_t writers[std::size(letters)];
    for (size_t i = 0; i < std::size(letters); ++i)
        writers[i] = start("writes_its_keys", letters[i]);
    for (int i = 0; i < keys_of_each; ++i)
        [all()[0] set_integer_for_key:i key:key_of("own", i)];
    for (const pid_t writer : writers)
        EXPECT_TRUE(succeeded(writer));
    [all()[0] synchronize];
    for (int i = 0; i < keys_of_each; ++i) {
        EXPECT_EQ([all()[0] integer_for_key:key_of("own", i)], i);
        for (const std::string &letter : letters)
            EXPECT_EQ([all()[0] string_for_key:key_of(letter, i)] != nil, i % 2 == 1) << letter << i;
    }
}
