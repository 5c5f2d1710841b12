#include "tests/support/class_test.hpp"
#include "tests/support/comma_locale.hpp"

// Every writer, by its first format and by given ones, onto each kind of stream: tests/encoding. No stream
// receives a list so far: each says so, on standard output.
TEST(Stream, lists_and_objects_are_written_and_strangers_are_not)
{
    const auto written = standard_output_of([] {
        ZEB_Stream *const stream = [[[ZEB_Stream alloc] init] autorelease];
        [stream set_double_format:"<%.2f>"];
        [stream write_double:1.5];
        [stream set_double_format:NULL];
        [stream write_double:1.5];
        [stream ZEB_send_delimited_list:ints({})];
        [stream write_object:ints({1, 2, 3})];
        [stream write_object_with_format:ints({1}) format:"ignored"];
        [stream set_list_separator:ZEB_Char_Span{"", 0}];
        [stream set_list_open_delimiter:ZEB_Char_Span{"<<<", 2}];
        [stream write_value:ints({1, 2, 3})];
        [stream write_object_text:ints({1})];
        [stream write_object_contents:ints({1})];
        [ints({1, 2, 3}) send_list_to_stream:stream];
        [stream write_object:[NSObject class]];
        [stream write_object:nil];
        [[ZEB_Error_Stream shared_error_stream] ZEB_receive_delimited_list:ints({1})];
        [stream ZEB_receive_list:ints({1})];
    });
    EXPECT_EQ(written,
              "<1.50>1.5{}{1, 2, 3}{1}<<123}<<1}<<1}123Need to implement ZEB_receive_delimited_list:\n"
              "Need to implement ZEB_receive_list:\n");
    EXPECT_EQ([ZEB_Stream shared_stream], [ZEB_Stream shared_stream]);
    EXPECT_STREQ([[ZEB_Stream shared_stream] date_format], "%m/%d/%Y %H:%M:%S");
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
    const Redirection input(stdin, "2.5 -3 4000000000 0.5 x [8.5 \xFF");
    ZEB_Stream *const stream = [ZEB_Error_Stream shared_error_stream];
    EXPECT_EQ([stream read_double], 2.5);
    EXPECT_EQ([stream read_int], -3);
    EXPECT_EQ([stream read_unsigned], 4000000000u);
    EXPECT_EQ([stream read_float], 0.5f);
    EXPECT_EQ([stream read_char_with_format:" %c"], 'x');
    EXPECT_EQ([stream read_double_with_format:" %*[%g[]%70g"], 8.5);
    EXPECT_EQ([stream read_char_with_format:" %c"], -1);
    EXPECT_EQ([stream read_int], 0);
}
