/// Text between the platform's strings and the framework's, against the plain chain of platform calls.
#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/reference/strings.hpp"
#include "tests/strings/random_text.hpp"
#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"
#include "tests/support/strings.hpp"

#include <gtest/gtest.h>

using namespace support;

namespace
{

using Units = std::vector<uint32_t>;

Units units_of(ZEB_Wide_Char_Vector *string)
{
    return {[string wide_char_data], [string wide_char_data] + [string count]};
}

ZEB_Wide_String *wide_of(const Units &units)
{
    return [[[ZEB_Wide_String alloc] init_as_copy_of_wide_chars:units.data()
                                                          count:static_cast<uint32_t>(units.size())]
        autorelease];
}

NSString *decoded_by_platform(const std::string &bytes, NSStringEncoding encoding = NSUTF8StringEncoding)
{
    NSData *const data = [[[NSData alloc] initWithBytes:bytes.data() length:bytes.size()] autorelease];
    return [[[NSString alloc] initWithData:data encoding:encoding] autorelease];
}

/// Both roads of a conversion, into targets with one and the same past.
class Bridge : public testing::Test
{
protected:
    void SetUp() override
    {
        to_wide = [[ZEB_Wide_String_Converter alloc] init];
        to_chars = [[ZEB_String_Converter alloc] init];
        wide = [[ZEB_Wide_String alloc] init];
        platform_wide = [[ZEB_Wide_String alloc] init];
        chars = [[ZEB_String alloc] init];
        platform_chars = [[ZEB_String alloc] init];
        [to_wide set_target:wide];
        [to_chars set_target:chars];
    }

    void TearDown() override
    {
        for (id object :
             {(id)to_wide, (id)to_chars, (id)wide, (id)platform_wide, (id)chars, (id)platform_chars})
            [object release];
    }

    void expect_same_decoding(const std::string &utf8)
    {
        if (utf8.empty())
            return;
        [to_wide set_from_bytes:utf8.data() length:static_cast<uint32_t>(utf8.size()) type:ZEB_ENCODING_UTF8];
        [platform_wide set_from_NSString:decoded_by_platform(utf8)];
        ASSERT_EQ(units_of(wide), units_of(platform_wide)) << testing::PrintToString(utf8);
        ASSERT_EQ([wide capacity], [platform_wide capacity]);
    }

    void expect_same_encoding(const Units &units)
    {
        if (units.empty())
            return;
        const std::vector<unichar> halves(units.begin(), units.end());
        ZEB_Wide_String *const source =
            [ZEB_Wide_String link_to_wide_chars:const_cast<uint32_t *>(units.data())
                                          count:static_cast<uint32_t>(units.size())];
        [to_chars set_from_wide_string:source];
        NSString *const platform_text = [NSString stringWithCharacters:halves.data() length:halves.size()];
        [platform_chars set_from_NSString:platform_text type:ZEB_ENCODING_UTF8];
        ASSERT_EQ(text_of(chars), text_of(platform_chars)) << testing::PrintToString(units);
        ASSERT_EQ([chars capacity], [platform_chars capacity]);
    }

    ZEB_Wide_String_Converter *to_wide;
    ZEB_String_Converter *to_chars;
    ZEB_Wide_String *wide, *platform_wide;
    ZEB_String *chars, *platform_chars;
};

} // namespace

