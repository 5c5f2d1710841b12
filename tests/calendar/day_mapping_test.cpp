#include "calendar/ZEB_Calendar_Functions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <random>

namespace
{

std::array<int, 3> fields(ZEB_Gregorian_Date date) { return {date.year, date.month, date.day}; }

} // namespace

// The mapping that wraps around in 32 bits: tests/exhaustive.
TEST(Civil_Calendar, every_day_follows_the_one_before)
{
    // Over a cycle of 400 years, around day 0, and at both ends of the day numbers and of the years of 32
    // bits.
    const std::int64_t first_day = ZC_map_civil_date_to_julian_day({INT32_MIN, 1, 1}),
                       last_day = ZC_map_civil_date_to_julian_day({INT32_MAX, 12, 31});
    for (const std::int64_t start : {first_day, std::int64_t{INT32_MIN}, std::int64_t{-80000},
                                     std::int64_t{INT32_MAX} - 80000, last_day - 150000}) {
        ZEB_Gregorian_Date expected = ZC_map_julian_day_to_civil_date(start);
        for (std::int64_t day = start; day < start + 150000; ++day) {
            const ZEB_Gregorian_Date date = ZC_map_julian_day_to_civil_date(day);
            ASSERT_EQ(fields(date), fields(expected)) << day;
            ASSERT_EQ(ZC_map_civil_date_to_julian_day(date), day);
            if (++expected.day > ZC_days_in_month(expected.year, expected.month))
                expected = date.month < 12 ? ZEB_Gregorian_Date{date.year, date.month + 1, 1}
                                           : ZEB_Gregorian_Date{date.year + 1, 1, 1};
        }
    }
    EXPECT_EQ(fields(ZC_map_julian_day_to_civil_date(0)), fields({-4713, 11, 24}));
    EXPECT_EQ(fields(ZC_map_julian_day_to_civil_date(2451545)), fields({2000, 1, 1}));
}

TEST(Civil_Calendar, months_and_days_out_of_range_count_on)
{
    EXPECT_EQ(ZC_map_civil_date_to_julian_day({2020, 14, 0}), ZC_map_civil_date_to_julian_day({2021, 1, 31}));
    // Months and years trade at 12 to 1, and 400 years at 146097 days, at the far ends too.
    const ZEB_Gregorian_Date dates[] = {
        {2020, -11, 1}, {INT32_MAX - 400, INT32_MAX - 12, INT32_MAX}, {INT32_MIN, INT32_MIN, INT32_MIN}};
    for (const auto &[year, month, day] : dates) {
        const std::int64_t start = ZC_map_civil_date_to_julian_day({year, month, day});
        EXPECT_EQ(ZC_map_civil_date_to_julian_day({year + 400, month, day}), start + 146097);
        EXPECT_EQ(ZC_map_civil_date_to_julian_day({year + 1, month, day}),
                  ZC_map_civil_date_to_julian_day({year, month + 12, day}));
    }
}

TEST(Civil_Calendar, clamped_months_agree_with_the_standard_library)
{
    using namespace std::chrono;
    std::mt19937_64 random(31);
    for (int i = 0; i < 20000; ++i) {
        const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
        const ZEB_Gregorian_Date start{below(20001) - 10000, below(12) + 1, below(31) + 1};
        const int step = below(4001) - 2000;
        const year_month target = year{start.year} / start.month + months{step};
        const auto month_end = static_cast<int>(unsigned{(target / last).day()});
        const ZEB_Gregorian_Date expected{int{target.year()}, static_cast<int>(unsigned{target.month()}),
                                          std::min(start.day, month_end)};
        ASSERT_EQ(fields(ZC_add_months_clamped(start, step)), fields(expected));
    }
    // Only the month's end is a limit.
    EXPECT_EQ(fields(ZC_add_months_clamped({2024, 14, -3}, 0)), fields({2025, 2, -3}));
    EXPECT_EQ(ZC_add_months_clamped({INT32_MAX, INT32_MAX, INT32_MAX}, INT32_MAX).month, 2);
    EXPECT_EQ(ZC_add_months_clamped({INT32_MIN, INT32_MIN, INT32_MIN}, INT32_MIN).month, 8);
}
