#import <Korvane_ZEB/Korvane_ZEB.h>

#include "core/engine/namespace.hpp"
#include "tests/reference/calendar_arithmetic.hpp"
#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"
#include "tests/support/strings.hpp"

#include <gtest/gtest.h>

#include <random>

using support::text;
using support::text_of;

namespace
{

ZEB_Date *date_of(ZEB_Gregorian_Date date, uint64_t second, uint64_t nanosecond)
{
    return [[[ZEB_Date alloc] init_with_date_and_time:date second:second nanosecond:nanosecond] autorelease];
}

/// 4 March 2021, 10:20:30.5, in a zone without summer time.
class Date_Text : public testing::Test
{
protected:
    void SetUp() override
    {
        setenv("TZ", "UTC0", 1);
        date = date_of({2021, 3, 4}, 37230, 500000000);
    }
    void TearDown() override { unsetenv("TZ"); }

    ZEB_Date *date = nil;
};

} // namespace

TEST_F(Date_Text, strftime_text_is_appended_by_either_format)
{
    ZEB_String *const string = text("on ");
    [date append_strftime_text:string format:"%d.%m.%Y"];
    [date append_strftime_text:string format:""];
    [date append_strftime_text:string format:NULL];
    EXPECT_EQ(text_of(string), "on 04.03.202103/04/2021 10:20:30");

    ZEB_String *const pattern = text("%H:%M ");
    [date append_strftime_text:pattern];
    EXPECT_EQ(text_of(pattern), "%H:%M 10:20 ");
    ZEB_String *const empty = text("");
    [date append_strftime_text:empty];
    EXPECT_EQ(text_of(empty), "");
    [date append_strftime_text:nil];
}

TEST_F(Date_Text, slash_text_replaces_or_is_appended)
{
    ZEB_String *const string = text("before");
    [date write_text:string];
    [date append_text:string];
    EXPECT_EQ(text_of(string), "3/4/2021 10:20:30.53/4/2021 10:20:30.5");
    [date_of({2021, 3, 4}, 0, 500000000) write_text:string];
    EXPECT_EQ(text_of(string), "3/4/2021 0.5");

    ZEB_String *const link =
        [[[ZEB_String alloc] init_as_link_to_char_vector:string range:ZEB_Index_Range{0, 1}] autorelease];
    const auto refused = support::standard_error_of([&] { [date append_text:link]; });
    EXPECT_EQ(refused, support::fix_line("append_c_string:length:", "ZEB_String",
                                         "Cannot append c string through link, no append made."));
}

TEST_F(Date_Text, spaced_text_is_read_as_the_transcription_reads_it)
{
    const char *const texts[] = {"3/4/2021 10:20:30.5", " 13 / 32 / 1999", "2/29/1900 1:2", "", "x", "7",
                                 "1/1/2000 -1:0:0"};
    for (const char *const spaced : texts) {
        [date assign_from_text:text(spaced)];
        const engine::Date_Time expected = reference::date_from_spaced_text(spaced);
        EXPECT_EQ([date julian_day], expected.julian_day) << spaced;
        EXPECT_EQ([date month], expected.date.month) << spaced;
        EXPECT_EQ([date second], expected.time.second) << spaced;
        EXPECT_EQ([date nanosecond], expected.time.nanosecond) << spaced;
    }
    [date assign_from_text:nil];
    EXPECT_EQ([date year], reference::date_from_spaced_text("").date.year);
}

TEST_F(Date_Text, iso_8601_text_comes_back)
{
    ZEB_String *const string = text("");
    [date append_iso8601_text:string];
    [string append_char:'|'];
    [date append_iso8601_date_text:string];
    EXPECT_EQ(text_of(string), "2021-03-04T10:20:30.5|2021-03-04");

    ZEB_Date *const read = date_of({1, 1, 1}, 1, 1);
    EXPECT_EQ([read assign_from_iso8601_text:text("2021-02-29")], 0u);
    EXPECT_EQ([read assign_from_iso8601_text:nil], 0u);
    EXPECT_EQ([read year], 1);
    EXPECT_EQ([read assign_from_iso8601_text:string], 21u);
    EXPECT_TRUE([read isEqual:date]);

    std::mt19937_64 random(8601);
    for (int i = 0; i < 2000; ++i) {
        ZEB_Date *const any =
            date_of({static_cast<int>(random() % 9000), 1, static_cast<int>(random() % 400)},
                    random() % 86400, random() % 1000000000);
        ZEB_String *const iso = text("");
        [any append_iso8601_text:iso];
        ASSERT_EQ([read assign_from_iso8601_text:iso], [iso count]) << text_of(iso);
        ASSERT_TRUE([read isEqual:any]) << text_of(iso);
    }
}

TEST_F(Date_Text, iso_8601_and_clamped_months_agree_far_out)
{
    for (const int32_t year :
         {INT32_MIN, -10000000, -5000, -4801, -4800, -4713, 1465073, 5874899, 11761191, INT32_MAX}) {
        ZEB_Date *const any = date_of({year, 1, 31}, 86399, 1);
        ZEB_String *const iso = text(""), *const date_text = text("");
        [any append_iso8601_text:iso];
        [any append_iso8601_date_text:date_text];
        EXPECT_EQ(text_of(iso), text_of(date_text) + "T23:59:59.000000001");
        ZEB_Date *const read = date_of({1, 1, 1}, 1, 1);
        EXPECT_EQ([read assign_from_iso8601_text:iso], [iso count]) << text_of(iso);
        EXPECT_EQ([read year], year);
        EXPECT_EQ([read day], 31);
        [any add_months_clamped:0];
        EXPECT_TRUE([any isEqual:read]) << text_of(iso);
        [any add_months_clamped:1];
        EXPECT_EQ([any days_since:read], [any day]) << text_of(iso);
    }
}

TEST_F(Date_Text, a_stream_writes_it_by_its_own_date_format)
{
    ZEB_Stream *const stream = [[[ZEB_Stream alloc] init] autorelease];
    const auto written = support::standard_output_of([&] {
        [stream write_object:date];
        [stream set_date_format:"|%j|"];
        [stream write_object_text:date];
        [stream write_object_contents:date];
        [stream set_date_format:""];
        [stream write_object:date];
        [stream set_date_format:NULL];
        [stream write_object:date];
    });
    EXPECT_EQ(written, "03/04/2021 10:20:30|063||063|03/04/2021 10:20:30");
    EXPECT_STREQ([[date description] UTF8String], "03/04/2021 10:20:30");
}
