/// Text between the platform's strings and the framework's, against the plain chain of platform calls.
#import <Korvane_ZEB/Korvane_ZEB.h>
#import <Korvane_ZEB/ZEB_String_Views.hpp>

#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"
#include "tests/support/sanitizer.hpp"
#include "tests/support/strings.hpp"
#include "tests/support/vector_targets.hpp"

#include <random>

using namespace support;
using zeb::view;

namespace
{

NSString *decoded_by_platform(const std::string &bytes, NSStringEncoding encoding = NSUTF8StringEncoding)
{
    NSData *const data = [NSData dataWithBytes:bytes.data() length:bytes.size()];
    return [[[NSString alloc] initWithData:data encoding:encoding] autorelease];
}

/// Both roads of a conversion, into targets with one and the same past.
class Bridge : public testing::Test
{
protected:
    Bridge()
    {
        [to_wide set_target:wide];
        [to_chars set_target:chars];
    }

    void expect_same_decoding(const std::string &utf8)
    {
        [to_wide set_from_bytes:utf8.data() length:static_cast<uint32_t>(utf8.size()) type:ZEB_ENCODING_UTF8];
        [platform_wide set_from_NSString:decoded_by_platform(utf8)];
        ASSERT_EQ(view(wide), view(platform_wide)) << testing::PrintToString(utf8);
        ASSERT_EQ([wide capacity], [platform_wide capacity]);
    }

    void expect_same_encoding(const std::u32string &units)
    {
        ZEB_Wide_String *const source = wide_text(units);
        [to_chars set_from_wide_string:source];
        [platform_chars set_from_NSString:[source NSString_value] type:ZEB_ENCODING_UTF8];
        ASSERT_EQ(view(chars), view(platform_chars)) << testing::PrintToString(units);
        ASSERT_EQ([chars capacity], [platform_chars capacity]);
    }

    ZEB_Wide_String_Converter *const to_wide = [[[ZEB_Wide_String_Converter alloc] init] autorelease];
    ZEB_String_Converter *const to_chars = [[[ZEB_String_Converter alloc] init] autorelease];
    ZEB_Wide_String *const wide = wide_text(U""), *const platform_wide = wide_text(U"");
    ZEB_String *const chars = [[[ZEB_String alloc] init] autorelease];
    ZEB_String *const platform_chars = [[[ZEB_String alloc] init] autorelease];
};

} // namespace

TEST_F(Bridge, texts_of_any_form_come_over_as_the_platform_brings_them)
{
    // Characters of each length, byte-order marks, and what is ill-formed, also because it is cut.
    const std::string bytes = std::string(60, 'a') + "\xC3\xA9\xE2\x82\xACz\xF0\x9F\x98\x80\xEF\xBB\xBFz\xC3 "
                                                     "\xED\xA0\x80 \xC0\x80 \xF5 \xFF";
    const std::u32string units = std::u32string(60, 'a') + U"\u00E9\u20ACz\uFEFFz\uFFFEz" +
                                 std::u32string{0xD83D, 0xDE00, 'z', 0xD83D, 'z', 0xDE00};
    zeb_test::on_each_target([&] {
        std::mt19937 random(1);
        const auto piece_of = [&](const auto &text) {
            return text.substr(random() % text.size(), random() % 40);
        };
        for (unsigned turn = 0; turn < 2000 / slowness; ++turn) {
            NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
            expect_same_decoding(piece_of(bytes) + piece_of(bytes) + 'z');
            expect_same_encoding(piece_of(units) + piece_of(units) + U'z');
            [pool drain];
            ASSERT_FALSE(HasFatalFailure());
        }
    });
}

TEST_F(Bridge, encoding_types_choose_the_platform_s_encodings)
{
    NSString *const given = [NSString stringWithUTF8String:"a\xC3\xA9z"];
    const NSStringEncoding encodings[] = {NSASCIIStringEncoding, NSASCIIStringEncoding, NSUTF8StringEncoding,
                                          NSUnicodeStringEncoding, NSUTF8StringEncoding};
    ZEB_Wide_String *const source = [[[ZEB_Wide_String alloc] init_with_NSString:given] autorelease];
    EXPECT_TRUE([[source NSString_value] isEqualToString:given]);
    EXPECT_TRUE([[source NSMutableString_value] isEqualToString:given]);
    EXPECT_TRUE([[text("a\xC3\xA9z") NSString_utf8_value] isEqualToString:given]);
    for (ZEB_Encoding_Type type = 0; type < 5; ++type) {
        SCOPED_TRACE(type);
        NSData *const data = [given dataUsingEncoding:encodings[type] allowLossyConversion:YES];
        const std::string bytes(static_cast<const char *>([data bytes]), [data length]);
        NSString *const decoded = decoded_by_platform(bytes, encodings[type]);
        [chars set_from_NSString:given type:type];
        EXPECT_EQ(view(chars), bytes);
        [to_chars set_from_wide_string_with_encoding_type:source type:type];
        EXPECT_EQ(view(chars), bytes);
        EXPECT_TRUE([[chars NSString_value_with_encoding_type:type] isEqualToString:decoded]);
        EXPECT_TRUE([[chars NSMutableString_value_with_encoding_type:type] isEqualToString:decoded]);
        ZEB_String *const made = [ZEB_String string_with_NSString:given type:type];
        EXPECT_EQ(view(made), bytes);
        EXPECT_EQ([made capacity], [made count]);
        [to_wide set_from_string_with_encoding_type:chars type:type];
        [platform_wide set_from_NSString:decoded];
        EXPECT_EQ(view(wide), view(platform_wide));
    }
    [chars set_from_NSString:given type:5];
    [to_wide set_from_string_with_encoding_type:text("a") type:5];
    EXPECT_EQ([chars count] + [wide count], 0u);
    EXPECT_EQ([text("a") NSString_value_with_encoding_type:5], nil);
}

