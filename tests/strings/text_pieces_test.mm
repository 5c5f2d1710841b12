/// Searching, trimming, splitting and joining, against the standard library's ways.
#include "tests/strings/both_strings.hpp"
#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include "tests/support/random_text.hpp"
#include "tests/support/sanitizer.hpp"
#include "tests/support/vector_targets.hpp"

using namespace both;

namespace
{

// What the two kinds of strings name in two ways.
ZEB_String_Array *link_to(std::span<ZEB_String *> strings)
{
    return [ZEB_String_Array link_to_strings:strings.data() count:static_cast<uint32_t>(strings.size())];
}
ZEB_Wide_String_Array *link_to(std::span<ZEB_Wide_String *> strings)
{
    return [ZEB_Wide_String_Array link_to_wide_strings:strings.data()
                                                 count:static_cast<uint32_t>(strings.size())];
}
uint32_t split_by_char(ZEB_String *text, char separator, ZEB_String_Array *array)
{
    return [text split_by_char:separator into:array];
}
uint32_t split_by_char(ZEB_Wide_String *text, char separator, ZEB_Wide_String_Array *array)
{
    return [text split_by_wide_char:static_cast<unsigned char>(separator) into:array];
}

template <class String>
auto array_of(const std::vector<std::string> &pieces)
{
    std::vector<String *> strings;
    for (const std::string &piece : pieces)
        strings.push_back(made<String>(piece));
    auto *const link = link_to(strings);
    return static_cast<decltype(link)>([link duplicate]); // an owner
}

template <class Array>
std::vector<std::string> pieces_of(Array *array)
{
    std::vector<std::string> pieces;
    for (auto *const string : zeb::elements(array))
        pieces.push_back(characters_of(string));
    return pieces;
}

template <class String>
class Text_Pieces : public testing::Test
{
};
TYPED_TEST_SUITE(Text_Pieces, Strings);

uint32_t index_of(size_t found)
{
    return found == std::string::npos ? ZEB_NOT_FOUND : static_cast<uint32_t>(found);
}

/// All that a search answers, for a part that is not empty.
template <class String>
void compare_searches(const std::string &text, const std::string &part, size_t from)
{
    String *const string = made<String>(text), *const sought = made<String>(part);
    ASSERT_EQ([string find_text:sought], index_of(text.find(part)));
    ASSERT_EQ([string find_text:sought from_index:static_cast<uint32_t>(from)],
              index_of(text.find(part, from)));
    ASSERT_EQ([string find_last_text:sought], index_of(text.rfind(part)));
    ASSERT_EQ([string contains:sought], text.find(part) != std::string::npos);
    ASSERT_EQ([string has_prefix:sought], text.starts_with(part));
    ASSERT_EQ([string has_suffix:sought], text.ends_with(part));
}

} // namespace

TYPED_TEST(Text_Pieces, are_found_as_the_standard_library_finds_them)
{
    zeb_test::on_each_target([] {
        std::mt19937 random(7);
        for (unsigned turn = 0; turn < 4000 / slowness; ++turn) {
            const std::string alphabet = turn % 2 == 0 ? std::string("a\0", 2) : "";
            std::string text = zeb_test::draw_text(random, random() % (turn % 64 == 0 ? 9000 : 40), alphabet);
            std::string part = zeb_test::draw_text(random, 1 + random() % 4, alphabet);
            if (turn % 3 == 0 && !text.empty()) // a part of it, often at its end
                part = text.substr(random() % text.size(), turn % 9 == 0 ? 99 : 1 + random() % 40);
            compare_searches<TypeParam>(text, part, random() % 45);
        }
    });
    const std::string far(300000, 'x'), mark = "mark"; // more than one block of the search from the end
    for (const size_t at : {0, 1, 34464, 170000, 299000, 299999})
        compare_searches<TypeParam>(std::string(far).insert(at, mark), mark, at + 1);
    compare_searches<TypeParam>(far, std::string(100000, 'x'), 200001);
}

