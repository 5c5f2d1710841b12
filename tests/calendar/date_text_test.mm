#include "tests/calendar/dates.hpp"
#include "tests/support/guarded_text.hpp"
#include "tests/support/random_text.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

using namespace zeb_test;

namespace
{

/// 4 March 2021, 10:20:30.5, in a zone without summer time.
class Date_Text : public testing::Test
{
protected:
    Date_Text() { setenv("TZ", "UTC0", 1); }
    ~Date_Text() override { unsetenv("TZ"); }

    ZEB_Date *const date = date_of({2021, 3, 4}, 37230, 500000000);
};

constexpr auto read_instant = ZC_assign_seconds_from_gregorian_date_char_c_array;

std::string strftime_text(ZEB_Date *date, const std::string &format)
{
    ZEB_String *const string = text("");
    [date append_strftime_text:string format:format.c_str()];
    return text_of(string);
}

std::string pretty(double seconds)
{
    return guarded_text(ZEB_DATE_TEXT_SIZE, ZC_pretty_format_gregorian_date_from_seconds, seconds);
}

/// What scanf reads of an instant.
uint32_t seconds_by_scanf(const std::string &characters, double &result)
{
    const std::size_t spaces = std::min(characters.find_first_not_of(" \t\n\v\f\r"), characters.size());
    const std::string rest = characters.substr(spaces, 1023);
    int month = 0, day = 0, year = 0, date_count = 0, hours = 0, minutes = 0, time_count = 0;
    double seconds = 0;
    if (std::sscanf(rest.c_str(), "%d / %d / %d%n", &month, &day, &year, &date_count) != 3)
        return 0;
    const char *const time = rest.c_str() + date_count;
    if (std::sscanf(time, "%d : %d : %lf%n", &hours, &minutes, &seconds, &time_count) != 3)
        hours = minutes = time_count = 0, seconds = 0;
    const int32_t days = [date_of({year, month, day}) days_since:date_of({1970, 1, 1})];
    result = days * 86400.0 + hours * 3600.0 + minutes * 60.0 + seconds;
    return static_cast<uint32_t>(static_cast<int>(spaces) + date_count + time_count);
}

/// What scanf reads of a date object.
ZEB_Date *date_by_scanf(const std::string &characters)
{
    int month = 0, day = 0, year = 0, hour = 0, minute = 0, second = 0, nanosecond = 0;
    std::sscanf(characters.c_str(), " %d / %d / %d %d : %d : %d . %d", &month, &day, &year, &hour, &minute,
                &second, &nanosecond);
    const int64_t seconds = int64_t{minute} * 60 + int64_t{hour} * 3600 + second;
    ZEB_Date *const scanned = date_of({year, month, day}, static_cast<uint64_t>(seconds),
                                      static_cast<uint64_t>(int64_t{nanosecond}));
    [scanned update_date_from_julian_day];
    return scanned;
}

void expect_same_as_scanf(const std::string &characters)
{
    double seconds = -77, expected = -77;
    const uint32_t count = seconds_by_scanf(characters, expected);
    EXPECT_EQ(scanned(characters, read_instant, &seconds), count) << characters;
    EXPECT_EQ(scanned(characters, ZC_skip_valid_gregorian_date_char_c_array), count) << characters;
    EXPECT_TRUE(seconds == expected || (std::isnan(seconds) && std::isnan(expected))) << characters;

    ZEB_Date *const date = date_of({1, 1, 1}, 1, 1), *const expected_date = date_by_scanf(characters);
    scanned(characters, [date](const char *chars, uint32_t length) {
        [date assign_from_text:[ZEB_String link_to_chars:const_cast<char *>(chars) count:length]];
        return length;
    });
    EXPECT_EQ(slash_text(date), slash_text(expected_date)) << characters;
    EXPECT_TRUE([date isEqual:expected_date]) << characters;
}

std::string random_date_text(std::mt19937_64 &random)
{
    static const std::vector<std::string> fractions =
        words_of(".5 .5 . e1 e .000000000000000000001 5e-1x x .25.5 0x1p4");
    const auto field = [&random](unsigned most) {
        return random() % 64 ? std::to_string(random() % most) : random_integer(random);
    };
    const auto point = [&random](const char *c) { return spaces(random) + c + spaces(random); };
    std::string made = spaces(random) + field(13) + point("/") + field(32) + point("/") + field(3000);
    if (random() % 8)
        made += " " + spaces(random) + field(25) + point(":") + field(60) + point(":") + field(61) +
                (random() % 4 ? fractions[random() % fractions.size()] : "");
    return random() % 2 ? made : spoiled(random, made, "0123456789///:::..+- \teExXinfa");
}

} // namespace

