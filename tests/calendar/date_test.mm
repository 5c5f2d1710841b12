#include "tests/calendar/dates.hpp"
#include "tests/support/archives.hpp"

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <random>
#include <thread>
#include <vector>

namespace
{

/// All fields of a date.
std::string shown(ZEB_Date *date) { return slash_text(date) + " day " + std::to_string([date julian_day]); }

ZEB_Date *never_set() { return [[[ZEB_Date alloc] init] autorelease]; }

} // namespace

TEST(Date, moves_by_units)
{
    enum Step { adds, cuts, moves_on };
    constexpr uint64_t half = 500000000, last = 86399;
    // In 2021; the texts are what each of the units alone makes of the time.
    const struct {
        Step step;
        uint32_t count;
        int32_t month, day;
        uint64_t second, nanosecond;
        std::vector<ZEB_Time_Unit> units;
        const char *texts;
    } rows[] = {
        {adds, 1, 12, 31, last, 999999999, {1, 2}, "1/1/2022, 1/1/2022 0.000000999, "},
        {adds, 4000, 12, 31, 0, 0, {3}, "12/31/2021 00:00:013, "},
        {adds, 2, 12, 31, last, 0, {4, 5}, "1/1/2022 00:00:01, 1/1/2022 00:01:59, "},
        {adds, 24, 2, 31, 0, half, {6}, "3/4/2021 0.5, "},
        {adds, 4294967295, 12, 31, 5, 0, {11}, "12/30/2021 00:00:05, "},
        {adds, 12, 6, 15, 0, 0, {13}, "6/17/2022, "},
        {adds, 2, 5, 15, 0, 0, {12, 14}, "5/29/2021, 11/15/2021, "},
        {adds, 1, 2, 29, 0, 0, {15}, "3/1/2022, "},
        {adds, 1, 2, 31, 9, 0, {7, 10, 16}, "2/31/2021 00:00:09, 3/3/2021 00:00:09, 3/3/2021 00:00:09, "},
        {adds, 1, 2, 31, 90000, 0, {0}, "3/4/2021 01:00:00, "},
        {cuts, 0, 8, 15, last, half, {3, 4, 12}, "8/15/2021 23:59:59.5, 8/15/2021 23:59:59, 8/15/2021, "},
        {cuts, 0, 8, 15, last, half, {5, 6}, "8/15/2021 23:59:00, 8/15/2021 23:00:00, "},
        {cuts, 0, 8, 15, last, half, {11, 13, 14, 15}, "8/15/2021, 8/1/2021, 6/1/2021, 1/1/2021, "},
        {cuts, 0, 2, 31, 9, 0, {6, 10, 14}, "2/31/2021, 3/3/2021 00:00:09, 12/1/2020, "},
        {moves_on, 0, 8, 15, last, half, {3, 4}, "8/15/2021 23:59:59.5, 8/15/2021 24:00:00, "},
        {moves_on, 0, 8, 15, last, half, {5, 6, 11, 12}, "8/16/2021, 8/16/2021, 8/16/2021, 8/15/2021, "},
        {moves_on, 0, 8, 15, 60, half, {5, 6}, "8/15/2021 00:01:00.5, 8/15/2021 01:00:00, "},
        {moves_on, 0, 8, 15, 86400, half, {6}, "8/16/2021 0.5, "},
        {moves_on, 0, 8, 1, 0, 0, {11, 13, 14, 15}, "8/1/2021, 8/1/2021, 9/1/2021, 1/1/2022, "},
        {moves_on, 0, 8, 1, 0, half, {11, 13}, "8/2/2021, 9/1/2021, "},
        {moves_on, 0, 8, 2, 0, 0, {13}, "9/1/2021, "},
        {moves_on, 0, 12, 1, 0, 0, {14, 15}, "12/1/2021, 1/1/2022, "},
        {moves_on, 0, 12, 31, last, 0, {4, 11, 14}, "12/31/2021 23:59:59, 1/1/2022, 3/3/2022, "},
        {moves_on, 0, 1, 1, 0, 0, {15}, "1/1/2021, "},
        {moves_on, 0, 2, 31, 0, 0, {1}, "3/3/2021, "},
    };
    for (const auto &row : rows) {
        std::string texts;
        for (const ZEB_Time_Unit unit : row.units) {
            ZEB_Date *const date = date_of({2021, row.month, row.day}, row.second, row.nanosecond);
            if (row.step == adds)
                [date add_time_units:unit n:row.count];
            else
                row.step == cuts ? [date truncate_to_unit:unit] : [date advance_to_unit_boundary:unit];
            texts += slash_text(date) + ", ";
        }
        EXPECT_EQ(texts, row.texts) << row.step << " at second " << row.second;
    }
}

