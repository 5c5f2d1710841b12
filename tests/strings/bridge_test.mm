/// Text between the platform's strings and the framework's, against the plain chain of platform calls.
#include "tests/support/class_test.hpp"
#import <Korvane_ZEB/ZEB_String_Views.hpp>

#include "tests/support/sanitizer.hpp"
#include "tests/support/vector_targets.hpp"

#include <random>

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

    /// A text of code points in all its forms, of which the platform tells one by the other.
    void expect_all_forms(const std::u32string &code_points)
    {
        std::vector<unichar> units;
        for (const char32_t c : code_points) {
            if (c >= 0x10000)
                units.push_back(static_cast<unichar>(0xD7C0 + c / 1024));
            units.push_back(static_cast<unichar>(c < 0x10000 ? c : 0xDC00 + c % 1024));
        }
        NSString *const given = [NSString stringWithCharacters:units.data() length:units.size()];
        NSData *const data = [given dataUsingEncoding:NSUTF8StringEncoding];
        const std::string utf8(static_cast<const char *>([data bytes]), [data length]);
        const std::u32string utf16(units.begin(), units.end());
        expect_same_decoding(utf8);
        expect_same_encoding(utf16);
        ASSERT_EQ([other set_code_points_from_utf8:text(utf8)], 1);
        ASSERT_EQ(view(other), code_points);
        [other split_to_surrogate_pairs];
        ASSERT_EQ(view(other), utf16);
        [other join_surrogate_pairs];
        ASSERT_EQ([other write_code_points_as_utf8:back], 1);
        ASSERT_EQ(view(back), utf8);
    }

    /// Bytes that may be no UTF-8: what is taken for it is given back by its code points.
    void expect_nothing_ill_formed(const std::string &bytes)
    {
        NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
        ZEB_String *const given = text(bytes);
        const bool is_valid = [given is_valid_utf8];
        EXPECT_EQ([other set_code_points_from_utf8:given], is_valid);
        EXPECT_TRUE(!is_valid || ([other write_code_points_as_utf8:back] == 1 && view(back) == bytes))
            << testing::PrintToString(bytes);
        expect_same_decoding(bytes);
        [pool drain];
    }

    ZEB_Wide_String_Converter *const to_wide = [[[ZEB_Wide_String_Converter alloc] init] autorelease];
    ZEB_String_Converter *const to_chars = [[[ZEB_String_Converter alloc] init] autorelease];
    ZEB_Wide_String *const wide = wide_text(U""), *const platform_wide = wide_text(U"");
    ZEB_Wide_String *const other = wide_text(U"");
    ZEB_String *const chars = [[[ZEB_String alloc] init] autorelease], *const back = text("");
    ZEB_String *const platform_chars = [[[ZEB_String alloc] init] autorelease];
};

} // namespace

TEST_F(Bridge, texts_of_any_form_come_over_as_the_platform_brings_them)
{
    // Characters of each length, byte-order marks, and what is ill-formed, also because it is cut.
    const std::string bytes = std::string(60, 'a') + "\xC3\xA9\xE2\x82\xACz\xF0\x9F\x98\x80\xEF\xBB\xBFz\xC3 "
                                                     "\xED\xA0\x80 \xC0\x80 \xF5 \xFF";
    const std::u32string units = std::u32string(60, 'a') + U"\u00E9\u20ACz\uFEFFz\uFFFEz" +
                                 std::u32string{0xD83D, 0xDE00, 'z', 0xD83D, 'z', 0xDE00, 0xABCD0041};
    const std::u32string scalars =
        std::u32string(60, 'a') + U"\u00E9\u20ACz\U0001F600z\U0010FFFFz" + std::u32string{0, 'z'};
    zeb_test::on_each_target([&] {
        std::mt19937 random(1);
        const auto piece_of = [&](const auto &text) {
            return text.substr(random() % text.size(), random() % 40);
        };
        for (unsigned turn = 0; turn < 2000 / slowness; ++turn) {
            NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
            expect_same_decoding(piece_of(bytes) + piece_of(bytes) + 'z');
            expect_same_encoding(piece_of(units) + piece_of(units) + U'z');
            expect_all_forms(U'z' + piece_of(scalars) + piece_of(scalars));
            [pool drain];
            ASSERT_FALSE(HasFatalFailure());
        }
    });
}

