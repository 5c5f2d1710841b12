#include "tests/support/class_test.hpp"

/// Writes down each message between bars, and what it writes itself meanwhile.
@interface Listener : NSObject <ZEB_Message_Listener> {
@public
    std::string *messages;
    bool answers;
}
@end

@implementation Listener
- (void)message_written:(ZEB_Relay_Error_Stream *)stream
{
    *messages += "|" + std::string([[[[stream captured_text] text] NSString_value] UTF8String]);
    if (answers)
        [stream write_string:text("answered")];
}
@end

namespace
{

constexpr ZEB_Char_Span note = {"So", 2};

class Relay : public testing::Test
{
protected:
    /// Runs `write` with the listener set, and returns what the listener was told.
    template <class Write>
    std::string told(Write write)
    {
        [stream set_listener:listener];
        std::string messages;
        listener->messages = &messages;
        echoed = standard_error_of([&] { on_output = standard_output_of(write); });
        return messages;
    }

    ZEB_Relay_Error_Stream *const stream = [[[ZEB_Relay_Error_Stream alloc] init] autorelease];
    Listener *const listener = [[[Listener alloc] init] autorelease];
    std::string echoed, on_output;
};

} // namespace

TEST_F(Relay, every_write_is_echoed_and_told)
{
    const auto write = [&] {
        [stream write_int:1];
        [stream write_double_with_format:1 format:"%300.1f"];
        [stream write_string_with_format:text("") format:"%s"];
        [stream write_string:text("\xC3\xA9\xF0\x9F\x98\x80")];
        [stream write_string:text("\xE9")];
        [stream write_bytes:"" length:0];
        [stream write_unsigned_long:5];
        [stream ZEB_send_delimited_list:ints({1, 2})];
        [stream write_class:[ZEB_String class]];
        [stream write_selector_with_format:@selector(count) format:"(%s)"];
        [stream set_char_format:"[%c]"];
        [stream write_char:'c'];
    };
    const std::string wide_one = std::string(297, ' ') + "1.0", letters = "\xC3\xA9\xF0\x9F\x98\x80";
    const std::string all_told = told(write);
    EXPECT_EQ(all_told, "|1|" + wide_one + "|" + letters + "|\xC3\xA9||5|{|1|, |2|}|ZEB_String|(count)|[c]");
    EXPECT_EQ(echoed, "1" + wide_one + letters + "\xE9{1, 2}ZEB_String(count)c");
    EXPECT_EQ(on_output, "5");
    [stream set_echoes:0];
    EXPECT_EQ(told(write), all_told);
    EXPECT_EQ(echoed + on_output, "");
    listener->answers = true;
    EXPECT_EQ(told([&] { [stream write_int:7]; }), "|7");
}

TEST_F(Relay, diagnostics_are_printed_always_and_told_on_demand)
{
    const std::string line =
        diagnostic("Need to implement selector: ", "count", "ZEB_Relay_Error_Stream", "So");
    const auto diagnose = [&] { [stream need_to_implement:@selector(count) object:stream note:note]; };
    [stream set_echoes:0];
    for (const uint8_t captures : {0, 1, 0}) {
        [stream set_captures_diagnostics:captures];
        EXPECT_EQ(told(diagnose), captures ? "|" + line : "");
        EXPECT_EQ(echoed, line);
    }
    EXPECT_EQ([stream echoes], 0);
}

TEST_F(Relay, a_holder_keeps_its_own_text)
{
    ZEB_Message_Text *const own = [[[ZEB_Message_Text alloc] init] autorelease];
    ZEB_Message_Text *const first = [[[stream captured_text] retain] autorelease];
    told([&] { [stream write_int:1]; });
    [stream set_captured_text:own];
    told([&] { [stream write_int:2]; });
    ZEB_Message_Text *const copy = [[own copy] autorelease];
    EXPECT_TRUE([copy isEqual:own]);
    EXPECT_EQ([copy hash], [own hash]);
    EXPECT_FALSE([first isEqual:own]);
    EXPECT_FALSE([first isEqual:[own text]]);
    [own set_from_string:nil];
    EXPECT_EQ([[own text] count], 0u);
    EXPECT_STREQ([[copy description] UTF8String], "2");
}