TEST(Date, day_numbers_stay_those_of_the_fields)
{
    std::mt19937_64 random(1582);
    ZEB_Date *const date = never_set();
    for (int i = 0; i < 20000; ++i) {
        const auto any_size = [&random] { return static_cast<int>(random()) >> random() % 32; };
        const ZEB_Gregorian_Date any{any_size(), any_size(), any_size()};
        [date set_date_and_time:any second:random() >> random() % 64 nanosecond:random() >> random() % 64];
        const auto unit = static_cast<ZEB_Time_Unit>(random() % 22) - 1;
        [date add_time_units:unit n:static_cast<uint32_t>(any_size())];
        [date truncate_to_unit:static_cast<ZEB_Time_Unit>(random() % 22) - 1];
        [date advance_to_unit_boundary:unit];
        [date is_daylight_saving_time];
        // Elsewhere the mapping to dates and the one from dates are not each other's inverse.
        const ZEB_Gregorian_Date fields{[date year], [date month], [date day]};
        const int32_t day = [date julian_day];
        ASSERT_TRUE(day < 1000 || day > 500000000 || ZC_map_gregorian_date_to_julian_day(fields) == day);
    }
}

TEST(Date, is_set_from_instants)
{
    const std::pair<double, const char *> rows[] = {
        {1.5, "1/1/1970 00:00:01.5"},          {-0.25, "12/31/1969 23:59:59.75"},
        {-1, "12/31/1969 23:59:59"},           {-86400, "12/30/1969 24:00:00"},
        {1614853230.5, "3/4/2021 10:20:30.5"}, {185331720383999, "6/3/5874898 23:59:59"},
    };
    ZEB_Date *const date = never_set();
    for (const auto &[seconds, text] : rows) {
        [date set_seconds_since_1970:seconds];
        EXPECT_EQ(slash_text(date), text);
    }
    std::mt19937_64 random(1970);
    for (int i = 0; i < 20000; ++i) {
        const double seconds = std::fmod(
            std::ldexp(static_cast<double>(static_cast<int64_t>(random())), -static_cast<int>(random() % 76)),
            1.8e14);
        [date set_seconds_since_1970:seconds];
        ASSERT_NEAR([date seconds_since_1970], seconds, std::fabs(seconds) * 1e-15 + 2e-9);
    }
    // What is no instant, or beyond 32 bits of days, changes nothing.
    const std::string before = shown(date);
    for (const double refused : {1e300, -1e15, 185331720384000.0, double{NAN}}) {
        [date set_seconds_since_1970:refused];
        EXPECT_EQ(shown(date), before);
    }
}

TEST(Date, known_days_of_daylight_saving)
{
    const struct {
        ZEB_Gregorian_Date date;
        uint64_t second;
        bool daylight;
    } rows[] = {
        {{2025, 3, 9}, 7199, false},   {{2025, 3, 9}, 7200, true},    {{2025, 11, 2}, 3600, false},
        {{2025, 11, 3}, 0, true},      {{2025, 12, 1}, 0, false},     {{2006, 4, 2}, 7199, false},
        {{2006, 4, 2}, 7200, true},    {{2006, 10, 29}, 7199, true},  {{2006, 10, 29}, 7200, false},
        {{2006, 3, 31}, 80000, false}, {{1998, 10, 25}, 7200, false}, {{2015, 3, 8}, 7200, true},
    };
    for (const auto &[date, second, daylight] : rows)
        EXPECT_EQ([date_of(date, second) is_daylight_saving_time], daylight)
            << date.year << ' ' << date.month;
}

