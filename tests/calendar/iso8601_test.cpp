#include "calendar/ZEB_Calendar_Functions.h"
#include "calendar/engine/iso8601.hpp"
#include "tests/calendar/random_text.hpp"
#include "tests/support/guarded_text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

using namespace zeb_test;

namespace
{

std::string text_of(std::int64_t day, ZEB_Time_Value time)
{
    return guarded_text(ZEB_DATE_TEXT_SIZE,
                        [=](char *buffer) { return ZC_format_iso8601_date_and_time(buffer, day, time); });
}

std::string text_of_seconds(double seconds)
{
    return guarded_text(ZEB_DATE_TEXT_SIZE,
                        [=](char *buffer) { return ZC_format_iso8601_from_seconds(buffer, seconds); });
}

std::string text_of_date(ZEB_Gregorian_Date date)
{
    return guarded_text(ZEB_DATE_TEXT_SIZE,
                        [=](char *buffer) { return ZC_format_iso8601_date(buffer, date); });
}

} // namespace

TEST(ISO_8601, seeded_dates_and_times_come_back_from_their_text)
{
    std::mt19937_64 random(8601);
    for (int i = 0; i < 200000; ++i) {
        // Of every size up to the last year of 32 bits.
        const std::int64_t day = static_cast<std::int64_t>(random()) % 784000000000 >> random() % 40;
        const std::uint64_t scales[] = {1, 1000, 1000000, 100000000};
        const std::uint64_t scale = scales[random() % 4];
        const ZEB_Time_Value time{random() % 86400, random() % (1000000000 / scale) * scale};
        const std::string text = text_of(day, time);
        ZEB_Gregorian_Date date;
        ZEB_Time_Value read;
        const std::uint32_t length = static_cast<std::uint32_t>(text.size());
        ASSERT_EQ(ZC_assign_date_from_iso8601_char_c_array(text.data(), length, &date, &read), length)
            << text;
        ASSERT_EQ(ZC_map_civil_date_to_julian_day(date), day) << text;
        ASSERT_EQ(read.second, time.second) << text;
        ASSERT_EQ(read.nanosecond, time.nanosecond) << text;
        double seconds = 0;
        const std::string midnight = text_of(day, {0, 0});
        ASSERT_EQ(ZC_assign_seconds_from_iso8601_char_c_array(
                      midnight.data(), static_cast<std::uint32_t>(midnight.size()), &seconds),
                  midnight.size());
        ASSERT_EQ(text_of_seconds(seconds), midnight);
    }
}

TEST(ISO_8601, known_texts)
{
    EXPECT_EQ(text_of(2459278, {37230, 500000000}), "2021-03-04T10:20:30.5");
    EXPECT_EQ(text_of(2451545, {0, 1}), "2000-01-01T00:00:00.000000001");
    EXPECT_EQ(text_of(0, {0, 0}), "-004713-11-24T00:00:00");
    EXPECT_EQ(text_of(2451544, {86399, 1000000000}), "2000-01-01T00:00:00"); // carried twice
    EXPECT_EQ(text_of(INT32_MAX, {86399, 0}), "+5874898-06-03T23:59:59");
    EXPECT_EQ(text_of(INT32_MAX, {86400, 0}), "+5874898-06-04T00:00:00");
    EXPECT_EQ(text_of(INT32_MAX, {UINT64_MAX, UINT64_MAX}), "");
    const std::int64_t last_day = ZC_map_civil_date_to_julian_day({INT32_MAX, 12, 31});
    EXPECT_EQ(text_of(last_day, {86399, 0}), "+2147483647-12-31T23:59:59");
    EXPECT_EQ(text_of(last_day, {86400, 0}), "");
    const std::int64_t first_day = ZC_map_civil_date_to_julian_day({INT32_MIN, 1, 1});
    EXPECT_EQ(text_of(first_day, {0, 0}), "-2147483648-01-01T00:00:00");
    for (const std::int64_t day : {first_day - 1, INT64_MIN, INT64_MAX}) {
        EXPECT_EQ(text_of(day, {0, 0}), "");
        EXPECT_EQ(ZC_map_julian_day_to_civil_date(day).month, 0);
    }
    EXPECT_EQ(text_of_seconds(-0.25), "1969-12-31T23:59:59.75");
    EXPECT_EQ(text_of_seconds(-86400.0), "1969-12-31T00:00:00");
    EXPECT_EQ(text_of_seconds(59.9999999), "1970-01-01T00:01:00");
    EXPECT_EQ(text_of_seconds(std::numeric_limits<double>::infinity()), "");
    EXPECT_EQ(text_of_date({44, 3, 15}), "0044-03-15");
    text_of_date({INT32_MIN, INT32_MIN, INT32_MIN}); // fits whatever the fields are
}

