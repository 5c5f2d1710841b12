#import <Korvane_ZEB/Korvane_ZEB.h>

#include "core/engine/namespace.hpp"
#include "tests/reference/calendar_arithmetic.hpp"
#include "tests/support/captured.hpp"

#include <gtest/gtest.h>

#include <ctime>
#include <random>

namespace
{

using engine::Date_Time;

ZEB_Date *date_of(ZEB_Gregorian_Date date, uint64_t second = 0, uint64_t nanosecond = 0)
{
    return [[[ZEB_Date alloc] init_with_date_and_time:date second:second nanosecond:nanosecond] autorelease];
}

Date_Time fields_of(ZEB_Date *date)
{
    return {{[date year], [date month], [date day]}, [date julian_day], { [date second], [date nanosecond] }};
}

std::string shown(const Date_Time &value)
{
    return reference::slash_text(value) + " day " + std::to_string(value.julian_day);
}

void expect_fields(ZEB_Date *date, const Date_Time &expected)
{
    ASSERT_EQ(shown(fields_of(date)), shown(expected));
    ASSERT_EQ([date nanosecond], expected.time.nanosecond);
}

ZEB_Gregorian_Date random_fields(std::mt19937_64 &random)
{
    return {static_cast<int>(random() % 12000) - 4000, static_cast<int>(random() % 15),
            static_cast<int>(random() % 40)};
}

} // namespace

TEST(Date, messages_move_it_as_the_transcription_does)
{
    std::mt19937_64 random(1582);
    ZEB_Date *const date = [[[ZEB_Date alloc] init] autorelease];
    for (int i = 0; i < 20000; ++i) {
        const ZEB_Gregorian_Date start = random_fields(random);
        const uint64_t second = random() % 3 ? random() % 90000 : 0, nanosecond = random() % 2000000000;
        Date_Time expected{start, reference::julian_day(start), {second, nanosecond}};
        [date set_date_and_time:start second:second nanosecond:nanosecond];
        ASSERT_NO_FATAL_FAILURE(expect_fields(date, expected));
        ASSERT_EQ([date is_daylight_saving_time], reference::is_daylight_saving_time(expected));

        const int32_t unit = static_cast<int32_t>(random() % 18);
        const uint32_t n = static_cast<uint32_t>(random() >> (32 + random() % 32));
        [date add_time_units:unit n:n];
        reference::add_time_units(expected, unit, n);
        ASSERT_NO_FATAL_FAILURE(expect_fields(date, expected)) << "added " << n << " of unit " << unit;
        [date truncate_to_unit:unit / 2];
        reference::truncate_to_unit(expected, unit / 2);
        ASSERT_NO_FATAL_FAILURE(expect_fields(date, expected)) << "truncated to unit " << unit / 2;
        [date advance_to_unit_boundary:unit];
        reference::advance_to_unit_boundary(expected, unit);
        ASSERT_NO_FATAL_FAILURE(expect_fields(date, expected)) << "advanced to unit " << unit;

        const double seconds = static_cast<double>(static_cast<int64_t>(random())) / 0x1p23;
        [date set_seconds_since_1970:seconds];
        ASSERT_NO_FATAL_FAILURE(expect_fields(date, reference::date_from_seconds(seconds)));
        ASSERT_NEAR([date seconds_since_1970], seconds, 1e-3);
    }
}

TEST(Date, setters_keep_the_two_forms_in_step_save_the_raw_one)
{
    ZEB_Date *const date = [[[ZEB_Date alloc] init] autorelease];
    expect_fields(date, engine::unset_date_time);
    [date set_seconds_since_1970:1e300];
    expect_fields(date, engine::unset_date_time); // refused
    [date set_julian_day:2451545];
    expect_fields(date, {{2000, 1, 1}, 2451545, {0, 0}});
    [date update_date_from_julian_day];
    expect_fields(date, {{2000, 1, 1}, 2451545, {0, 0}});

    const Date_Time spilled{{2021, 2, 31}, 2459277, {7, 8}};
    ZEB_Date *const stored = date_of(spilled.date, 7, 8);
    expect_fields(stored, spilled);
    [date assign_date:stored];
    expect_fields(date, spilled);
    [date update_date_from_julian_day];
    expect_fields(date, {{2021, 3, 3}, 2459277, {7, 8}});
    expect_fields([[[ZEB_Date alloc] init_with_date:stored] autorelease], spilled);

    ZEB_Date *const january = date_of({2021, 1, 31}, 5);
    [january add_months_clamped:1];
    expect_fields(january, {{2021, 2, 28}, 2459274, {5, 0}});
    [january add_months_clamped:-12];
    expect_fields(january, {{2020, 2, 28}, 2458908, {5, 0}});
}

