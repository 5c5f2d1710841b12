#include "calendar/engine/local_time.hpp"

#include "core/engine/namespace.hpp"
#include "tests/reference/calendar_arithmetic.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <thread>

/// Local time in a zone of the test's choice.
class Local_Time : public testing::Test
{
protected:
    void SetUp() override { before = std::getenv("TZ") ? std::getenv("TZ") : ""; }
    void TearDown() override { set_zone(before); }
    static void set_zone(const std::string &zone)
    {
        if (zone.empty())
            unsetenv("TZ");
        else
            setenv("TZ", zone.c_str(), 1);
        tzset();
    }

private:
    std::string before;
};

namespace
{

std::string formatted(const char *format, const engine::Date_Time &value)
{
    char text[engine::strftime_limit];
    return {text, engine::format_with_strftime(text, format, value)};
}

} // namespace

TEST_F(Local_Time, the_zone_moves_the_clock_and_the_nanoseconds_stay)
{
    set_zone("AAA-3");
    EXPECT_EQ(reference::slash_text(engine::local_date_time(0, 5)), "1/1/1970 03:00:00.000000005");
    setenv("TZ", "BBB5", 1); // noticed without a further call
    const engine::Date_Time value = engine::local_date_time(0, 0);
    EXPECT_EQ(reference::slash_text(value), "12/31/1969 19:00:00");
    EXPECT_EQ(value.julian_day, 2440587);
    // No year of the platform's reaches so far.
    EXPECT_EQ(engine::local_date_time(std::numeric_limits<std::time_t>::max(), 1).date.year, -4713);
}

TEST_F(Local_Time, now_lies_between_two_readings_of_the_clock)
{
    set_zone("AAA-3");
    const engine::Date_Time first = engine::local_date_time(std::time(nullptr), 0);
    const ZEB_Time_Value stamp = engine::current_time_value();
    engine::Date_Time now = engine::current_local_date_time();
    EXPECT_LT(now.time.nanosecond, 1000000000U);
    now.time.nanosecond = 0;
    const engine::Date_Time last = engine::local_date_time(std::time(nullptr), 0);
    EXPECT_TRUE(engine::is_at_or_before(first, now) && engine::is_at_or_before(now, last));
    EXPECT_LT(stamp.nanosecond, 1000000000U);
    EXPECT_EQ(stamp.nanosecond % 1000, 0U);
    EXPECT_NEAR(static_cast<double>(stamp.second) + 3 * 3600, engine::seconds_since_1970(last), 60.0);
}

TEST_F(Local_Time, now_never_steps_back_where_the_second_turns)
{
    set_zone("UTC0");
    const std::uint64_t nanosecond = engine::current_time_value().nanosecond;
    std::this_thread::sleep_for(
        std::chrono::nanoseconds(nanosecond < 999000000 ? 999000000 - nanosecond : 0));
    const std::uint64_t start = engine::current_time_value().second;
    engine::Date_Time last = engine::current_local_date_time();
    // Until well into the next second: the platform's coarser clocks turn some milliseconds late.
    while (engine::current_time_value().second == start ||
           engine::current_time_value().nanosecond < 5000000) {
        const engine::Date_Time now = engine::current_local_date_time();
        ASSERT_TRUE(engine::is_at_or_before(last, now));
        last = now;
    }
}

TEST_F(Local_Time, strftime_text_is_the_date_s_own_in_summer_and_in_gap_hours)
{
    const char *const new_york = "EST5EDT,M3.2.0,M11.1.0", *const berlin = "CET-1CEST,M3.5.0,M10.5.0/3",
                      *const lord_howe = "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0";
    const struct {
        const char *zone;
        ZEB_Gregorian_Date date;
        std::uint64_t second;
        const char *text;
    } rows[] = {
        {"UTC0", {2021, 7, 1}, 43200, "2021-07-01 12:00:00 Thu 182 UTC +0000"},
        {new_york, {2021, 7, 1}, 43200, "2021-07-01 12:00:00 Thu 182 EDT -0400"},
        {new_york, {2021, 1, 1}, 43200, "2021-01-01 12:00:00 Fri 001 EST -0500"},
        {berlin, {2024, 7, 31}, 0, "2024-07-31 00:00:00 Wed 213 CEST +0200"}, // midnight keeps its day
        {berlin, {1969, 12, 31}, 86399, "1969-12-31 23:59:59 Wed 365 CET +0100"},
        {lord_howe, {2021, 1, 1}, 0, "2021-01-01 00:00:00 Fri 001 +11 +1100"},
        {lord_howe, {2021, 7, 1}, 0, "2021-07-01 00:00:00 Thu 182 +1030 +1030"},
        // Hours that the local clock leaves out.
        {new_york, {2021, 3, 14}, 9000, "2021-03-14 02:30:00"},
        {berlin, {2021, 3, 28}, 9000, "2021-03-28 02:30:00"},
        {lord_howe, {2021, 10, 3}, 8100, "2021-10-03 02:15:00"},
    };
    constexpr char format[] = "%Y-%m-%d %H:%M:%S %a %j %Z %z";
    for (const auto &row : rows) {
        set_zone(row.zone);
        const std::string text = formatted(format, engine::make_date_time(row.date, row.second, 0));
        EXPECT_EQ(text.substr(0, std::strlen(row.text)), row.text) << row.zone;
    }
}

TEST_F(Local_Time, strftime_text_is_completed_and_bounded)
{
    set_zone("UTC0");
    const engine::Date_Time date = engine::make_date_time({2021, 3, 4}, 37230, 0);
    EXPECT_EQ(formatted("%Y-%m-%d %H:%M:%S %A %j", date), "2021-03-04 10:20:30 Thursday 063");
    EXPECT_EQ(formatted("%d.%m.%Y", engine::make_date_time({2021, 2, 31}, 0, 0)),
              "03.03.2021"); // brought into range
    EXPECT_EQ(formatted("%d %H", engine::make_date_time({2021, 2, 1}, 90000, 0)), "02 01");
    EXPECT_EQ(formatted("%Y %a %j", engine::make_date_time({-4713, 1, 1}, 0, 0)), "-4713 Wed 001");
    EXPECT_EQ(formatted("", date), "");
    EXPECT_EQ(formatted(std::string(2047, 'x').c_str(), date).size(), 2047U);
    EXPECT_EQ(formatted(std::string(2048, 'x').c_str(), date), ""); // does not fit
    // Fields beyond the platform's years are formatted as they stand and break nothing.
    formatted("%c", engine::make_date_time({INT32_MIN, INT32_MIN, INT32_MIN}, UINT64_MAX, 0));
}
