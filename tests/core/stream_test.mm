#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/support/captured.hpp"
#include "tests/support/comma_locale.hpp"
#include "tests/support/strings.hpp"

#include <gtest/gtest.h>

using namespace support;

namespace
{

ZEB_Int_Array *ints(uint32_t count)
{
    ZEB_Int_Array *const made = [ZEB_Int_Array array_with_capacity:count];
    for (uint32_t i = 1; i <= count; ++i)
        [made append_int:static_cast<int32_t>(i)];
    return made;
}

} // namespace

TEST(Stream, every_value_goes_through_its_format_a_given_one_or_the_first)
{
    ZEB_Stream *const stream = [[[ZEB_Stream alloc] init] autorelease];
    EXPECT_EQ(standard_output_of([&] {
                  [stream write_double:0.1];
                  [stream write_bytes:"|x" length:1];
                  [stream write_int:-7];
                  [stream write_unsigned:4294967295u];
                  [stream write_float:0.1f];
                  [stream write_char:'c'];
                  [stream write_character_code:65];
                  [stream write_hex:0xabcd];
                  [stream write_unsigned_long:UINT64_MAX];
                  [stream write_string:text("|s")];
                  [stream write_string:nil];
              }),
              "0.1|-742949672950.1c'\\041'0000ABCD18446744073709551615|s");
    EXPECT_EQ(standard_output_of([&] {
                  [stream set_double_format:"<%.2f>"];
                  [stream write_double:1.5];
                  [stream set_double_format:NULL];
                  [stream write_double:1.5];
                  [stream write_int_with_format:5 format:"%03d"];
                  [stream write_string_with_format:text("ab") format:"[%4s]"];
                  [stream write_unsigned_long_with_format:5 format:NULL];
              }),
              "<1.50>1.5005[  ab]5");
    EXPECT_EQ([stream double_format], nullptr);
    EXPECT_STREQ([stream date_format], "%m/%d/%Y %H:%M:%S");
}

TEST(Stream, lists_have_delimiters_around_and_separators_between)
{
    ZEB_Stream *const stream = [[[ZEB_Stream alloc] init] autorelease];
    const auto list = [&](uint32_t count) {
        return standard_output_of([&] { [stream ZEB_send_delimited_list:ints(count)]; });
    };
    EXPECT_EQ(list(0), "{}");
    EXPECT_EQ(list(1), "{1}");
    EXPECT_EQ(list(3), "{1, 2, 3}");
    EXPECT_EQ(standard_output_of([&] { [stream ZEB_send_list:ints(3)]; }), "123");

    [stream set_list_separator:ZEB_Char_Span{"", 0}];
    [stream set_list_open_delimiter:ZEB_Char_Span{"<<<", 2}];
    EXPECT_EQ(list(3), "<<123}");
}

/// No stream receives a list so far: each says so, on standard output.
TEST(Stream, objects_write_themselves_and_strangers_write_nothing)
{
    ZEB_Stream *const stream = [ZEB_Stream shared_stream];
    const auto written = standard_output_of([&] {
        [stream write_object:ints(2)];
        [stream write_object_with_format:ints(1) format:"ignored"];
        [stream write_value:ints(1)];
        [stream write_object_text:ints(1)];
        [stream write_object_contents:ints(1)];
        [ints(3) send_list_to_stream:stream];
        [stream write_object:[NSObject class]];
        [stream write_object:nil];
        [[ZEB_Error_Stream shared_error_stream] ZEB_receive_delimited_list:ints(1)];
        [stream ZEB_receive_list:ints(1)];
    });
    EXPECT_EQ(written, "{1, 2}{1}{1}{1}{1}123Need to implement ZEB_receive_delimited_list:\n"
                       "Need to implement ZEB_receive_list:\n");
    EXPECT_EQ([ZEB_Stream shared_stream], stream);
}

TEST_F(Comma_Locale, streams_write_and_read_a_full_stop)
{
    const Redirection input(stdin, "2.5");
    EXPECT_EQ([[ZEB_Stream shared_stream] read_double], 2.5);
    EXPECT_EQ(standard_output_of([&] { [[ZEB_Stream shared_stream] write_double:2.5]; }), "2.5");
    ZEB_Double_Array *const values = [[[ZEB_Double_Array alloc] init] autorelease];
    [values append_double:-0.5];
    EXPECT_STREQ([[values description] UTF8String], "{-0.5}");
}

TEST(Stream, readers_scan_standard_input)
{
    const Redirection input(stdin, "2.5 -3 4000000000 0.5 x 7.25 9 1.5 [8.5 \xFF");
    ZEB_Stream *const stream = [ZEB_Error_Stream shared_error_stream];
    EXPECT_EQ([stream read_double], 2.5);
    EXPECT_EQ([stream read_int], -3);
    EXPECT_EQ([stream read_unsigned], 4000000000u);
    EXPECT_EQ([stream read_float], 0.5f);
    EXPECT_EQ([stream read_char_with_format:" %c"], 'x');
    EXPECT_EQ([stream read_double_with_format:"%lf"], 7.25);
    EXPECT_EQ([stream read_double_with_format:"%*g %g"], 1.5);
    EXPECT_EQ([stream read_double_with_format:" %*[%g[]%70g"], 8.5);
    EXPECT_EQ([stream read_char_with_format:" %c"], -1);
    EXPECT_EQ([stream read_int], 0);
}

@interface Forgetful_Stream : ZEB_Stream {
@public
    int resets;
}
@end

@implementation Forgetful_Stream
- (void)reset
{
    ++resets;
    [super reset];
}
@end

TEST(Stream, both_names_of_reset_are_one_operation)
{
    Forgetful_Stream *const stream = [[[Forgetful_Stream alloc] init] autorelease];
    [stream set_failure_count:3];
    EXPECT_EQ([stream failure_count], 3u);
    [stream reset_failure_count];
    EXPECT_EQ([stream failure_count], 0u);
    EXPECT_EQ(stream->resets, 1);
}
