/// That each operation of the string classes hands its own fields and arguments to the engine.
#include "tests/support/class_test.hpp"
#import <Korvane_ZEB/ZEB_String_Views.hpp>

#import <objc/runtime.h>

TEST(String_Operations, platform_sorts_order_by_the_platform_s_codes)
{
    NSArray *const in_order = [NSArray arrayWithObjects:text(""), text("ab"), text("b"), text("\xC3"), nil];
    NSArray *const shuffled = [[in_order reverseObjectEnumerator] allObjects];
    EXPECT_TRUE([[shuffled sortedArrayUsingSelector:@selector(platform_compare:)] isEqual:in_order]);
    EXPECT_EQ([wide_text(U"b") platform_compare:wide_text(U"a")], NSOrderedDescending);
    EXPECT_EQ([text("a") platform_compare:(id) @"a"], NSOrderedDescending);
    EXPECT_EQ([text("") platform_compare:nil], NSOrderedSame);
}

TEST(String_Operations, strings_describe_themselves_as_their_text)
{
    ZEB_String_Array *const strings = [[[ZEB_String_Array alloc] init] autorelease];
    ZEB_Object_Array *const objects = [[[ZEB_Object_Array alloc] init] autorelease];
    for (const char *word : {"caf\xC3\xA9", "caf\xE9", "", "{}"})
        [strings append_string:text(word)];
    [objects append_object:text("caf\xE9")];
    [objects append_object:wide_text(U"w\xE9")];
    [objects append_object:strings];
    EXPECT_STREQ([[objects description] UTF8String],
                 "{caf\xC3\xA9, w\xC3\xA9, {caf\xC3\xA9, caf\xC3\xA9, , {}}}");
    EXPECT_STREQ([[text("caf\xE9") description] UTF8String], "caf\xC3\xA9");
}

TEST(String_Operations, search)
{
    const uint32_t b[] = {'b', 'c'};
    for (const auto &[length, place] : {std::pair(1u, 1u), std::pair(2u, ZEB_NOT_FOUND)}) {
        EXPECT_EQ([text("abc") index_of_substring:"bc" length:length], place);
        EXPECT_EQ([wide_text(U"abc") index_of_substring:b length:length], place);
    }
    EXPECT_EQ([text("abc") index_of_substring:"abc" length:3], ZEB_NOT_FOUND);
    EXPECT_EQ([wide_text(U"abcd") index_of_substring:b length:2], 1u);
    EXPECT_EQ([wide_text(U"abc") index_of_char:'c'], 2u);
}

TEST(String_Operations, extend_the_sign_of_8_bit_characters)
{
    ZEB_Wide_String *const wide = wide_text(U"old");
    [wide copy_chars:"\x41\xE9" length:2];
    [wide append_chars:"z" length:1];
    EXPECT_EQ(zeb::view(wide), (std::u32string{0x41, 0xFFFFFFE9, 'z'}));
}

TEST(String_Operations, refuse_on_links_under_their_own_names)
{
    uint32_t units[] = {0x1F600};
    char byte = 'a';
    ZEB_Wide_String *const wide = [ZEB_Wide_String link_to_wide_chars:units count:1];
    ZEB_String *const narrow = [ZEB_String link_to_chars:&byte count:1];
    const auto expect = [](id link, const char *selector, const char *note, auto work) {
        EXPECT_EQ(standard_error_of(work), fix_line(selector, class_getName([link class]), note));
    };
    const char *const no_copy = "Cannot copy c string through link, no copy made.";
    const char *const no_append = "Cannot append c string through link, no append made.";
    expect(narrow, "copy_c_string:length:", no_copy, [&] { [narrow copy_c_string:"x" length:1]; });
    expect(narrow, "append_c_string:length:", no_append, [&] { [narrow append_c_string:"" length:0]; });
    expect(narrow, "append_null_terminator", "Cannot append null terminator through link, no append made.",
           [&] { [narrow append_null_terminator]; });
    expect(wide, "copy_c_string:length:", no_copy, [&] { [wide copy_c_string:"" length:0]; });
    expect(wide, "copy_chars:length:", no_copy, [&] { [wide copy_chars:"x" length:1]; });
    expect(wide, "append_c_string:length:", no_append, [&] { [wide append_c_string:"x" length:1]; });
    expect(wide, "append_chars:length:", no_append, [&] { [wide append_chars:"x" length:1]; });
    expect(wide, "set_code_points_from_utf8:", "Cannot update length through link, no adjustment made.",
           [&] { EXPECT_EQ([wide set_code_points_from_utf8:text("x")], 0); });
    expect(wide, "split_to_surrogate_pairs", "Cannot update capacity through link, no adjustment made.",
           [&] { [wide split_to_surrogate_pairs]; });
    EXPECT_EQ(zeb::view(wide), U"\U0001F600");
    EXPECT_EQ(zeb::view(narrow), "a");
}

TEST(String_Operations, serve_as_keys_of_a_dictionary)
{
    NSMutableDictionary *const table = [NSMutableDictionary dictionary];
    ZEB_String *const key = text("key");
    [table setObject:@"narrow" forKey:(id)key];
    [table setObject:@"wide" forKey:(id)wide_text(U"\U0001F511")];
    [key append_c_string:"s" length:1]; // the table keeps a copy
    EXPECT_TRUE([[table objectForKey:text("key")] isEqual:@"narrow"]);
    EXPECT_TRUE([[table objectForKey:wide_text(U"\U0001F511")] isEqual:@"wide"]);
    EXPECT_EQ([table objectForKey:text("keys")], nil);
}

TEST(String_Views, are_live_and_empty_without_a_string)
{
    ZEB_String *const string = text("abc");
    const std::string_view view = zeb::view(string);
    [string char_data][1] = 'X';
    EXPECT_EQ(view, "aXc");
    EXPECT_TRUE(zeb::view((ZEB_String *)nil).empty() && zeb::view((ZEB_Wide_String *)nil).empty());
}