TEST(Date, setters_keep_the_two_forms_in_step_save_the_raw_one)
{
    ZEB_Date *const date = never_set();
    EXPECT_EQ(shown(date), "1/1/-4713 day 0");
    [date set_julian_day:2451545];
    EXPECT_EQ(shown(date), "1/1/2000 day 2451545");

    ZEB_Date *const stored = date_of({2021, 2, 31}, 7, 8);
    const std::string spilled = "2/31/2021 00:00:07.000000008 day 2459277";
    [date assign_date:stored];
    ZEB_Date *const same[] = {stored, date, [[[ZEB_Date alloc] init_with_date:stored] autorelease],
                              [[stored copy] autorelease]};
    for (ZEB_Date *const one : same)
        EXPECT_EQ(shown(one), spilled);
    [date update_date_from_julian_day];
    EXPECT_EQ(shown(date), "3/3/2021 00:00:07.000000008 day 2459277");
    [date assign_date:nil];
    EXPECT_EQ(shown(date), shown(never_set()));
}

TEST(Date, the_clock_gives_the_local_time_and_never_steps_back_where_the_second_turns)
{
    setenv("TZ", "AAA-3", 1);
    ZEB_Time_Stamp *const stamp = [[[ZEB_Time_Stamp alloc] init] autorelease];
    const ZEB_Time_Value start = [stamp time_value];
    EXPECT_LE(std::abs(static_cast<time_t>(start.second) - time(nullptr)), 1);
    EXPECT_EQ(start.nanosecond % 1000, 0u);
    std::this_thread::sleep_for(std::chrono::nanoseconds(999000000) -
                                std::chrono::nanoseconds(start.nanosecond));
    ZEB_Date *const last = [[[ZEB_Date alloc] init_with_current_time] autorelease], *const now = never_set();
    EXPECT_NEAR([last seconds_since_1970], static_cast<double>(start.second) + 3 * 3600, 60);
    // Until well into the next second: the platform's coarser clocks turn some milliseconds late.
    while ([stamp time_value].second == start.second || [stamp time_value].nanosecond < 5000000) {
        [now set_to_current_time];
        ASSERT_TRUE([last is_at_or_before_date:now] && [now nanosecond] < 1000000000);
        [last assign_date:now];
        [stamp update_to_current_time];
    }
    unsetenv("TZ");
}

TEST(Date, comparisons_look_at_the_day_number_and_the_time)
{
    ZEB_Date *const ascending[] = {date_of({1999, 12, 31}, 86399, 9), date_of({2000, 1, 1}),
                                   date_of({2000, 1, 1}, 0, 7), date_of({2000, 1, 1}, 5),
                                   date_of({2000, 1, 2})};
    for (int i = 0; i < 5; ++i) {
        for (int j = 0; j < 5; ++j) {
            EXPECT_EQ([ascending[i] is_at_or_before_date:ascending[j]], i <= j);
            EXPECT_EQ([ascending[i] platform_compare:ascending[j]], (i > j) - (i < j));
            EXPECT_EQ([ascending[i] is_equal_to_date:ascending[j]], i == j);
            EXPECT_EQ([ascending[i] isEqual:ascending[j]], i == j);
            EXPECT_EQ([ascending[i] hash] == [ascending[j] hash], i == j);
        }
    }
    EXPECT_EQ([ascending[0] days_since:ascending[4]], -2);
    ZEB_Date *const earliest = never_set();
    [earliest set_julian_day:INT32_MIN];
    EXPECT_EQ([earliest days_since:ascending[1]], INT32_MAX - 2451544); // wraps around

    ZEB_Date *const spilled = date_of({1999, 12, 32}), *const first = ascending[1];
    EXPECT_TRUE([spilled isEqual:first] && [spilled hash] == [first hash]); // the same day by another name
    // Nil is a date that was never set.
    EXPECT_FALSE([first isEqual:nil] || [first is_at_or_before_date:nil]);
    EXPECT_EQ([first days_since:nil], 2451545);
    EXPECT_FALSE([never_set() is_equal_to_date:nil] || [first isEqual:@"1/1/2000"]);
}

