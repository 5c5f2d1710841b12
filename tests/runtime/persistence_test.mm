#include "tests/runtime/defaults.hpp"

#include <cstdio>
#include <filesystem>
#include <vector>

namespace
{

const std::string letters[] = {"a", "b", "c"};
constexpr int keys_of_each = 12;

ZEB_Defaults *const *all()
{
    static ZEB_Defaults *const shared[] = {[ZEB_Defaults shared_suite], [ZEB_Defaults shared_standard]};
    return shared;
}

/// Starts this program again, for one of the tests below that are for it alone. `pclose` answers 0 if it
/// succeeds.
FILE *start(const std::string &test, const std::string &letter = "")
{
    setenv("ZEB_LETTER", letter.c_str(), 1);
    // The application's defaults go by the name of the program.
    const std::string program = std::filesystem::read_symlink("/proc/self/exe");
    const std::string options = "' --gtest_also_run_disabled_tests --gtest_brief=1 --gtest_filter=";
    return popen(("'" + program + options + "Other_Process.DISABLED_" + test).c_str(), "w");
}

ZEB_String *key_of(const std::string &letter, int number) { return text(letter + std::to_string(number)); }

using Persistence = Defaults_Test;

} // namespace

TEST(Other_Process, DISABLED_reads_values)
{
    const id suite = [ZEB_Suite_Defaults shared], standard = [ZEB_Standard_Defaults shared];
    for (const Kept_Value &row : kept_values) {
        EXPECT_EQ(values_of(suite, text(row.name)), row.in_suite) << row.name;
        EXPECT_EQ(values_of(standard, text(row.name)), row.elsewhere) << row.name;
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
    EXPECT_EQ(pclose(start("reads_values")), 0);
    EXPECT_TRUE(std::filesystem::exists(std::string(std::getenv("HOME")) + "/Defaults/Korvane.plist"));
}

TEST_F(Persistence, processes_that_write_the_suite_at_once_lose_nothing)
{
    std::vector<FILE *> writers;
    for (const std::string &letter : letters)
        writers.push_back(start("writes_its_keys", letter));
    for (int i = 0; i < keys_of_each; ++i)
        [all()[0] set_integer_for_key:i key:key_of("own", i)];
    for (FILE *const writer : writers)
        EXPECT_EQ(pclose(writer), 0);
    [all()[0] synchronize];
    for (int i = 0; i < keys_of_each; ++i) {
        EXPECT_EQ([all()[0] integer_for_key:key_of("own", i)], i);
        for (const std::string &letter : letters)
            EXPECT_EQ([all()[0] string_for_key:key_of(letter, i)] != nil, i % 2 == 1) << letter << i;
    }
}