TEST_F(Date_Text, strftime_text_is_the_date_s_own_in_summer_and_in_gap_hours)
{
    const char *const new_york = "EST5EDT,M3.2.0,M11.1.0", *const berlin = "CET-1CEST,M3.5.0,M10.5.0/3",
                      *const lord_howe = "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0";
    const struct {
        const char *zone;
        ZEB_Gregorian_Date date;
        uint64_t second;
        const char *expected;
    } rows[] = {
        {"UTC0", {2021, 7, 1}, 43200, "2021-07-01 12:00:00 Thu 182 UTC +0000"},
        {"UTC0", {2021, 2, 31}, 90000, "2021-03-04 01:00:00 Thu 063"}, // brought into range
        {"UTC0", {-4713, 1, 1}, 0, "-4713-01-01 00:00:00 Wed 001"},
        {new_york, {2021, 7, 1}, 43200, "2021-07-01 12:00:00 Thu 182 EDT -0400"},
        {berlin, {2024, 7, 31}, 0, "2024-07-31 00:00:00 Wed 213 CEST +0200"}, // midnight keeps its day
        {berlin, {1969, 12, 31}, 86399, "1969-12-31 23:59:59 Wed 365 CET +0100"},
        {lord_howe, {2021, 1, 1}, 0, "2021-01-01 00:00:00 Fri 001 +11 +1100"},
        {lord_howe, {2021, 7, 1}, 0, "2021-07-01 00:00:00 Thu 182 +1030 +1030"},
        // Hours that the local clock leaves out.
        {new_york, {2021, 3, 14}, 9000, "2021-03-14 02:30:00"},
        {lord_howe, {2021, 10, 3}, 8100, "2021-10-03 02:15:00"},
    };
    for (const auto &row : rows) {
        setenv("TZ", row.zone, 1);
        const std::string made =
            strftime_text(date_of(row.date, row.second), "%Y-%m-%d %H:%M:%S %a %j %Z %z");
        EXPECT_EQ(made.substr(0, std::strlen(row.expected)), row.expected) << row.zone;
    }
    EXPECT_EQ(strftime_text(date, std::string(2047, 'x')).size(), 2047u);
    EXPECT_EQ(strftime_text(date, std::string(2048, 'x')), ""); // does not fit
    // Fields beyond the platform's years are formatted as they stand and break nothing.
    strftime_text(date_of({INT32_MIN, INT32_MIN, INT32_MIN}, UINT64_MAX), "%c");
}

TEST_F(Date_Text, strftime_text_is_appended_by_either_format)
{
    ZEB_String *const string = text("on ");
    for (const char *const format : {"%d.%m.%Y", "", (const char *)NULL})
        [date append_strftime_text:string format:format];
    EXPECT_EQ(text_of(string), "on 04.03.202103/04/2021 10:20:30");

    ZEB_String *const pattern = text("%H:%M "), *const empty = text("");
    for (ZEB_String *const own : {pattern, empty, (ZEB_String *)nil})
        [date append_strftime_text:own];
    EXPECT_EQ(text_of(pattern), "%H:%M 10:20 ");
    EXPECT_EQ(text_of(empty), "");
}

TEST_F(Date_Text, slash_text_replaces_or_is_appended)
{
    ZEB_String *const string = text("before");
    [date write_text:string];
    [date append_text:string];
    EXPECT_EQ(text_of(string), "3/4/2021 10:20:30.53/4/2021 10:20:30.5");
    EXPECT_EQ(slash_text(date_of({INT32_MIN, INT32_MIN, INT32_MIN}, UINT64_MAX, UINT64_MAX)),
              "-2147483648/-2147483648/-2147483648 5124095576030431:00:151.84467440737096e+10");

    ZEB_String *const link = [ZEB_String link_to_chars:[string char_data] count:2];
    EXPECT_EQ(standard_error_of([&] { [date append_text:link]; }),
              fix_line("append_c_string:length:", "ZEB_String",
                       "Cannot append c string through link, no append made."));
}