TEST_F(Bridge, every_character_takes_every_form)
{
    std::mt19937 random(5);
    for (char32_t next = 0; next <= 0x10FFFF; next += 100 * (slowness - 1)) {
        NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
        std::u32string text = U"z";
        for (const char32_t end = next + random() % 128; next < end && next <= 0x10FFFF; ++next)
            if (next < 0xD800 || next > 0xDFFF)
                text += next;
        expect_all_forms(text);
        [pool drain];
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST_F(Bridge, forms_are_taken_from_well_formed_text_alone)
{
    for (unsigned pair = 0; pair < 0x10000; pair += 2 * slowness - 1)
        expect_nothing_ill_formed({static_cast<char>(pair / 256), static_cast<char>(pair % 256)});
    // Where the rules of UTF-8 change.
    const std::string bounds =
        "a\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xED\xEE\xEF\xF0\xF1\xF4\xF5\xF8\xFE\xFF";
    for (const std::string lead : {"", "\xF0", "\xF1", "\xF4", "\xF5", "\xF8"})
        for (const char second : bounds)
            for (const char third : bounds)
                for (const char last : bounds)
                    expect_nothing_ill_formed(lead + second + third + last);
    const std::string well_formed = "plain text \xC3\xA9\xE2\x82\xAC and \xF0\x9F\x98\x80 at its end";
    for (size_t at = 0; at < well_formed.size(); ++at)
        for (const char bound : bounds)
            expect_nothing_ill_formed(std::string(well_formed).replace(at, 1, 1, bound));
}

TEST_F(Bridge, what_is_no_character_has_no_utf8_and_stays_as_it_is)
{
    [back copy_c_string:"kept" length:4];
    [other copy_c_string:"kept" length:4];
    for (const uint32_t none : {0xD800u, 0xDFFFu, 0x110000u, UINT32_MAX})
        EXPECT_EQ([wide_text({'a', none}) write_code_points_as_utf8:back], 0);
    EXPECT_EQ(view(back), "kept");
    EXPECT_EQ([other set_code_points_from_utf8:text("xyz\xC3")], 0);
    EXPECT_EQ(view(other), U"kept");
    ZEB_Wide_String *const mixed = wide_text({0xD800, 0x110000, 0x1F600, 'x', 0xDC00, 0xD83D});
    [mixed join_surrogate_pairs];
    [mixed split_to_surrogate_pairs];
    EXPECT_EQ(view(mixed), (std::u32string{0xD800, 0x110000, 0xD83D, 0xDE00, 'x', 0xDC00, 0xD83D}));
}

TEST_F(Bridge, encoding_types_choose_the_platform_s_encodings)
{
    NSString *const given = [NSString stringWithUTF8String:"a\xC3\xA9z"];
    const NSStringEncoding encodings[] = {NSASCIIStringEncoding, NSASCIIStringEncoding, NSUTF8StringEncoding,
                                          NSUnicodeStringEncoding, NSUTF8StringEncoding};
    ZEB_Wide_String *const source = [[[ZEB_Wide_String alloc] init_with_NSString:given] autorelease];
    NSString *const copies[] = {
        [source NSString_value], [source NSMutableString_value], [text("a\xC3\xA9z") NSString_utf8_value]};
    for (NSString *const same : copies)
        EXPECT_TRUE([same isEqualToString:given]);
    for (ZEB_Encoding_Type type = 0; type < 5; ++type) {
        SCOPED_TRACE(type);
        NSData *const data = [given dataUsingEncoding:encodings[type] allowLossyConversion:YES];
        const std::string bytes(static_cast<const char *>([data bytes]), [data length]);
        NSString *const decoded = decoded_by_platform(bytes, encodings[type]);
        [to_chars set_from_wide_string_with_encoding_type:source type:type];
        [platform_chars set_from_NSString:given type:type];
        ZEB_String *const made = [ZEB_String string_with_NSString:given type:type];
        for (ZEB_String *const encoded : {chars, platform_chars, made})
            EXPECT_EQ(view(encoded), bytes);
        EXPECT_EQ([made capacity], [made count]);
        EXPECT_TRUE([[chars NSString_value_with_encoding_type:type] isEqualToString:decoded]);
        EXPECT_TRUE([[chars NSMutableString_value_with_encoding_type:type] isEqualToString:decoded]);
        [to_wide set_from_string_with_encoding_type:chars type:type];
        [platform_wide set_from_NSString:decoded];
        EXPECT_EQ(view(wide), view(platform_wide));
    }
    [chars set_from_NSString:given type:5];
    [to_wide set_from_string_with_encoding_type:text("a") type:5];
    EXPECT_EQ([chars count] + [wide count], 0u);
    EXPECT_EQ([text("a") NSString_value_with_encoding_type:5], nil);
}

TEST_F(Bridge, nothing_gives_nothing_and_odd_text_what_the_platform_gives)
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
    NSString *const empty[] = {[wide NSString_value], [wide NSMutableString_value], [chars NSString_value]};
    for (NSString *const none : empty)
        EXPECT_TRUE([none isEqualToString:@""]);
    EXPECT_EQ([text("\xC3") NSString_utf8_value], nil);
    EXPECT_EQ([[wide_text(U"\U0001F600") NSString_value] characterAtIndex:0], 0xF600);

    ZEB_String *const with_null = text(std::string("a\0b", 3));
    EXPECT_EQ([[with_null NSString_value] length], 3u);
    [to_wide copy_string:with_null];
    EXPECT_EQ(view(wide), std::u32string_view(U"a\0b", 3));
    [to_chars copy_wide_string:wide];
    EXPECT_EQ(view(chars), view(with_null));
    [to_wide set_from_string:platform_chars];
    EXPECT_EQ([wide count], 0u);
    [to_chars set_from_wide_string:wide];
    EXPECT_EQ([chars count], 0u);
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
        EXPECT_TRUE([link link_marker] == 0 && [link capacity] == 16);
    }
    ZEB_String *const emptied = [ZEB_String link_to_chars:viewed count:6];
    [emptied set_from_NSString:nil type:2];
    EXPECT_TRUE([emptied count] == 0 && [emptied link_marker] == 10000);
    EXPECT_STREQ(viewed, "viewed");

    ZEB_Wide_String *const link = [ZEB_Wide_String link_to_wide_chars:units count:2];
    const std::string refusal = fix_line("set_from_NSString:", "ZEB_Wide_String",
                                         "Cannot update length through link, no adjustment made.");
    [to_wide set_target:link];
    for (const char *bytes : {"abc", "\xC3\xA9", "\xFF", "\xEF\xBB\xBFz"})
        EXPECT_EQ(standard_error_of([&] { [to_wide set_from_string:text(bytes)]; }), refusal) << bytes;
    EXPECT_EQ(standard_error_of([&] { [link set_from_NSString:@"abc"]; }), refusal);
    EXPECT_EQ(view(link), U"vw");
    EXPECT_EQ(standard_error_of([&] { [to_wide set_from_string:text("")]; }), "");
    EXPECT_EQ([link count], 0u);
}

TEST(Standard_Directories, are_the_platform_s_with_a_null_behind)
{
    ZEB_String *const path = text("old");
    const auto expect_path = [&](NSString *expected) {
        EXPECT_EQ(view(path), expected != nil ? [expected UTF8String] : "");
        EXPECT_TRUE([path capacity] > [path count] && *view(path).end() == '\0');
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
    for (ZEB_String *const user :
         {text("root"), text("no such user"), text("\xFF"), text(""), (ZEB_String *)nil}) {
        [ZEB_String set_to_home_directory_of_user:path user_name:user];
        expect_path([user isEqual:text("root")] ? NSHomeDirectoryForUser(@"root") : nil);
        [path copy_c_string:"old" length:3];
    }
}
