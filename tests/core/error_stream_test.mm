#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"
#include "tests/support/ints.hpp"

#include <gtest/gtest.h>

using support::diagnostic;
using support::standard_error_of;
using support::standard_output_of;

namespace
{

constexpr ZEB_Char_Span no_note = {"", 0};
constexpr ZEB_Char_Span note = {"Two words, not this", 9};

} // namespace

/// Keeps what it is given, and is in trouble itself when it is asked for that.
@interface Gathering_Error_Stream : ZEB_Error_Stream {
@public
    std::string *gathered;
    bool is_in_trouble;
}
@end

@implementation Gathering_Error_Stream
- (void)put_bytes:(const char *)bytes length:(uint32_t)length
{
    gathered->append(bytes, length);
    if (is_in_trouble && *bytes == '\n')
        [self need_to_implement:@selector(init) object:self note:no_note];
}
@end

TEST(Error_Stream, every_writer_and_diagnostic_goes_through_one_operation)
{
    Gathering_Error_Stream *const stream = [[[Gathering_Error_Stream alloc] init] autorelease];
    std::string gathered;
    stream->gathered = &gathered;
    const auto on_error = standard_error_of([&] {
        [stream write_char:'c'];
        [stream write_int:-1];
        [stream write_double_with_format:2.5 format:"<%g>"];
        [stream write_class:[ZEB_String class]];
        [stream need_to_overload:@selector(count) object:stream note:note];
        stream->is_in_trouble = true;
        [stream need_to_overload:@selector(count) object:nil note:no_note];
    });
    EXPECT_EQ(gathered,
              "c-1<2.5>ZEB_String" +
                  diagnostic("Need to overload selector: ", "count", "Gathering_Error_Stream", "Two words") +
                  "Need to overload selector: count for object of class: .\n");
    // What is raised while another is written goes on without the stream, and once.
    EXPECT_EQ(on_error, diagnostic("Need to implement selector: ", "init", "Gathering_Error_Stream", ""));
    EXPECT_EQ([stream warning_count], 3u);
}

TEST(Error_Stream, each_diagnostic_is_one_line_and_one_count)
{
    ZEB_Error_Stream *const stream = [ZEB_Error_Stream shared_error_stream];
    ZEB_Byte_Array *const object = [ZEB_Byte_Array array_with_capacity:0];
    const SEL selector = @selector(insert_byte:at_index:);
    const auto line = [](const char *lead, const char *told) {
        return diagnostic(lead, "insert_byte:at_index:", "ZEB_Byte_Array", told);
    };
    [stream reset_warning_count];
    EXPECT_EQ(standard_error_of([&] { [stream need_to_overload:selector object:object note:note]; }),
              line("Need to overload selector: ", "Two words"));
    EXPECT_EQ(standard_error_of([&] { [stream need_to_implement:selector object:object note:no_note]; }),
              line("Need to implement selector: ", ""));
    EXPECT_EQ(standard_error_of([&] {
                  [stream need_to_fix_algorithm:selector object:object note:ZEB_Char_Span{"!?", 1}];
              }),
              line("Need to fix algorithm in selector: ", "!"));
    EXPECT_EQ(standard_error_of([&] { [stream need_to_overload:NULL object:nil note:no_note]; }),
              "Need to overload selector:  for object of class: .\n");
    EXPECT_EQ([ZEB_Error_Stream shared_error_stream_if_verbose], stream);
    [stream set_verbose:0];
    EXPECT_EQ([ZEB_Error_Stream shared_error_stream_if_verbose], nil);
    EXPECT_EQ(standard_error_of([&] { [stream need_to_implement:selector object:object note:note]; }), "");
    [stream set_verbose:1];
    EXPECT_EQ([stream warning_count], 5u);
    [stream increment_warning_count];
    EXPECT_EQ([stream warning_count], 6u);
}

TEST(Error_Stream, writes_onto_standard_error_but_for_unsigned_longs)
{
    ZEB_Error_Stream *const stream = [ZEB_Error_Stream shared_error_stream];
    std::string on_output;
    const auto on_error = standard_error_of([&] {
        on_output = standard_output_of([&] {
            [stream write_int:1];
            [stream write_char:'c'];
            [stream write_char_with_format:'d' format:"<%c>"];
            [stream set_char_format:"[%c]"];
            [stream write_char:'e'];
            [stream set_char_format:NULL];
            [stream write_object:support::ints({1, 2})];
            [stream write_selector:@selector(set_count:)];
            [stream write_class_with_format:[ZEB_String class] format:"<%s>"];
            [stream write_unsigned_long:5];
            [stream write_unsigned_long_with_format:6 format:"(%lu)"];
        });
    });
    EXPECT_EQ(on_error, "1c<d>e{1, 2}set_count:<ZEB_String>");
    EXPECT_EQ(on_output, "5(6)");
}
