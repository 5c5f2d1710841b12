#include "calendar/ZEB_Calendar_Functions.h"
#include "calendar/engine/date_text.hpp"
#include "core/engine/namespace.hpp"
#include "tests/calendar/random_text.hpp"
#include "tests/reference/calendar_arithmetic.hpp"
#include "tests/support/guarded_text.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace zeb_test;

namespace
{

std::string pretty(double seconds)
{
    return guarded_text(ZEB_DATE_TEXT_SIZE, [=](char *buffer) {
        return ZC_pretty_format_gregorian_date_from_seconds(buffer, seconds);
    });
}

std::string random_date_text(std::mt19937_64 &random)
{
    const auto field = [&random](unsigned most) {
        return random() % 64 ? std::to_string(random() % most) : random_integer(random);
    };
    const auto point = [&random](const char *c) { return spaces(random) + c + spaces(random); };
    const char *const fractions[] = {"",      "",  ".5",    ".",    "e1", "e", ".000000000000000000001",
                                     "5e-1x", "x", ".25.5", "0x1p4"};
    std::string text = spaces(random) + field(13) + point("/") + field(32) + point("/") + field(3000);
    if (random() % 8)
        text += " " + spaces(random) + field(25) + point(":") + field(60) + point(":") + field(61) +
                fractions[random() % 11];
    return random() % 2 ? text : spoiled(random, text, "0123456789///:::..+- \teExXinfa");
}

} // namespace

TEST(Pretty_Date, known_texts)
{
    const struct {
        double seconds;
        const char *text;
    } rows[] = {
        {0.0, "1/1/1970"},
        {-0.0, "1/1/1970"},
        {9e-7, "1/1/1970"},
        {1e-6, "1/1/1970 00:00:00.000001"},
        {5.0, "1/1/1970 00:00:05"},
        {9.9999999, "1/1/1970 00:00:010"}, // the leading zero is chosen before the rounding
        {59.25, "1/1/1970 00:00:59.25"},
        {59.9999999, "1/1/1970 00:00:60"},
        {3600.0, "1/1/1970 01:00:00"},
        {86399.5, "1/1/1970 23:59:59.5"},
        {-1.0, "12/31/1969 23:59:59"},
        {-86400.0, "12/31/1969"}, // a remainder of 24 hours is the next midnight
        {-1e-20, "1/1/1970"},
        {185331720383999.0, "6/3/5874898 23:59:59"}, // the last day of 32 bits
        {185331720384000.0, ""},
        {-std::numeric_limits<double>::infinity(), ""},
        {std::numeric_limits<double>::quiet_NaN(), ""},
    };
    for (const auto &row : rows)
        EXPECT_EQ(pretty(row.seconds), row.text) << row.seconds;
}

TEST(Pretty_Date, is_read_back_as_the_instant_that_it_was)
{
    std::mt19937_64 random(71);
    for (int i = 0; i < 200000; ++i) {
        const double steps[] = {86400.0, 3600.0, 60.0, 10.0, 1.0, 0.5, 1e-6, 5e-7};
        double seconds = static_cast<double>(static_cast<std::int64_t>(random()) >> (20 + random() % 44)) *
                         steps[random() % 8];
        if (random() % 2)
            seconds += (static_cast<double>(random() % 9) - 4.0) * 5e-7;
        seconds = std::fmod(seconds, 1.8e11);
        const std::string text = pretty(seconds);
        double read = NAN;
        ASSERT_EQ(ZC_assign_seconds_from_gregorian_date_char_c_array(
                      text.data(), static_cast<std::uint32_t>(text.size()), &read),
                  text.size())
            << text;
        ASSERT_NEAR(read, seconds, 1.0001e-6 + std::fabs(seconds) * 1e-15) << text;
    }
}

TEST(Date_Scanning, seeded_texts_are_read_as_scanf_reads_them)
{
    std::mt19937_64 random(72);
    for (int i = 0; i < 200000; ++i) {
        const std::string text = random_date_text(random);
        const std::vector<char> exact(text.begin(), text.end());
        const std::uint32_t length = static_cast<std::uint32_t>(exact.size());
        double seconds = -77.0, expected = -77.0;
        const std::uint32_t count = reference::assign_seconds(text.data(), length, &expected);
        ASSERT_EQ(ZC_assign_seconds_from_gregorian_date_char_c_array(exact.data(), length, &seconds), count)
            << text;
        ASSERT_EQ(ZC_skip_valid_gregorian_date_char_c_array(exact.data(), length), count) << text;
        ASSERT_TRUE(seconds == expected || (std::isnan(seconds) && std::isnan(expected))) << text;
    }
}

TEST(Date_Scanning, known_counts)
{
    double seconds = 0.0;
    EXPECT_EQ(ZC_assign_seconds_from_gregorian_date_char_c_array("  3/4/2021 10:20:30.5xyz", 24, &seconds),
              21U);
    EXPECT_EQ(seconds, 1614853230.5);
    EXPECT_EQ(ZC_assign_seconds_from_gregorian_date_char_c_array("3/4/2021 10:20", 14, &seconds), 8U);
    EXPECT_EQ(seconds, 1614816000.0);
    EXPECT_EQ(ZC_skip_valid_gregorian_date_char_c_array(nullptr, 0), 0U);
    // Only 1023 characters after the white space in front count.
    const std::string digits = std::string(2000, ' ') + "1/2/" + std::string(2000, '0');
    EXPECT_EQ(
        ZC_skip_valid_gregorian_date_char_c_array(digits.data(), static_cast<std::uint32_t>(digits.size())),
        3023U);
}

TEST(Slash_Text, seeded_dates_agree_with_the_transcription_and_fit)
{
    std::mt19937_64 random(73);
    for (int i = 0; i < 100000; ++i) {
        engine::Date_Time value = engine::make_date_time(
            {static_cast<int>(random() >> random() % 64), static_cast<int>(random() >> random() % 64),
             static_cast<int>(random() >> random() % 64)},
            random() % 3 ? random() % 100000 : 0, random() % 3 ? random() % 1000000000 : 0);
        if (random() % 4 == 0)
            value.time = {random() >> random() % 64, random() % 9000000000000000};
        ASSERT_EQ(guarded_text(engine::slash_text_size,
                               [&](char *buffer) { return engine::write_slash_text(buffer, value); }),
                  reference::slash_text(value));
    }
    char buffer[engine::slash_text_size];
    constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
    engine::write_slash_text(buffer, engine::make_date_time({INT32_MIN, INT32_MIN, INT32_MIN}, most, most));
    EXPECT_STREQ(buffer, "-2147483648/-2147483648/-2147483648 5124095576030431:00:151.84467440737096e+10");
}

TEST(Spaced_Text, seeded_texts_are_read_as_scanf_reads_them)
{
    std::mt19937_64 random(74);
    for (int i = 0; i < 100000; ++i) {
        const std::string text = random_date_text(random);
        const std::vector<char> exact(text.begin(), text.end());
        const engine::Date_Time value =
            engine::read_spaced_text(exact.data(), static_cast<std::uint32_t>(exact.size()));
        const engine::Date_Time expected = reference::date_from_spaced_text(text);
        ASSERT_TRUE(engine::is_equal(value, expected)) << text;
        ASSERT_EQ(value.date.day, expected.date.day) << text;
    }
    EXPECT_EQ(engine::read_spaced_text("2/30/2021 1:2:3.5", 17).time.nanosecond, 5U);
}
