#include "tests/support/class_test.hpp"

static constexpr ZEB_Char_Span no_note = {"", 0}, note = {"Two words, not this", 9};

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

TEST(Error_Stream, every_writer_goes_through_one_operation_but_for_unsigned_longs)
{
    Gathering_Error_Stream *const gathering = [[[Gathering_Error_Stream alloc] init] autorelease];
    std::string gathered, on_error;
    gathering->gathered = &gathered;
    ZEB_Error_Stream *const streams[] = {[ZEB_Error_Stream shared_error_stream], gathering};
    for (ZEB_Error_Stream *const stream : streams) {
        const auto on_output = standard_output_of([&] {
            on_error += standard_error_of([=] {
                [stream write_int:1];
                [stream write_char_with_format:'d' format:"<%c>"];
                [stream set_char_format:"[%c]"];
                [stream write_char:'e'];
                [stream set_char_format:NULL];
                [stream write_selector:@selector(set_count:)];
                [stream write_class_with_format:[ZEB_String class] format:"<%s>"];
                [stream write_unsigned_long:5];
                [stream write_unsigned_long_with_format:6 format:"(%lu)"];
            });
        });
        EXPECT_EQ(on_output, "5(6)");
    }
    EXPECT_EQ(on_error, "1<d>eset_count:<ZEB_String>");
    EXPECT_EQ(gathered, on_error);

    // What is raised while another diagnostic is written goes on without the stream, and once.
    gathering->is_in_trouble = true;
    gathered.clear();
    const auto overload = [&] { [gathering need_to_overload:@selector(count) object:nil note:no_note]; };
    EXPECT_EQ(standard_error_of(overload),
              diagnostic("Need to implement selector: ", "init", "Gathering_Error_Stream", ""));
    EXPECT_EQ(gathered, diagnostic("Need to overload selector: ", "count", "", ""));
    EXPECT_EQ([gathering warning_count], 2u);
}

TEST(Error_Stream, each_diagnostic_is_one_line_and_one_count)
{
    ZEB_Error_Stream *const stream = [ZEB_Error_Stream shared_error_stream];
    [stream reset_warning_count];
    const auto lines = standard_error_of([=] {
        [stream need_to_overload:@selector(set_count:) object:stream note:note];
        [stream need_to_implement:@selector(count) object:stream note:no_note];
        [stream need_to_fix_algorithm:@selector(count) object:stream note:ZEB_Char_Span{"!?", 1}];
        [stream need_to_overload:NULL object:nil note:no_note];
        EXPECT_EQ([ZEB_Error_Stream shared_error_stream_if_verbose], stream);
        [stream set_verbose:0];
        [stream need_to_implement:@selector(count) object:stream note:note];
    });
    EXPECT_EQ(lines,
              "Need to overload selector: set_count: for object of class: ZEB_Error_Stream. Two words\n"
              "Need to implement selector: count for object of class: ZEB_Error_Stream.\n"
              "Need to fix algorithm in selector: count for object of class: ZEB_Error_Stream. !\n"
              "Need to overload selector:  for object of class: .\n");
    EXPECT_EQ([ZEB_Error_Stream shared_error_stream_if_verbose], nil);
    [stream set_verbose:1];
    EXPECT_EQ([stream warning_count], 5u);
}
