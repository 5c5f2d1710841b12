/// Dates and time stamps as the platform's, and back: to the nanosecond of its doubles, and in time zones.
#include "tests/calendar/dates.hpp"

#include <cmath>
#include <random>

namespace
{

constexpr char not_set[] = "No date or time zone, or an instant out of range, no change made.";
constexpr char not_made[] = "No time zone, or an instant out of range, no date made.";

/// Seconds from 2001 to an instant that is told by its date and time in UTC.
double reference_time(ZEB_Gregorian_Date date, uint64_t second = 0, uint64_t nanosecond = 0)
{
    return [[date_of(date, second, nanosecond) NSDate_value_in_time_zone:nil] timeIntervalSinceReferenceDate];
}

ZEB_Date *date_at(double seconds, NSTimeZone *zone = nil)
{
    ZEB_Date *const date = date_of({1, 1, 1});
    EXPECT_EQ([date set_from_NSDate:[NSDate dateWithTimeIntervalSinceReferenceDate:seconds] time_zone:zone],
              1);
    return date;
}

} // namespace

/// An NSDate of any time, also of one that the platform refuses.
@interface Odd_Date : NSDate {
@public
    NSTimeInterval seconds;
}
@end

@implementation Odd_Date
- (NSTimeInterval)timeIntervalSinceReferenceDate
{
    return seconds;
}
@end

TEST(NSDate_Conversion, counts_from_2001_in_the_civil_calendar)
{
    const struct {
        ZEB_Gregorian_Date date;
        uint64_t second, nanosecond;
        double seconds;
    } rows[] = {
        {{2001, 1, 1}, 0, 0, 0},
        {{1970, 1, 1}, 0, 0, -978307200},
        {{2000, 12, 31}, 86399, 500000000, -0.5},
        {{2001, 1, 1}, 0, 1, 1e-9},
        {{1, 1, 1}, 0, 0, -63113904000},
        {{-4800, 1, 1}, 3, 0, -214618895997},
        {{2147483647, 12, 31}, 0, 0, 67767976233446400 - 978307200.0},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(reference_time(row.date, row.second, row.nanosecond), row.seconds);
        EXPECT_EQ(slash_text(date_at(row.seconds)),
                  slash_text(date_of(row.date, row.second, row.nanosecond)));
    }
    // What exceeds its month or day counts on, and so does every nanosecond.
    EXPECT_EQ(reference_time({2021, 14, 32}, 86401), reference_time({2022, 3, 5}, 1));
    EXPECT_EQ(reference_time({2021, 3, 4}, 0, 3000000000), reference_time({2021, 3, 4}, 3));
    // The nearest nanosecond may be the next second.
    EXPECT_EQ(slash_text(date_at(0.9999999996)), "1/1/2001 00:00:01");
    // The day number is set as well.
    ZEB_Date *const date = date_of({2021, 3, 4});
    EXPECT_TRUE([date_at(reference_time({2021, 3, 4})) isEqual:date]);
}

TEST(NSDate_Conversion, loses_no_more_than_a_double_does)
{
    std::mt19937_64 random(1);
    for (int turn = 0; turn < 20000; ++turn) {
        // From seconds around 2001 to the ages that a date has.
        const double seconds = std::ldexp(static_cast<double>(static_cast<int64_t>(random())), -63) *
                               std::ldexp(1, static_cast<int>(random() % 56));
        ZEB_Date *const date = date_at(seconds);
        ASSERT_LT([date nanosecond], 1000000000u);
        ASSERT_LT([date second], 86400u);
        const double back = [[date NSDate_value_in_time_zone:nil] timeIntervalSinceReferenceDate];
        ASSERT_NEAR(back, seconds, 0.5e-9 + std::fabs(seconds) * 0x1p-52);
        // Where the steps of a double are longer than nanoseconds, nothing is lost at all.
        if (std::fabs(seconds) >= 0x1p24) {
            ASSERT_EQ(back, seconds);
        }
        ZEB_Time_Stamp *const stamp = [[[ZEB_Time_Stamp alloc] init] autorelease];
        NSDate *const given = [NSDate dateWithTimeIntervalSince1970:std::fabs(seconds)];
        ASSERT_EQ([stamp set_from_NSDate:given], 1);
        ASSERT_NEAR([[stamp NSDate_value] timeIntervalSinceDate:given], 0, 0.6e-9);
        // Microseconds survive, rounded.
        const uint64_t microsecond = random() % 1000000;
        [stamp set_time_value:1700000000 nanosecond:microsecond * 1000];
        [stamp set_from_NSDate:[stamp NSDate_value]];
        ASSERT_EQ(([stamp time_value].nanosecond + 500) / 1000, microsecond);
    }
}