TEST_F(Date_Text, pretty_dates_are_read_back_as_the_instants_that_they_were)
{
    const std::pair<double, const char *> rows[] = {
        {9e-7, "1/1/1970"},
        {1e-6, "1/1/1970 00:00:00.000001"},
        {0x1p-7, "1/1/1970 00:00:00.007812"}, // a tie goes to the even digit
        {9.9999999, "1/1/1970 00:00:010"},    // the leading zero is chosen before the rounding
        {59.9999999, "1/1/1970 00:00:60"},
        {-86400.0, "12/31/1969"},                    // a remainder of 24 hours is the next midnight
        {185331720383999.0, "6/3/5874898 23:59:59"}, // the last day of 32 bits
        {185331720384000.0, ""},
        {NAN, ""},
    };
    for (const auto &[seconds, expected] : rows)
        EXPECT_EQ(pretty(seconds), expected) << seconds;
    std::mt19937_64 random(71);
    for (int i = 0; i < 10000; ++i) {
        const double steps[] = {86400.0, 3600.0, 60.0, 10.0, 1.0, 0.5, 1e-6, 5e-7};
        const auto count = static_cast<double>(static_cast<int64_t>(random()) >> (20 + random() % 44));
        const double around = random() % 2 ? (static_cast<double>(random() % 9) - 4.0) * 5e-7 : 0;
        const double seconds = std::fmod(count * steps[random() % 8] + around, 1.8e11);
        const std::string made = pretty(seconds);
        double read = NAN;
        ASSERT_EQ(scanned(made, read_instant, &read), made.size()) << made;
        ASSERT_NEAR(read, seconds, 1.0001e-6 + std::fabs(seconds) * 1e-15) << made;
    }
}

TEST_F(Date_Text, texts_are_read_as_scanf_reads_them)
{
    for (const char *const characters : {"", "x", "7", "  3/4/2021 10:20:30.5xyz", "3/4/2021 10:20",
                                         " 13 / 32 / 1999", "2/30/2021 1:2:3.5", "1/1/2000 -1:0:0"})
        expect_same_as_scanf(characters);
    // Only 1023 characters after the white space in front count.
    expect_same_as_scanf(std::string(2000, ' ') + "1/2/" + std::string(2000, '0'));
    std::mt19937_64 random(72);
    for (int i = 0; i < 7000 && !HasFailure(); ++i)
        expect_same_as_scanf(random_date_text(random));
    EXPECT_EQ(ZC_skip_valid_gregorian_date_char_c_array(nullptr, 0), 0u);
    [date assign_from_text:nil];
    EXPECT_TRUE([date isEqual:date_by_scanf("")]);
}

TEST_F(Date_Text, iso_8601_text_comes_back_also_far_out_where_clamped_months_agree)
{
    ZEB_Date *const read = date_of({-5000, 1, 1}, 1, 1); // whose day number is not the civil one
    EXPECT_EQ([read assign_from_iso8601_text:text("2021-02-29")] + [read assign_from_iso8601_text:nil], 0u);
    EXPECT_EQ(slash_text(read), "1/1/-5000 00:00:01.000000001");
    EXPECT_EQ([read days_since:date_of({-5000, 1, 1})], 0);
    for (const int32_t year :
         {INT32_MIN, -10000000, -5000, -4801, -4800, -4713, 2021, 1465073, 5874899, 11761191, INT32_MAX}) {
        ZEB_Date *const any = date_of({year, 1, 31}, 86399, 1);
        ZEB_String *const iso = text(""), *const iso_date = text("");
        [any append_iso8601_text:iso];
        [any append_iso8601_date_text:iso_date];
        EXPECT_EQ(text_of(iso), text_of(iso_date) + "T23:59:59.000000001");
        EXPECT_EQ([read assign_from_iso8601_text:iso], [iso count]) << text_of(iso);
        EXPECT_EQ(slash_text(read), slash_text(any)) << text_of(iso);
        [any add_months_clamped:0];
        EXPECT_TRUE([any isEqual:read]) << text_of(iso);
        [any add_months_clamped:1];
        EXPECT_EQ([any days_since:read], [any day]) << text_of(iso);
    }
}

TEST_F(Date_Text, a_stream_writes_it_by_its_own_date_format)
{
    ZEB_Stream *const stream = [[[ZEB_Stream alloc] init] autorelease];
    const auto written = standard_output_of([&] {
        [stream write_object:date];
        [stream set_date_format:"|%j|"];
        [stream write_object_text:date];
        [stream write_object_contents:date];
        for (const char *const format : {"", (const char *)NULL}) {
            [stream set_date_format:format];
            [stream write_object:date];
        }
    });
    EXPECT_EQ(written, "03/04/2021 10:20:30|063||063|03/04/2021 10:20:30");
    EXPECT_STREQ([[date description] UTF8String], "03/04/2021 10:20:30");
}
