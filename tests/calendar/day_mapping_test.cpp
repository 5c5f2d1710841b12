#include "calendar/ZEB_Calendar_Functions.h"
#include "calendar/engine/civil_date.hpp"
#include "core/engine/namespace.hpp"
#include "tests/reference/calendar.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <random>
#include <string>

namespace
{

std::string shown(ZEB_Gregorian_Date date)
{
    return std::to_string(date.year) + "-" + std::to_string(date.month) + "-" + std::to_string(date.day);
}

} // namespace

TEST(Day_Mapping, known_days)
{
    EXPECT_EQ(ZC_map_gregorian_date_to_julian_day({1970, 1, 1}), 2440588);
    EXPECT_EQ(ZC_map_gregorian_date_to_julian_day({2000, 1, 1}), 2451545);
    EXPECT_EQ(ZC_map_gregorian_date_to_julian_day({1900, 2, 29}),
              ZC_map_gregorian_date_to_julian_day({1900, 3, 1}));
    EXPECT_EQ(shown(ZC_map_julian_day_to_gregorian_date(2451545)), "2000-1-1");
}

TEST(Day_Mapping, fields_of_every_size_agree_with_the_transcription)
{
    std::mt19937_64 random(1858);
    const auto any_size = [&random] {
        return static_cast<std::int32_t>(static_cast<std::int64_t>(random()) >> (32 + random() % 32));
    };
    for (int i = 0; i < 1000000; ++i) {
        ZEB_Gregorian_Date date{any_size(), any_size(), any_size()};
        if (i % 2)
            date.month = i % 14; // around both edges of the fast range of years
        if (i % 4 == 3)
            date.year = (random() % 2 ? -4800 : 1395200) + static_cast<int>(random() % 9) - 4;
        ASSERT_EQ(ZC_map_gregorian_date_to_julian_day(date), reference::julian_day(date)) << shown(date);
    }
}

TEST(Civil_Calendar, every_day_follows_the_one_before)
{
    // Over several cycles of 400 years on both sides of day 0, and at both ends of the day numbers and of the
    // years of 32 bits.
    const std::int64_t first_day = ZC_map_civil_date_to_julian_day({INT32_MIN, 1, 1}),
                       last_day = ZC_map_civil_date_to_julian_day({INT32_MAX, 12, 31});
    for (const std::int64_t start : {first_day, std::int64_t{INT32_MIN}, std::int64_t{-400000},
                                     std::int64_t{INT32_MAX} - 200000, last_day - 400000}) {
        const std::int64_t last = start == -400000 ? 3000000 : start + 399999;
        ZEB_Gregorian_Date expected = ZC_map_julian_day_to_civil_date(start);
        for (std::int64_t day = start; day <= last; ++day) {
            const ZEB_Gregorian_Date date = ZC_map_julian_day_to_civil_date(day);
            ASSERT_EQ(shown(date), shown(expected)) << day;
            ASSERT_EQ(ZC_map_civil_date_to_julian_day(date), day);
            if (++expected.day > ZC_days_in_month(expected.year, expected.month)) {
                expected.day = 1;
                if (++expected.month > 12)
                    expected = {expected.year + 1, 1, 1};
            }
        }
    }
    EXPECT_EQ(shown(ZC_map_julian_day_to_civil_date(0)), "-4713-11-24");
    EXPECT_EQ(shown(ZC_map_julian_day_to_civil_date(2451545)), "2000-1-1");
}

TEST(Civil_Calendar, months_and_days_out_of_range_count_on)
{
    EXPECT_EQ(ZC_map_civil_date_to_julian_day({2020, 14, 0}), ZC_map_civil_date_to_julian_day({2021, 1, 31}));
    EXPECT_EQ(ZC_map_civil_date_to_julian_day({2020, -11, 1}), ZC_map_civil_date_to_julian_day({2019, 1, 1}));
    // Months and years trade at 12 to 1, and 400 years at 146097 days, at the far ends too.
    const ZEB_Gregorian_Date far[] = {{INT32_MAX - 400, INT32_MAX - 12, INT32_MAX},
                                      {INT32_MIN, INT32_MIN, INT32_MIN}};
    for (const auto &[year, month, day] : far) {
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
    for (int i = 0; i < 200000; ++i) {
        const int start_year = static_cast<int>(random() % 20001) - 10000;
        const unsigned start_month = static_cast<unsigned>(random() % 12 + 1),
                       start_day = static_cast<unsigned>(random() % 31 + 1);
        const int step = static_cast<int>(random() % 4001) - 2000;
        const year_month target = year{start_year} / month{start_month} + months{step};
        const day month_end = year_month_day_last{target.year(), month_day_last{target.month()}}.day();
        const ZEB_Gregorian_Date expected{int{target.year()}, static_cast<int>(unsigned{target.month()}),
                                          static_cast<int>(std::min(start_day, unsigned{month_end}))};
        ASSERT_EQ(shown(ZC_add_months_clamped(
                      {start_year, static_cast<int>(start_month), static_cast<int>(start_day)}, step)),
                  shown(expected));
    }
    EXPECT_EQ(shown(ZC_add_months_clamped({2023, 1, 31}, 1)), "2023-2-28");
    EXPECT_EQ(shown(ZC_add_months_clamped({2024, 1, 31}, 1)), "2024-2-29");
    EXPECT_EQ(shown(ZC_add_months_clamped({2024, 3, 31}, -13)), "2023-2-28");
    EXPECT_EQ(shown(ZC_add_months_clamped({2024, 14, -3}, 0)),
              "2025-2--3"); // only the month's end is a limit
    EXPECT_EQ(ZC_add_months_clamped({INT32_MAX, INT32_MAX, INT32_MAX}, INT32_MAX).month, 2);
    EXPECT_EQ(ZC_add_months_clamped({INT32_MIN, INT32_MIN, INT32_MIN}, INT32_MIN).month, 8);
    engine::Date_Time value = engine::make_date_time({2024, 3, 31}, 5, 6);
    engine::add_months_clamped(value, 1);
    EXPECT_EQ(value.julian_day, ZC_map_gregorian_date_to_julian_day({2024, 4, 30}));
    EXPECT_EQ(value.time.second, 5U);
    value = engine::make_date_time({-5000, 3, 31}, 0, 0); // the day number is the civil one far out too
    engine::add_months_clamped(value, -1);
    EXPECT_EQ(value.julian_day, ZC_map_civil_date_to_julian_day({-5000, 2, 28}));
}
