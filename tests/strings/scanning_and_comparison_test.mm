#include "tests/support/class_test.hpp"
#include "tests/support/comma_locale.hpp"
#include "tests/support/random_text.hpp"
#include "tests/support/sanitizer.hpp"
#include "tests/support/vector_targets.hpp"

#include <array>
#include <cctype>
#include <cstring>
#include <numeric>

using namespace zeb_test;

namespace
{

/// Few letters, in both cases, and bytes on both sides of 0x80.
const std::string case_alphabet("aAbBzZ@[`{\x7F\x80\xC9\xE9\xFF\0", 16);

/// The characters in the order in which texts are compared that differ in case alone.
std::vector<int> folded(const std::string &text)
{
    std::vector<int> codes;
    for (const char c : text) {
        const auto code = static_cast<signed char>(c);
        // Compilers take the small letter of a signed character for a signed character, which it need not be.
        const int small = std::tolower(static_cast<unsigned char>(c));
        codes.push_back(std::isupper(code) ? static_cast<signed char>(small) : code);
    }
    return codes;
}

template <class Characters>
ZEB_Comparison order(const Characters &left, const Characters &right)
{
    return left < right ? ZEB_COMPARED_LESS : right < left ? ZEB_COMPARED_GREATER : ZEB_COMPARED_EQUAL;
}

void expect_same_orders(const std::string &left, const std::string &right)
{
    ZEB_String *const first = text(left), *const second = text(right);
    ASSERT_EQ([first compare:second], order(left, right));
    ASSERT_TRUE([first is_less:second] == (left < right) && [first is_equal:second] == (left == right));
    const ZEB_Comparison without_case = order(folded(left), folded(right));
    ASSERT_EQ([first compare_ignoring_case:second], without_case) << left << '|' << right;
    ASSERT_EQ([first is_equal_ignoring_case:second], without_case == ZEB_COMPARED_EQUAL);
    const std::u32string wide_left(left.begin(), left.end()), wide_right(right.begin(), right.end());
    ZEB_Wide_String *const wide_first = wide_text(wide_left), *const wide_second = wide_text(wide_right);
    ASSERT_EQ([wide_first compare:wide_second], order(wide_left, wide_right));
    ASSERT_EQ([wide_first is_less:wide_second], wide_left < wide_right);
    ASSERT_EQ([wide_first is_equal:wide_second], left == right);
}

/// The same text, now and then with some or all letters in the other case, another byte, or another length.
std::string much_alike(std::mt19937 &random, std::string text)
{
    const unsigned changes = random() % 3;
    for (char &c : text)
        if (std::isalpha(static_cast<unsigned char>(c)) && random() % 2 < changes)
            c = static_cast<char>(c ^ 0x20);
    if (!text.empty() && random() % 2 == 0)
        text[random() % text.size()] = static_cast<char>(random());
    if (random() % 4 == 0)
        text.resize(random() % (text.size() + 3), 'a');
    return text;
}

/// In texts that are equal but for case up to the pair: long ones, and those of one byte.
void expect_every_pair_of_bytes_to_compare_alike()
{
    std::string first(70, 'm'), second(70, 'M');
    ZEB_String *const long_first = [ZEB_String link_to_chars:first.data() count:70];
    ZEB_String *const long_second = [ZEB_String link_to_chars:second.data() count:70];
    ZEB_String *const one = [ZEB_String link_to_chars:&first[66] count:1];
    ZEB_String *const other = [ZEB_String link_to_chars:&second[66] count:1];
    for (unsigned left = 0; left < 256; ++left) {
        for (unsigned right = left % slowness; right < 256; right += slowness) {
            first[66] = static_cast<char>(left);
            second[66] = static_cast<char>(right);
            const ZEB_Comparison expected = order(folded({first[66]}), folded({second[66]}));
            ASSERT_EQ([long_first compare_ignoring_case:long_second], expected) << left << ' ' << right;
            ASSERT_EQ([long_first is_equal_ignoring_case:long_second], expected == ZEB_COMPARED_EQUAL);
            ASSERT_EQ([one compare_ignoring_case:other], expected) << left << ' ' << right;
        }
    }
}

using Scans = std::array<uint32_t, 4>;

/// The four scans of a text: where a number starts, how long one in front is, where the last one ends, and
/// the last character that is none of a number's.
Scans scans(const std::string &characters)
{
    ZEB_String *const scanned = text(characters);
    return {[scanned index_of_number_start],
            [scanned number_prefix_length],
            [scanned index_of_number_end],
            [scanned index_of_last_non_number]};
}

} // namespace