TEST(Time_Stamp, platform_sorts_order_stamps_as_dates)
{
    const auto stamp = [](uint64_t second, uint64_t nanosecond) {
        return [[[ZEB_Time_Stamp alloc] init_with_time:second nanosecond:nanosecond] autorelease];
    };
    NSArray *const all = [NSArray arrayWithObjects:stamp(0, 0), stamp(7, 0), stamp(7, 1), stamp(8, 0), nil];
    NSArray *const shuffled = [[all reverseObjectEnumerator] allObjects];
    EXPECT_TRUE([[shuffled sortedArrayUsingSelector:@selector(platform_compare:)] isEqual:all]);
    EXPECT_EQ([stamp(0, 0) platform_compare:nil], NSOrderedSame);
    EXPECT_EQ([stamp(0, 1) platform_compare:(id) @"7"], NSOrderedDescending);
    EXPECT_EQ([never_set() platform_compare:(id) @"7"], NSOrderedSame);
}

TEST(Date_Coding, dates_come_back_as_themselves_from_both_kinds_of_archive)
{
    ZEB_Date *const before_day_0 = never_set(), *const far_out = date_of({2147483647, 1, 31});
    [before_day_0 set_julian_day:-5];
    [far_out add_months_clamped:1];
    ZEB_Time_Stamp *const stamp = [[[ZEB_Time_Stamp alloc] init_with_time:UINT64_MAX
                                                               nanosecond:uint64_t{1} << 63] autorelease];
    for (const bool keyed : {false, true}) {
        for (ZEB_Date *const date : {date_of({2021, 3, 4}, 37230, 999999999), date_of({1, 1, 1}, 86400),
                                     date_of({9999, 12, 31}, 4294967295u, 4294967295u),
                                     date_of({2021, 2, 31}), never_set(), before_day_0, far_out})
            EXPECT_EQ(shown(archived(date, keyed)), shown(date));
        EXPECT_TRUE([stamp isEqual:archived(stamp, keyed)]);
    }
    ZEB_Time_Stamp *const none =
        [[[ZEB_Time_Stamp alloc] initWithCoder:archive_of([](NSCoder *) {})] autorelease];
    EXPECT_EQ([none time_value].second, 0u);
}

TEST(Date_Coding, decoding_cuts_times_to_32_bits_and_brings_dates_into_range)
{
    ZEB_Date *const date = date_of({2021, 2, 31}, (uint64_t{1} << 32) + 7, (uint64_t{5} << 32) + 9);
    NSCoder *const archive = archive_of([=](NSCoder *coder) { [date encode:coder]; });
    ZEB_Date *const target = date_of({1, 1, 1});
    [target decode:archive];
    // Missing values leave what stands.
    [target decode:archive_of([](NSCoder *coder) { [coder encodeInt32:1 forKey:@"another"]; })];
    [target decode:nil];
    EXPECT_EQ(shown(target), "3/3/2021 00:00:07.000000009 day 2459277");
    // Five values alone make a date too; its day number is computed.
    EXPECT_EQ(shown([[[ZEB_Date alloc] initWithCoder:archive] autorelease]),
              "2/31/2021 00:00:07.000000009 day 2459277");
}

TEST(Time_Stamp, is_an_instant_and_nothing_else)
{
    ZEB_Time_Stamp *const stamp = [[[ZEB_Time_Stamp alloc] init_with_time:5 nanosecond:60] autorelease];
    ZEB_Time_Stamp *const copied = [[stamp copy] autorelease];
    EXPECT_EQ([copied is_equal_to:stamp], 1);
    EXPECT_TRUE([copied isEqual:stamp] && [copied hash] == [stamp hash]);
    EXPECT_STREQ([[stamp description] UTF8String], "5.000000060");
    // In one piece, also where a stream sends its unsigned longs elsewhere.
    ZEB_Stream *const stream = [ZEB_Error_Stream shared_error_stream];
    EXPECT_EQ(standard_error_of([=] { [stream write_object:stamp]; }), "5.000000060");
    [copied set_time_value:5 nanosecond:61];
    EXPECT_EQ([copied is_equal_to:stamp], 0);
    [copied set_time_value:6 nanosecond:60];
    EXPECT_EQ([copied is_equal_to:stamp], 0);
    EXPECT_FALSE([stamp is_equal_to:nil] || [stamp isEqual:@"5"]);
}
