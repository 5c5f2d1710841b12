#include "calendar/engine/local_time.hpp"
#include "core/engine/namespace.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

TEST(Local_Time, the_zone_moves_the_clock_and_the_nanoseconds_stay)
{
    const struct {
        const char *zone;
        std::time_t instant;
        engine::Date_Time expected;
    } rows[] = {
        {"AAA-3", 0, {{1970, 1, 1}, 2440588, {10800, 5}}},
        {"BBB5", 0, {{1969, 12, 31}, 2440587, {68400, 5}}}, // noticed without a further call
        {"BBB5", INT64_MAX, engine::unset_date_time},       // beyond the platform's years
    };
    for (const auto &row : rows) {
        setenv("TZ", row.zone, 1);
        const auto value = engine::local_date_time(row.instant, 5);
        EXPECT_TRUE(engine::is_equal(value, row.expected)) << row.zone;
        EXPECT_EQ(value.date.day, row.expected.date.day) << row.zone;
    }
    unsetenv("TZ");
}