TEST(ISO_8601, a_text_is_read_as_far_as_it_is_valid)
{
    const struct {
        const char *text;
        std::uint32_t count;
        double seconds;
    } rows[] = {
        {"1970-01-02", 10, 86400},
        {"1970-01-01T01:00", 16, 3600},
        {"1970-01-01 00:00:01,25Z", 22, 1.25},
        {"1970-01-01t00:00:01.", 19, 1}, // a point needs a digit
        {"1970-01-01T00:00:00.1234567899", 30, 0.123456789},
        {"1970-01-01T00:00:01+01:00", 19, 1}, // no zone is read
        {"1970-01-01T24:00:00", 10, 0},
        {"1970-01-01T10:60:00", 10, 0},
        {"1970-01-01T10:00:60", 10, 0},
        {"1970-01-01T1:00:00", 10, 0},
        {"+001970-01-01", 13, 0},
        {"2000-02-29", 10, 951782400},
        {"2001-02-29", 0, -7},
        {"1900-02-29", 0, -7},
        {"1970-00-01", 0, -7},
        {"1970-13-01", 0, -7},
        {"1970-01-00", 0, -7},
        {"1970-1-01", 0, -7},
        {"19700-01-01", 0, -7}, // five digits need a sign
        {"+970-01-01", 0, -7},
        {" 1970-01-01", 0, -7},
        {"+5874898-06-04T00:00:01", 23, 185331720384001},
        {"+999999999-12-31T23:59:59", 25, 31556889832780799.0},
        {"+2147483647-12-31", 17, 67767976233446400.0},
        {"-2147483648-01-01", 17, -67768100567971200.0},
        {"+0000001970-01-02", 17, 86400},
        {"+2147483648-01-01", 0, -7}, // no year of 32 bits
        {"-2147483649-01-01", 0, -7},
        {"+00000001970-01-01", 0, -7},
        {"", 0, -7},
    };
    for (const auto &row : rows) {
        double seconds = -7;
        const std::vector<char> exact(row.text, row.text + std::strlen(row.text));
        EXPECT_EQ(ZC_assign_seconds_from_iso8601_char_c_array(
                      exact.data(), static_cast<std::uint32_t>(exact.size()), &seconds),
                  row.count)
            << row.text;
        EXPECT_DOUBLE_EQ(seconds, row.seconds) << row.text;
    }
    ZEB_Gregorian_Date date{0, 0, 0};
    EXPECT_EQ(ZC_assign_date_from_iso8601_char_c_array("-0001-02-03T04:05", 17, &date, nullptr), 17U);
    EXPECT_EQ(date.year, -1);
    EXPECT_EQ(date.day, 3);
}

TEST(ISO_8601, spoiled_texts_are_never_read_past_their_end)
{
    std::mt19937_64 random(8602);
    for (int i = 0; i < 100000; ++i) {
        const std::string text = spoiled(
            random,
            text_of(static_cast<std::int32_t>(random() % 5000000), {random() % 90000, random() % 2000000000}),
            "0123456789-:T .+Z");
        const std::vector<char> exact(
            text.begin(), text.begin() + static_cast<std::ptrdiff_t>(random() % (text.size() + 1)));
        ZEB_Gregorian_Date date;
        ZEB_Time_Value time;
        const std::uint32_t count = ZC_assign_date_from_iso8601_char_c_array(
            exact.data(), static_cast<std::uint32_t>(exact.size()), &date, &time);
        ASSERT_LE(count, exact.size());
        if (count == 0)
            continue;
        // What was read is a real day and time.
        const std::string again = text_of(ZC_map_civil_date_to_julian_day(date), time);
        ASSERT_EQ(again.substr(0, again.find('T')), text_of_date(date)) << text;
    }
}