TEST_F(Bridge, nothing_gives_nothing)
{
    const id nothings[] = {nil, @"", [NSNumber numberWithInt:5]};
    for (const id none : nothings) {
        EXPECT_EQ([[ZEB_String string_with_NSString:none type:2] capacity], 0u);
        ZEB_Wide_String *const emptied = [[[ZEB_Wide_String alloc] init_with_NSString:none] autorelease];
        EXPECT_EQ([emptied count], 0u);
        [emptied append_wide_char:'x'];
        [emptied set_from_NSString:none];
        EXPECT_EQ([emptied count], 0u);
    }
    EXPECT_TRUE([[wide NSString_value] isEqualToString:@""]);
    EXPECT_TRUE([[wide NSMutableString_value] isEqualToString:@""]);
    EXPECT_TRUE([[chars NSString_value] isEqualToString:@""]);
    EXPECT_EQ([text("\xC3") NSString_utf8_value], nil);
    [wide append_wide_char:'x'];
    [to_wide set_from_string:chars];
    EXPECT_EQ([wide count], 0u);
    [chars append_char:'x'];
    [to_chars set_from_wide_string:wide];
    EXPECT_EQ([chars count], 0u);
}

TEST_F(Bridge, odd_text_gives_what_the_platform_gives)
{
    ZEB_String *const with_null = text(std::string("a\0b", 3));
    EXPECT_EQ([[with_null NSString_value] length], 3u);
    [to_wide copy_string:with_null];
    EXPECT_EQ(view(wide), std::u32string_view(U"a\0b", 3));
    [to_chars copy_wide_string:wide];
    EXPECT_EQ(view(chars), view(with_null));
    EXPECT_EQ([[wide_text(U"\U0001F600") NSString_value] characterAtIndex:0], 0xF600);
    [to_wide set_target:nil];
    [to_wide set_from_string:with_null];
    EXPECT_EQ([to_wide target], nil);
    [to_chars copy_c_string:"xy" length:2];
    EXPECT_EQ(view(chars), "xy");
    [to_chars set_contents_of_array:with_null];
    EXPECT_EQ(view(chars), view(with_null));
}

TEST_F(Bridge, links_are_detached_by_8_bit_text_and_refuse_32_bit_text)
{
    char viewed[] = "viewed";
    uint32_t units[] = {'v', 'w'};
    for (const char *bytes : {"a", "\xC3\xA9"}) {
        ZEB_String *const link = [ZEB_String link_to_chars:viewed count:6];
        [to_chars set_target:link];
        [to_wide set_from_string:text(bytes)];
        [to_chars set_from_wide_string:wide];
        EXPECT_EQ(view(link), bytes);
        EXPECT_EQ([link link_marker], 0u);
        EXPECT_EQ([link capacity], 16u);
    }
    ZEB_String *const emptied = [ZEB_String link_to_chars:viewed count:6];
    [emptied set_from_NSString:nil type:2];
    EXPECT_EQ([emptied count], 0u);
    EXPECT_EQ([emptied link_marker], 10000u);
    EXPECT_STREQ(viewed, "viewed");

    ZEB_Wide_String *const wide_link = [ZEB_Wide_String link_to_wide_chars:units count:2];
    const std::string refusal = fix_line("set_from_NSString:", "ZEB_Wide_String",
                                         "Cannot update length through link, no adjustment made.");
    [to_wide set_target:wide_link];
    for (const char *bytes : {"abc", "\xC3\xA9", "\xFF", "\xEF\xBB\xBFz"}) {
        EXPECT_EQ(standard_error_of([&] { [to_wide set_from_string:text(bytes)]; }), refusal) << bytes;
        EXPECT_EQ(view(wide_link), U"vw");
    }
    EXPECT_EQ(standard_error_of([&] { [wide_link set_from_NSString:@"abc"]; }), refusal);
    EXPECT_EQ(standard_error_of([&] { [to_wide set_from_string:text("")]; }), "");
    EXPECT_EQ([wide_link count], 0u);
}

TEST(Standard_Directories, are_the_platform_s_with_a_null_behind)
{
    ZEB_String *const path = text("old");
    const auto expect_path = [&](NSString *expected) {
        EXPECT_EQ(view(path), expected != nil ? [expected UTF8String] : "");
        ASSERT_GT([path capacity], [path count]);
        const uint32_t end = [path count];
        EXPECT_EQ([path char_data][end], '\0');
    };
    const auto found = [](NSSearchPathDirectory directory) {
        return [NSSearchPathForDirectoriesInDomains(directory, NSUserDomainMask, YES) objectAtIndex:0];
    };
    [ZEB_String set_to_home_directory:path];
    expect_path(NSHomeDirectory());
    [ZEB_String set_to_library_directory:path];
    expect_path(found(NSLibraryDirectory));
    [ZEB_String set_to_documents_directory:path];
    expect_path(found(NSDocumentDirectory));
    [ZEB_String set_to_home_directory_of_user:path user_name:text("root")];
    expect_path(NSHomeDirectoryForUser(@"root"));
    for (ZEB_String *user : {text("no such user"), text("\xFF"), text(""), (ZEB_String *)nil}) {
        [path copy_c_string:"old" length:3];
        [ZEB_String set_to_home_directory_of_user:path user_name:user];
        expect_path(nil);
    }
}