TYPED_TEST(Text_Pieces, stand_nowhere_if_they_are_empty_and_once_in_themselves)
{
    TypeParam *const text = made<TypeParam>("abc"), *const link = link_onto(text);
    for (TypeParam *none : {made<TypeParam>(""), static_cast<TypeParam *>(nil)}) {
        EXPECT_FALSE([text has_prefix:none] || [text has_suffix:none] || [text contains:none]);
        EXPECT_TRUE([text find_text:none] == ZEB_NOT_FOUND && [text find_last_text:none] == ZEB_NOT_FOUND);
        EXPECT_EQ([made<TypeParam>("") find_text:none], ZEB_NOT_FOUND);
    }
    EXPECT_TRUE([link has_prefix:text] && [text has_suffix:link] && [text contains:text]);
    EXPECT_EQ([link find_text:text] + [text find_last_text:text], 0u);
}

TYPED_TEST(Text_Pieces, are_trimmed_in_place)
{
    const auto no_trim = "Cannot trim text through link, no change made.";
    struct Row {
        std::string text, both, left, right, without_ab;
    };
    const Row rows[] = {
        {"", "", "", "", ""},
        {" \t\n\v\f\r", "", "", "", " \t\n\v\f\r"},
        {"a", "a", "a", "a", ""},
        {" a b ", "a b", "a b ", " a b", " a b "},
        {std::string("\0 a\0", 4), std::string("\0 a\0", 4), std::string("\0 a\0", 4),
         std::string("\0 a\0", 4), std::string("\0 a\0", 4)},
        {"\xA0 \x85", "\xA0 \x85", "\xA0 \x85", "\xA0 \x85", "\xA0 \x85"}, // white space of another set
        {"abc b", "abc b", "abc b", "abc b", "c "},
    };
    using S = TypeParam;
    S *const ab = made<S>("ab");
    for (const Row &row : rows) {
        const auto expect = [&](const std::string &expected, const char *selector, auto trim) {
            EXPECT_EQ(characters_of(refused<S>(row.text, selector, no_trim, trim)), expected)
                << selector << row.text;
        };
        expect(row.both, "trim_whitespace", [](S *string) { [string trim_whitespace]; });
        expect(row.left, "trim_whitespace_left", [](S *string) { [string trim_whitespace_left]; });
        expect(row.right, "trim_whitespace_right", [](S *string) { [string trim_whitespace_right]; });
        expect(row.without_ab, "trim_chars_in:", [ab](S *string) { [string trim_chars_in:ab]; });
        expect(row.text, "trim_chars_in:", [](S *string) { [string trim_chars_in:nil]; });
        expect("", "trim_chars_in:", [](S *string) { [string trim_chars_in:link_onto(string)]; });
    }
}

TYPED_TEST(Text_Pieces, of_a_text_are_those_between_the_separators)
{
    struct Row {
        std::string text, separator;
        std::vector<std::string> pieces;
    };
    const Row rows[] = {
        {"", ",", {""}},
        {"", "", {""}},
        {"abc", "", {"abc"}},
        {"abc", "abcd", {"abc"}},
        {",", ",", {"", ""}},
        {",a,,a longer piece than any block at first,",
         ",",
         {"", "a", "", "a longer piece than any block at first", ""}},
        {"aaa", "aa", {"", "a"}},
        {"1, 2, 3", ", ", {"1", "2", "3"}},
        {std::string("a\0\0b", 4), std::string(1, '\0'), {"a", "", "b"}},
    };
    auto *const reused = array_of<TypeParam>({});
    for (const auto &[text, separator, pieces] : rows) {
        TypeParam *const whole = made<TypeParam>(text), *const between = made<TypeParam>(separator);
        for (auto *array : {array_of<TypeParam>({}), reused}) {
            EXPECT_EQ([link_onto(whole) split_by_text:between into:array], pieces.size());
            EXPECT_EQ(pieces_of(array), pieces) << text;
            if (separator.size() == 1) {
                EXPECT_EQ(split_by_char(whole, separator[0], array), pieces.size());
                EXPECT_EQ(pieces_of(array), pieces) << text;
            }
        }
        TypeParam *const joined = made<TypeParam>("old");
        [joined join_strings:reused separator:between];
        EXPECT_EQ(characters_of(joined), text);
    }
    EXPECT_EQ(split_by_char(made<TypeParam>("a,b"), ',', nil), 0u);
    EXPECT_EQ([made<TypeParam>("a,b") split_by_text:nil into:reused], 1u);
}