TEST(NSDate_Conversion, shows_what_clocks_of_a_zone_show)
{
    NSTimeZone *const berlin = [NSTimeZone timeZoneWithName:@"Europe/Berlin"];
    ASSERT_NE(berlin, nil);
    const struct {
        ZEB_Gregorian_Date local;
        uint64_t hours, minutes;
        ZEB_Gregorian_Date utc;
        uint64_t utc_hours, utc_minutes;
        const char *shown; // where the time comes back as another one
    } rows[] = {
        {{2021, 1, 1}, 0, 30, {2020, 12, 31}, 23, 30, nullptr},
        {{2021, 7, 1}, 0, 30, {2021, 6, 30}, 22, 30, nullptr},
        // Set forward from 2:00 to 3:00.
        {{2021, 3, 28}, 1, 59, {2021, 3, 28}, 0, 59, nullptr},
        {{2021, 3, 28}, 2, 30, {2021, 3, 28}, 1, 30, "3/28/2021 03:30:00"},
        {{2021, 3, 28}, 3, 0, {2021, 3, 28}, 1, 0, nullptr},
        // Set back from 3:00 to 2:00: the first of two.
        {{2021, 10, 31}, 1, 59, {2021, 10, 30}, 23, 59, nullptr},
        {{2021, 10, 31}, 2, 30, {2021, 10, 31}, 0, 30, nullptr},
        {{2021, 10, 31}, 3, 0, {2021, 10, 31}, 2, 0, nullptr},
    };
    for (const auto &row : rows) {
        ZEB_Date *const local = date_of(row.local, row.hours * 3600 + row.minutes * 60);
        NSDate *const instant = [local NSDate_value_in_time_zone:berlin];
        const double seconds = [instant timeIntervalSinceReferenceDate];
        EXPECT_EQ(seconds, reference_time(row.utc, row.utc_hours * 3600 + row.utc_minutes * 60));
        EXPECT_EQ(slash_text(date_at(seconds, berlin)), row.shown != nullptr ? row.shown : slash_text(local));
    }
    // The second of two instants that show the same.
    EXPECT_EQ(slash_text(date_at(reference_time({2021, 10, 31}, 5400), berlin)), "10/31/2021 02:30:00");
    // On every day of a year with both, the way there and back.
    for (int hour = 0; hour < 8760; ++hour) {
        const double seconds = reference_time({2021, 1, 1}) + hour * 3600;
        const double back =
            [[date_at(seconds, berlin) NSDate_value_in_time_zone:berlin] timeIntervalSinceReferenceDate];
        ASSERT_EQ(back, seconds - (hour == 7273 ? 3600 : 0)) << hour;
    }
}

TEST(NSDate_Conversion, refuses_what_is_no_instant_and_changes_nothing)
{
    ZEB_Date *const date = date_of({2021, 3, 4}, 5, 6);
    ZEB_Time_Stamp *const stamp = [[[ZEB_Time_Stamp alloc] init_with_time:7 nanosecond:8] autorelease];
    const auto at = [](double seconds) {
        Odd_Date *const made = [[Odd_Date alloc] autorelease];
        made->seconds = seconds;
        return static_cast<NSDate *>(made);
    };
    for (const id given :
         {static_cast<id>(nil), static_cast<id>(@"2021"), static_cast<id>(at(NAN)),
          static_cast<id>(at(-HUGE_VAL)), static_cast<id>(at(1e19)), static_cast<id>(at(-6.8e16))}) {
        EXPECT_EQ(standard_error_of([=] { EXPECT_EQ([date set_from_NSDate:given time_zone:nil], 0); }),
                  fix_line("set_from_NSDate:time_zone:", "ZEB_Date", not_set));
        EXPECT_EQ(standard_error_of([=] { EXPECT_EQ([stamp set_from_NSDate:given], 0); }),
                  fix_line("set_from_NSDate:", "ZEB_Time_Stamp", not_set));
    }
    standard_error_of([=] {
        EXPECT_EQ([stamp set_from_NSDate:at(-978307200.5)], 0);
        EXPECT_EQ([date set_from_NSDate:at(0) time_zone:(id) @"UTC"], 0);
    });
    EXPECT_EQ(slash_text(date), "3/4/2021 00:00:05.000000006");
    EXPECT_TRUE([stamp time_value].second == 7 && [stamp time_value].nanosecond == 8);
    EXPECT_EQ([stamp set_from_NSDate:at(-978307200)], 1);

    ZEB_Date *const endless = date_of({2021, 3, 4}, UINT64_MAX, UINT64_MAX);
    EXPECT_EQ(standard_error_of([=] { EXPECT_EQ([endless NSDate_value_in_time_zone:nil], nil); }),
              fix_line("NSDate_value_in_time_zone:", "ZEB_Date", not_made));
    EXPECT_EQ(standard_error_of([=] { EXPECT_EQ([date NSDate_value_in_time_zone:(id) @"UTC"], nil); }),
              fix_line("NSDate_value_in_time_zone:", "ZEB_Date", not_made));
    [stamp set_time_value:UINT64_MAX nanosecond:0];
    EXPECT_EQ(standard_error_of([=] { EXPECT_EQ([stamp NSDate_value], nil); }),
              fix_line("NSDate_value", "ZEB_Time_Stamp", not_made));
}
