/// Strings made from C strings, platform strings and formats, and extended by those and by numbers.
#include "tests/strings/both_strings.hpp"

#include "tests/support/comma_locale.hpp"

#include <new>

using namespace both;

// Memory for long formatted texts, which fails as the engine's does.
void *operator new[](std::size_t size, const std::nothrow_t &) noexcept
{
    return memory.fails() ? nullptr : ::operator new[](size);
}

namespace
{

template <class String>
class String_Making : public testing::Test
{
};
TYPED_TEST_SUITE(String_Making, Strings);

template <class String>
void append_form(String *string, const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    [string append_format:format arguments:arguments];
    va_end(arguments);
}

template <class String>
struct Append {
    const char *selector, *note;
    std::string appended;
    void (*append)(String *);
};

const char *const no_c_string = "Cannot append c string through link, no append made.";
const char *const no_format = "Cannot append formatted text through link, no append made.";
const char *const no_number = "Cannot append number through link, no append made.";
const char *const no_platform_string = "Cannot append platform string through link, no append made.";

template <class String>
const Append<String> appends[] = {
    {"append_c_string:", no_c_string, "cd", [](String *string) { [string append_c_string:"cd"]; }},
    {"append_c_string:", no_c_string, "", [](String *string) { [string append_c_string:nullptr]; }},
    {"append_NSString:", no_platform_string, "p", [](String *string) { [string append_NSString:@"p"]; }},
    {"append_NSString:", no_platform_string, "", [](String *string) { [string append_NSString:(id)string]; }},
    {"append_format:", no_format, "2.5 x",
     [](String *string) { [string append_format:"%.1f %s", 2.5, "x"]; }},
    {"append_format:", no_format, std::string(599, ' ') + '7', // in memory of its own
     [](String *string) { [string append_format:"%600d", 7]; }},
    {"append_format:arguments:", no_format, "007", [](String *string) { append_form(string, "%03d", 7); }},
    {"append_format:arguments:", no_format, "", [](String *string) { append_form(string, nullptr); }},
    {"append_pretty_double:", no_number, "0.3",
     [](String *string) { [string append_pretty_double:0.1 + 0.2]; }},
    {"append_pretty_float:", no_number, "-1e+09", [](String *string) { [string append_pretty_float:-1e9F]; }},
    {"append_shortest_double:", no_number, "0.30000000000000004",
     [](String *string) { [string append_shortest_double:0.1 + 0.2]; }},
    {"append_shortest_float:", no_number, "0.1", [](String *string) { [string append_shortest_float:0.1F]; }},
    {"append_int64:", no_number, "-9223372036854775808",
     [](String *string) { [string append_int64:INT64_MIN]; }},
    {"append_uint64:", no_number, "18446744073709551615",
     [](String *string) { [string append_uint64:UINT64_MAX]; }},
};

} // namespace

TYPED_TEST(String_Making, makes_owners)
{
    for (const std::string &text : {std::string(), std::string("abc"), std::string(2000, 'x')}) {
        NSString *const platform = [NSString stringWithUTF8String:text.c_str()];
        const char *const chars = text.c_str();
        TypeParam *const strings[] = {[TypeParam string_with_c_string:chars],
                                      [TypeParam string_with_NSString:platform],
                                      [TypeParam string_with_format:"%s", chars],
                                      [[[TypeParam alloc] init_with_c_string:chars] autorelease],
                                      [[[TypeParam alloc] init_with_NSString:platform] autorelease],
                                      [[[TypeParam alloc] init_with_format:"%s", chars] autorelease]};
        for (TypeParam *string : strings) {
            EXPECT_EQ(characters_of(string), text);
            [string append_c_string:"!"];
            EXPECT_EQ(characters_of(string), text + '!');
        }
    }
    EXPECT_EQ(characters_of([TypeParam string_with_c_string:nullptr]), "");
    EXPECT_EQ(characters_of([TypeParam string_with_NSString:(id)[NSObject class]]), "");
}

TYPED_TEST(String_Making, appends_unless_it_is_refused)
{
    for (const auto &[selector, note, appended, append] : appends<TypeParam>) {
        TypeParam *const string = refused<TypeParam>("fifteen letters", selector, note, append);
        EXPECT_EQ(characters_of(string), "fifteen letters" + appended) << selector;
    }
}

TYPED_TEST(String_Making, appends_nothing_where_printing_fails)
{
    const wchar_t in_no_c_locale[] = {0x20AC, 0};
    TypeParam *const string = made<TypeParam>("a");
    EXPECT_EQ(standard_error_of([&] { [string append_format:"%ls", in_no_c_locale]; }), "");
    EXPECT_EQ(characters_of(string), "a");
}

TEST(String_Making, keeps_bytes_or_decodes_them)
{
    const std::pair<const char *, std::u32string> rows[] = {
        {"\xC3\xA9\xF0\x9F\x98\x80", U"\xE9\xD83D\xDE00"}, // one unit, and a surrogate pair
        {"\xC3x\xFF", U"\xC3x\xFF"},                       // not UTF-8: no byte is lost
        {"\xEF\xBB\xBFx", U"\xFEFFx"},
    };
    for (const auto &[bytes, units] : rows) {
        EXPECT_EQ(zeb::view([ZEB_String string_with_c_string:bytes]), bytes);
        EXPECT_EQ(zeb::view([ZEB_Wide_String string_with_format:"x%s", bytes]), U'x' + units);
    }
    NSString *const both = [NSString stringWithUTF8String:rows[0].first];
    EXPECT_EQ(zeb::view([ZEB_String string_with_NSString:both]), rows[0].first);
    ZEB_Wide_String *const wide = [ZEB_Wide_String string_with_c_string:"x"];
    [wide append_NSString:both];
    EXPECT_EQ(zeb::view(wide), U'x' + rows[0].second);
}

TEST(String_Making, reads_its_own_text_before_it_grows)
{
    ZEB_String *const string = [ZEB_String string_with_c_string:"fifteen letters"];
    [string append_null_terminator];
    [string append_c_string:[string char_data] + 8];
    [string append_null_terminator];
    [string append_format:"%s|%s", [string char_data] + 15, [string char_data]];
    EXPECT_EQ(zeb::view(string), "fifteen lettersletters"
                                 "letters|fifteen lettersletters");
}

TEST_F(Comma_Locale, leaves_formats_and_numbers_as_they_are)
{
    ZEB_String *const string = [ZEB_String string_with_format:"%.2f ", 0.25];
    [string append_shortest_double:-1.5e-7];
    [string append_pretty_double:1.5];
    EXPECT_EQ(zeb::view(string), "0.25 -1.5e-071.5");
}