TEST(Number_Scanners, find_numbers_and_special_words)
{
    constexpr uint32_t none = ZEB_NOT_FOUND;
    const std::pair<std::string, Scans> rows[] = {
        {"", {none, none, none, none}}, {"12.5e3", {0, none, 5, none}}, {"12 apples", {0, 2, 7, 8}},
        {"  -3", {2, 0, 3, 1}},         {"abc7", {3, 0, 3, 2}},         {"x = 4.2e1  ", {4, 0, 8, 10}},
        {"value INF", {4, 0, 8, 8}},    {"12E5", {0, none, 3, 2}},      {"12G5F", {0, none, 4, 4}},
        {"inf", {0, 3, 2, 1}},          {"\t iNf", {2, 0, 4, 3}},       {"infinity", {0, 8, 7, 7}},
        {"infinit", {0, 3, 2, 6}},      {"INFINITYx", {0, 8, 2, 8}},    {"xinfinity", {3, 0, 8, 8}},
        {"NaN \v", {0, 3, 2, 4}},       {"nano", {0, 3, none, 3}},      {"xnan", {none, 0, 3, 3}},
        {"na", {none, 0, none, 1}},     {"in", {none, 0, none, 1}},     {"\v\f\r\n ", {none, 0, none, 4}},
        {" 7\t", {1, 0, 1, 2}},         {"+-.", {0, none, 2, none}},    {std::string("7\0", 2), {0, 1, 0, 1}},
    };
    for (const auto &[text, expected] : rows)
        EXPECT_EQ(scans(text), expected) << text;
    // Of single bytes, those that a number can have.
    for (int byte = 0; byte < 256; ++byte) {
        const bool is_number = byte != 0 && std::strchr("+-.0123456789EFGefg", byte) != nullptr;
        const Scans found{0, none, 0, std::strchr("EFG", byte) ? 0 : none}, passed_over{none, 0, none, 0};
        EXPECT_EQ(scans(std::string(1, static_cast<char>(byte))), is_number ? found : passed_over) << byte;
    }
}

TEST(Text_Comparison, orders_as_the_literal_loops_do)
{
    // 32-bit text is compared in blocks of some thousands.
    std::vector<size_t> some(71);
    std::iota(some.begin(), some.end(), size_t{0});
    some.insert(some.end(), {95, 127, 128, 129, 200, 257, 515, 1031, 4099, 9000});
    zeb_test::on_each_target([&] {
        std::mt19937 random(2);
        for (const size_t length : some) {
            for (unsigned turn = 0; turn < 40 / slowness; ++turn) {
                const std::string left =
                    zeb_test::draw_text(random, length, turn % 4 == 0 ? "" : case_alphabet);
                expect_same_orders(left, left);
                expect_same_orders(left, much_alike(random, left));
                expect_same_orders(left, zeb_test::draw_text(random, random() % 41, case_alphabet));
            }
        }
    });
}

TEST(Text_Comparison, tells_every_pair_of_bytes_in_a_long_text_as_in_a_short_one)
{
    zeb_test::on_each_target(expect_every_pair_of_bytes_to_compare_alike);
}

TEST(Text_Comparison, takes_nil_for_an_empty_text_that_equals_nothing)
{
    ZEB_String *const none = nil;
    EXPECT_EQ([text("") is_equal:none] + [text("") is_equal_ignoring_case:none], 0);
    EXPECT_EQ([text("a") compare : none], ZEB_Comparison { ZEB_COMPARED_GREATER });
}

/// Eight-bit alphabets beyond ASCII, one of them with a capital I whose small letter is no i.
TEST(Text_Comparison, folds_case_as_the_current_locale_does)
{
    for (const auto &[name, charset] :
         {std::pair("de_DE", "ISO-8859-1"), std::pair("tr_TR", "ISO-8859-9"), std::pair("ru_RU", "KOI8-R")}) {
        if (!set_made_locale(LC_CTYPE, name, charset))
            GTEST_SKIP() << "no locale " << name << " can be made on this machine";
        expect_every_pair_of_bytes_to_compare_alike();
        EXPECT_EQ([text("\xA0 7\xA0") index_of_number_end], 2u);
        std::setlocale(LC_CTYPE, "C");
    }
    unsetenv("LOCPATH");
}