TEST(Date, the_clock_gives_the_local_time)
{
    setenv("TZ", "AAA-3", 1);
    const time_t before = time(nullptr);
    ZEB_Date *const now = [[[ZEB_Date alloc] init_with_current_time] autorelease];
    EXPECT_GE([now seconds_since_1970], static_cast<double>(before) + 3 * 3600);
    EXPECT_LE([now seconds_since_1970], static_cast<double>(time(nullptr) + 1) + 3 * 3600);
    unsetenv("TZ");
    ZEB_Time_Stamp *const stamp = [[[ZEB_Time_Stamp alloc] init] autorelease];
    EXPECT_GE([stamp time_value].second, static_cast<uint64_t>(before));
    [stamp set_time_value:5 nanosecond:6];
    [stamp update_to_current_time];
    EXPECT_GE([stamp time_value].second, static_cast<uint64_t>(before));
}

TEST(Date, comparisons_look_at_the_day_number_and_the_time)
{
    ZEB_Date *const ascending[] = {date_of({1999, 12, 31}, 86399, 9), date_of({2000, 1, 1}),
                                   date_of({2000, 1, 1}, 0, 7), date_of({2000, 1, 1}, 5),
                                   date_of({2000, 1, 2})};
    for (int i = 0; i < 5; ++i) {
        for (int j = 0; j < 5; ++j) {
            EXPECT_EQ([ascending[i] is_at_or_before_date:ascending[j]], i <= j);
            EXPECT_EQ([ascending[i] is_equal_to_date:ascending[j]], i == j);
            EXPECT_EQ([ascending[i] isEqual:ascending[j]], i == j);
            EXPECT_EQ([ascending[i] hash] == [ascending[j] hash], i == j);
        }
    }
    EXPECT_EQ([ascending[0] days_since:ascending[4]], -2);

    ZEB_Date *const spilled = date_of({1999, 12, 32}), *const first = ascending[1];
    EXPECT_TRUE([spilled isEqual:first]); // the same day by another name
    EXPECT_EQ([spilled hash], [first hash]);
    EXPECT_FALSE([first isEqual:nil]);
    EXPECT_FALSE([first isEqual:@"1/1/2000"]);
    ZEB_Date *const copied = [[spilled copy] autorelease];
    expect_fields(copied, fields_of(spilled));
}

TEST(Date, nil_is_a_date_that_was_never_set)
{
    ZEB_Date *const date = date_of({2000, 1, 1});
    EXPECT_EQ([date days_since:nil], 2451545);
    EXPECT_EQ([date is_at_or_before_date:nil], 0);
    EXPECT_EQ([[[[ZEB_Date alloc] init] autorelease] is_equal_to_date:nil], 0);
    [date assign_date:nil];
    expect_fields(date, engine::unset_date_time);
}

TEST(Time_Stamp, is_an_instant_and_nothing_else)
{
    ZEB_Time_Stamp *const stamp = [[[ZEB_Time_Stamp alloc] init_with_time:5 nanosecond:60] autorelease];
    ZEB_Time_Stamp *const copied = [[stamp copy] autorelease];
    EXPECT_EQ([copied is_equal_to:stamp], 1);
    EXPECT_TRUE([copied isEqual:stamp]);
    EXPECT_EQ([copied hash], [stamp hash]);
    EXPECT_STREQ([[stamp description] UTF8String], "5.000000060");
    // In one piece, also where a stream sends its unsigned longs elsewhere.
    EXPECT_EQ(
        support::standard_error_of([=] { [[ZEB_Error_Stream shared_error_stream] write_object:stamp]; }),
        "5.000000060");
    [copied set_time_value:5 nanosecond:61];
    EXPECT_EQ([copied is_equal_to:stamp], 0);
    [copied set_time_value:6 nanosecond:60];
    EXPECT_EQ([copied is_equal_to:stamp], 0);
    EXPECT_EQ([stamp is_equal_to:nil], 0);
    EXPECT_FALSE([stamp isEqual:@"5"]);
}
