#include "core/engine/namespace.hpp"
#include "core/engine/one_time.hpp"
#include "tests/support/class_test.hpp"

#include <algorithm>

TEST(Start_Up, runs_once_and_does_not_come_back_to_itself)
{
    uint8_t done = 0;
    int runs = 0;
    const auto start = [&](auto &again) -> void { engine::run_once(done, [&] { ++runs, again(again); }); };
    start(start);
    start(start);
    EXPECT_EQ(runs, 1);
}

TEST(Start_Up, names_the_domain_of_the_defaults)
{
    EXPECT_EQ(ZC_defaults_domain(), nil);
    ZC_start_up_defaults_domain();
    NSString *const domain = ZC_defaults_domain();
    EXPECT_TRUE([domain isEqualToString:@"Korvane"]);
    ZC_start_up_defaults_domain();
    EXPECT_EQ(ZC_defaults_domain(), domain);
}

TEST(Start_Up, sets_the_flags_of_the_unit_catalog_once)
{
    uint8_t *const flags = ZC_unit_catalog_flags();
    ZC_start_up_unit_catalog();
    EXPECT_EQ(std::count(flags, flags + ZEB_UNIT_FLAG_COUNT, 1), ZEB_UNIT_FLAG_COUNT);
    flags[3] = 0;
    ZC_start_up_unit_catalog();
    EXPECT_EQ(flags[3], 0);
}

TEST(Start_Up, of_debug_logging_comes_with_its_first_use)
{
    EXPECT_EQ([[NSUserDefaults standardUserDefaults] debug_logging_enabled], 0);
    EXPECT_TRUE([ZC_debug_logging_key() isEqualToString:@"does_debug_logging"]);
}