TEST_F(Bridge, texts_of_any_form_come_over_as_the_platform_brings_them)
{
    std::mt19937 random(1);
    for (unsigned turn = 0; turn < 20000; ++turn) {
        std::string utf8;
        Units units;
        for (size_t length = random() % 40; length > 0; --length) {
            const uint32_t code_point =
                random() % 3 == 0 ? zeb_test::draw_code_point(random) : random() % 128;
            utf8 += reference::utf8_of(code_point);
            for (uint32_t unit : reference::utf16_of(code_point))
                units.push_back(unit);
        }
        if (turn % 2 == 0 && !utf8.empty()) {
            utf8[random() % utf8.size()] = zeb_test::utf8_alphabet[random() % zeb_test::utf8_alphabet.size()];
            units[random() % units.size()] = 0xD800 + random() % 0x800;
        }
        if (turn % 3 == 0)
            utf8 = zeb_test::draw_text(random, 1 + random() % 5, zeb_test::utf8_alphabet);
        NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
        expect_same_decoding(utf8);
        expect_same_encoding(units);
        [pool drain];
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST_F(Bridge, encoding_types_choose_the_platform_s_encodings)
{
    NSString *const platform_text = [NSString stringWithUTF8String:"a\xC3\xA9z"];
    const NSStringEncoding encodings[] = {NSASCIIStringEncoding, NSASCIIStringEncoding, NSUTF8StringEncoding,
                                          NSUnicodeStringEncoding, NSUTF8StringEncoding};
    ZEB_Wide_String *const source = [[[ZEB_Wide_String alloc] init_with_NSString:platform_text] autorelease];
    for (ZEB_Encoding_Type type = 0; type < 5; ++type) {
        NSData *const data = [platform_text dataUsingEncoding:encodings[type] allowLossyConversion:YES];
        const std::string bytes(static_cast<const char *>([data bytes]), [data length]);
        [chars set_from_NSString:platform_text type:type];
        EXPECT_EQ(text_of(chars), bytes) << type;
        [to_chars set_from_wide_string_with_encoding_type:source type:type];
        EXPECT_EQ(text_of(chars), bytes) << type;
        NSString *const decoded = decoded_by_platform(bytes, encodings[type]);
        EXPECT_TRUE([[chars NSString_value_with_encoding_type:type] isEqualToString:decoded]);
        EXPECT_TRUE([[chars NSMutableString_value_with_encoding_type:type] isEqualToString:decoded]);
        ZEB_String *const made = [ZEB_String string_with_NSString:platform_text type:type];
        EXPECT_EQ(text_of(made), bytes);
        EXPECT_EQ([made capacity], [made count]);
        [to_wide set_from_string_with_encoding_type:chars type:type];
        [platform_wide set_from_NSString:decoded];
        EXPECT_EQ(units_of(wide), units_of(platform_wide)) << type;
    }
    EXPECT_TRUE([[source NSString_value] isEqualToString:platform_text]);
    EXPECT_TRUE([[source NSMutableString_value] isEqualToString:platform_text]);
    [chars set_from_NSString:platform_text type:2];
    EXPECT_TRUE([[chars NSString_utf8_value] isEqualToString:platform_text]);
    [chars set_from_NSString:platform_text type:5];
    EXPECT_EQ([chars count], 0u);
    EXPECT_EQ([text("a") NSString_value_with_encoding_type:5], nil);
    [to_wide set_from_string_with_encoding_type:text("a") type:5];
    EXPECT_EQ([wide count], 0u);
}

TEST_F(Bridge, nothing_and_odd_text_give_what_the_platform_gives)
{
    EXPECT_EQ([[ZEB_String string_with_NSString:nil type:2] count], 0u);
    EXPECT_EQ([[ZEB_String string_with_NSString:@"" type:2] capacity], 0u);
    ZEB_Wide_String *const of_nil = [[[ZEB_Wide_String alloc] init_with_NSString:nil] autorelease];
    EXPECT_EQ([of_nil count], 0u);
    const id number = [NSNumber numberWithInt:5];
    EXPECT_EQ([[ZEB_String string_with_NSString:number type:2] count], 0u);
    ZEB_Wide_String *const of_number = [[[ZEB_Wide_String alloc] init_with_NSString:number] autorelease];
    EXPECT_EQ([of_number count], 0u);
    [of_nil append_wide_char:'x'];
    [of_nil set_from_NSString:number];
    EXPECT_EQ([of_nil count], 0u);
    EXPECT_TRUE([[wide NSString_value] isEqualToString:@""]);
    EXPECT_TRUE([[wide NSMutableString_value] isEqualToString:@""]);
    EXPECT_TRUE([[chars NSString_value] isEqualToString:@""]);
    EXPECT_EQ([text("\xC3") NSString_utf8_value], nil);

    ZEB_String *const with_null = text(std::string("a\0b", 3));
    EXPECT_EQ([[with_null NSString_value] length], 3u);
    [to_wide copy_string:with_null];
    EXPECT_EQ(units_of(wide), (Units{'a', 0, 'b'}));
    [to_chars copy_wide_string:wide];
    EXPECT_EQ(text_of(chars), text_of(with_null));

    EXPECT_EQ([[wide_of({0x1F600}) NSString_value] characterAtIndex:0], 0xF600);
    [to_wide set_from_string:text("")];
    EXPECT_EQ([wide count], 0u);
    [to_chars set_from_wide_string:wide];
    EXPECT_EQ([chars count], 0u);
    [to_wide set_target:nil];
    [to_wide set_from_string:with_null];
    EXPECT_EQ([to_wide target], nil);
    [to_chars copy_c_string:"xy" length:2];
    EXPECT_EQ(text_of(chars), "xy");
    [to_chars set_contents_of_array:with_null];
    EXPECT_EQ(text_of(chars), text_of(with_null));
}

TEST_F(Bridge, links_are_detached_by_8_bit_text_and_refuse_32_bit_text)
{
    char viewed[] = "viewed";
    uint32_t units[] = {'v', 'w'};
    const auto char_link = [&] { return [ZEB_String link_to_chars:viewed count:6]; };
    ZEB_Wide_String *const wide_link = [ZEB_Wide_String link_to_wide_chars:units count:2];

    for (const uint32_t unit : {uint32_t{'a'}, uint32_t{0xE9}}) {
        ZEB_String *const link = char_link();
        [to_chars set_target:link];
        [to_chars set_from_wide_string:wide_of({unit})];
        EXPECT_EQ(text_of(link), reference::utf8_of(unit));
        EXPECT_EQ([link link_marker], 0u);
        EXPECT_EQ([link capacity], 16u);
    }
    ZEB_String *const emptied = char_link();
    [emptied set_from_NSString:nil type:2];
    EXPECT_EQ([emptied count], 0u);
    EXPECT_EQ([emptied link_marker], 10000u);
    EXPECT_STREQ(viewed, "viewed");

    const std::string refusal = fix_line("set_from_NSString:", "ZEB_Wide_String",
                                         "Cannot update length through link, no adjustment made.");
    [to_wide set_target:wide_link];
    for (const char *bytes : {"abc", "\xC3\xA9", "\xFF", "\xEF\xBB\xBFz"}) {
        EXPECT_EQ(standard_error_of([&] { [to_wide set_from_string:text(bytes)]; }), refusal) << bytes;
        EXPECT_EQ(units_of(wide_link), (Units{'v', 'w'}));
    }
    EXPECT_EQ(standard_error_of([&] { [wide_link set_from_NSString:@"abc"]; }), refusal);
    EXPECT_EQ(standard_error_of([&] { [to_wide set_from_string:text("")]; }), "");
    EXPECT_EQ([wide_link count], 0u);
}

TEST(Standard_Directories, are_the_platform_s_with_a_null_behind)
{
    ZEB_String *const path = text("old");
    const auto expect_path = [&](NSString *expected) {
        EXPECT_EQ(text_of(path), expected != nil ? [expected UTF8String] : "");
        ASSERT_GT([path capacity], [path count]);
        const uint32_t end = [path count];
        EXPECT_EQ([path char_at_index:end], '\0');
    };
    [ZEB_String set_to_home_directory:path];
    expect_path(NSHomeDirectory());
    [ZEB_String set_to_library_directory:path];
    expect_path(
        [NSSearchPathForDirectoriesInDomains(NSLibraryDirectory, NSUserDomainMask, YES) objectAtIndex:0]);
    [ZEB_String set_to_documents_directory:path];
    expect_path(
        [NSSearchPathForDirectoriesInDomains(NSDocumentDirectory, NSUserDomainMask, YES) objectAtIndex:0]);
    [ZEB_String set_to_home_directory_of_user:path user_name:text("root")];
    expect_path(NSHomeDirectoryForUser(@"root"));
    for (ZEB_String *user : {text("no such user"), text("\xFF"), text(""), (ZEB_String *)nil}) {
        [path copy_c_string:"old" length:3];
        [ZEB_String set_to_home_directory_of_user:path user_name:user];
        expect_path(nil);
    }
}