TYPED_TEST(Text_Pieces, may_lie_in_the_array_that_takes_them)
{
    const std::vector<std::string> before = {"x", "1,2;3,4", ",", "a string that takes nothing"};
    for (const bool by_link : {false, true}) {
        auto *const array = array_of<TypeParam>(before);
        TypeParam *text = zeb::elements(array)[1], *separator = zeb::elements(array)[2];
        if (by_link)
            text = link_onto(text), separator = link_onto(separator);
        EXPECT_EQ([text split_by_text:separator into:array], 3u);
        EXPECT_EQ(pieces_of(array), (std::vector<std::string>{"1", "2;3", "4"}));
    }
    auto *const full = array_of<TypeParam>({"sixteen letters."}); // whose block has to grow
    [zeb::elements(full)[0] trim_allocation];
    EXPECT_EQ(split_by_char(zeb::elements(full)[0], '/', full), 1u);
    EXPECT_EQ(characters_of(zeb::elements(full)[0]), "sixteen letters.");
    auto *const linked = array_of<TypeParam>(before);
    [zeb::elements(linked)[0] release];
    TypeParam *const other = made<TypeParam>("kept");
    zeb::elements(linked)[0] = [link_onto(other) retain];
    EXPECT_EQ(split_by_char(made<TypeParam>("a/b"), '/', linked), 2u);
    EXPECT_EQ(characters_of(other) + characters_of(zeb::elements(linked)[0]), "kepta");
}

TYPED_TEST(Text_Pieces, are_refused_by_a_link_and_without_memory)
{
    const std::vector<std::string> before = {"x", "y"}, after = {"longer than sixteen letters", "b", "c"};
    TypeParam *const text = made<TypeParam>(after[0] + "/b/c"), *const slash = made<TypeParam>("/");
    auto *array = array_of<TypeParam>(before);
    const char *const named = class_getName([array class]);
    const auto split = [&] { [text split_by_text:slash into:array]; };
    auto *const link = link_to(zeb::elements(array));
    EXPECT_EQ(standard_error_of([&] { EXPECT_EQ([text split_by_text:slash into:link], 0u); }),
              fix_line("split_by_text:into:", named, "Cannot split text into link, no change made."));
    EXPECT_EQ(pieces_of(link), before);
    int refusals = 0;
    for (int call = 0, has_failed = 1; has_failed; ++call) {
        array = array_of<TypeParam>(before);
        [array trim_allocation];
        memory.calls_until_failure = call;
        const std::string error = standard_error_of(split);
        has_failed = memory.calls_until_failure < 0;
        memory.calls_until_failure = -1;
        // What a search alone wants memory for it can do without.
        EXPECT_EQ(pieces_of(array), error.empty() ? after : before) << call;
        refusals += !error.empty();
    }
    EXPECT_GT(refusals, 2);
}

TYPED_TEST(Text_Pieces, are_joined_also_with_the_receiver_among_them)
{
    const auto no_join = "Cannot join strings through link, no change made.";
    TypeParam *a = made<TypeParam>("a"), *longer = made<TypeParam>("fifteen letters"),
              *comma = made<TypeParam>(", ");
    for (const bool is_among_them : {false, true}) {
        const auto join = [&](TypeParam *receiver) {
            TypeParam *strings[] = {a, nil, longer}, *const separator = is_among_them ? receiver : comma;
            if (is_among_them)
                strings[1] = receiver, strings[2] = link_onto(receiver);
            [receiver join_strings:link_to(strings) separator:separator];
        };
        TypeParam *const string = refused<TypeParam>("old", "join_strings:separator:", no_join, join);
        EXPECT_EQ(characters_of(string), is_among_them ? "aoldoldoldold" : "a, , fifteen letters");
    }
    TypeParam *const string = made<TypeParam>("old");
    [string join_strings:nil separator:string];
    EXPECT_EQ(characters_of(string), "");
}
