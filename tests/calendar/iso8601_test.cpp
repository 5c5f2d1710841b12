#include "calendar/ZEB_Calendar_Functions.h"
#include "tests/support/guarded_text.hpp"
#include "tests/support/random_text.hpp"

#include <gtest/gtest.h>

#include <cmath>

using namespace zeb_test;

namespace
{

constexpr auto read_date = ZC_assign_date_from_iso8601_char_c_array;
constexpr auto read_seconds = ZC_assign_seconds_from_iso8601_char_c_array;

constexpr std::size_t size = ZEB_DATE_TEXT_SIZE;

std::string text_of(std::int64_t day, ZEB_Time_Value time = {0, 0})
{
    return guarded_text(size, ZC_format_iso8601_date_and_time, day, time);
}

std::string text_of_seconds(double x) { return guarded_text(size, ZC_format_iso8601_from_seconds, x); }
std::string text_of_date(ZEB_Gregorian_Date x) { return guarded_text(size, ZC_format_iso8601_date, x); }

} // namespace

TEST(ISO_8601, dates_and_times_come_back_from_their_text)
{
    std::mt19937_64 random(8601);
    for (int i = 0; i < 6000; ++i) {
        // Of every size up to the last year of 32 bits.
        const std::int64_t day = static_cast<std::int64_t>(random()) % 784000000000 >> random() % 40;
        const std::uint64_t scales[] = {1, 1000, 1000000, 100000000};
        const std::uint64_t scale = scales[random() % 4];
        const ZEB_Time_Value time{random() % 86400, random() % (1000000000 / scale) * scale};
        const std::string text = text_of(day, time), midnight = text_of(day);
        ZEB_Gregorian_Date date;
        ZEB_Time_Value read;
        ASSERT_EQ(scanned(text, read_date, &date, &read), text.size()) << text;
        ASSERT_EQ(ZC_map_civil_date_to_julian_day(date), day) << text;
        ASSERT_TRUE(read.second == time.second && read.nanosecond == time.nanosecond) << text;
        double seconds = 0;
        ASSERT_EQ(scanned(midnight, read_seconds, &seconds), midnight.size());
        ASSERT_EQ(text_of_seconds(seconds), midnight);
        // What is read of a text that is almost one is a real day, too.
        const std::string near = spoiled(random, text.substr(0, random() % 40), "0123456789-:T .+Z");
        const std::uint32_t count = scanned(near, read_date, &date, &read);
        ASSERT_LE(count, near.size());
        const auto real = ZC_map_julian_day_to_civil_date(ZC_map_civil_date_to_julian_day(date));
        ASSERT_TRUE(count == 0 || (real.day == date.day && real.month == date.month)) << near;
    }
}

TEST(ISO_8601, known_texts)
{
    const std::int64_t first_day = ZC_map_civil_date_to_julian_day({INT32_MIN, 1, 1}),
                       last_day = ZC_map_civil_date_to_julian_day({INT32_MAX, 12, 31});
    const std::pair<std::string, const char *> rows[] = {
        {text_of(2451545, {0, 1}), "2000-01-01T00:00:00.000000001"},
        {text_of(0), "-004713-11-24T00:00:00"},
        {text_of(2451544, {86399, 1000000000}), "2000-01-01T00:00:00"}, // carried twice
        {text_of(INT32_MAX, {86400, 0}), "+5874898-06-04T00:00:00"},
        {text_of(last_day, {86399, 0}), "+2147483647-12-31T23:59:59"},
        {text_of(first_day), "-2147483648-01-01T00:00:00"},
        {text_of_seconds(-0.25), "1969-12-31T23:59:59.75"},
        {text_of_seconds(-86400.0), "1969-12-31T00:00:00"},
        {text_of_seconds(59.9999999), "1970-01-01T00:01:00"},
        // Fits whatever the fields are.
        {text_of_date({INT32_MIN, INT32_MIN, INT32_MIN}), "-2147483648-2147483648-2147483648"},
    };
    for (const auto &[text, expected] : rows)
        EXPECT_EQ(text, expected);
    // What has no date.
    for (const std::string &text :
         {text_of(INT32_MAX, {UINT64_MAX, UINT64_MAX}), text_of(first_day - 1), text_of(last_day, {86400, 0}),
          text_of(INT64_MAX), text_of_seconds(INFINITY)})
        EXPECT_EQ(text, "");
    EXPECT_EQ(ZC_map_julian_day_to_civil_date(last_day + 1).month, 0);
}

TEST(ISO_8601, a_text_is_read_as_far_as_it_is_valid)
{
    const struct {
        const char *texts;
        std::uint32_t count;
        double seconds;
    } rows[] = {
        {"1970-01-01T01:00", 16, 3600},
        {"1970-01-01T00:00:01,25Z", 22, 1.25},
        // A point needs a digit; no zone is read.
        {"1970-01-01t00:00:01. 1970-01-01T00:00:01+01:00", 19, 1},
        {"1970-01-01T00:00:00.1234567899", 30, 0.123456789},
        {"1970-01-01T24:00:00 1970-01-01T10:60:00 1970-01-01T10:00:60 1970-01-01T1:00:00", 10, 0},
        {"+001970-01-01", 13, 0},
        {"2000-02-29", 10, 951782400},
        {"+5874898-06-04T00:00:01", 23, 185331720384001},
        {"+2147483647-12-31", 17, 67767976233446400.0},
        {"-2147483648-01-01", 17, -67768100567971200.0},
        {"+0000001970-01-02", 17, 86400},
        // No such day; too few or too many digits; no year of 32 bits.
        {"2001-02-29 1900-02-29 1970-00-01 1970-13-01 1970-01-00 1970-1-01 19700-01-01", 0, -7},
        {"+970-01-01 +00000001970-01-01 +2147483648-01-01 -2147483649-01-01", 0, -7},
    };
    for (const auto &row : rows) {
        for (const std::string &text : words_of(row.texts)) {
            double seconds = -7;
            EXPECT_EQ(scanned(text, read_seconds, &seconds), row.count) << text;
            EXPECT_DOUBLE_EQ(seconds, row.seconds) << text;
        }
    }
    ZEB_Gregorian_Date date;
    ZEB_Time_Value *const none = nullptr;
    EXPECT_EQ(scanned("-0001-02-03 04:05", read_date, &date, none), 17U);
    EXPECT_EQ(text_of_date(date), "-000001-02-03");
    EXPECT_EQ(scanned(" 1970-01-01", read_date, &date, none), 0U);
}
