#include "runtime/engine/sleeping.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace
{

constexpr uint64_t most = std::numeric_limits<uint64_t>::max(), billion = 1'000'000'000;
constexpr uint64_t longest = std::numeric_limits<time_t>::max();

struct Row {
    uint64_t seconds, nanoseconds, expected_seconds, expected_nanoseconds;
};

const Row rows[] = {
    {0, 0, 0, 0},
    {1, billion - 1, 1, billion - 1},
    {1, billion, 2, 0},
    {0, most, most / billion, most % billion},
    {longest - 1, billion + 7, longest, 7},
    {longest, billion, longest, 0},
    {longest, 7, longest, 7},
    {most, most, longest, 0},
};

} // namespace

TEST(Duration, carries_nanoseconds_and_ends_at_the_longest)
{
    for (const Row &row : rows) {
        const timespec made = zeb::engine::duration_of(row.seconds, row.nanoseconds);
        EXPECT_EQ(static_cast<uint64_t>(made.tv_sec), row.expected_seconds) << row.seconds;
        EXPECT_EQ(static_cast<uint64_t>(made.tv_nsec), row.expected_nanoseconds) << row.nanoseconds;
    }
}
