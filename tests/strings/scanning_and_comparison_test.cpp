#include "arrays/engine/algorithms/search.hpp"
#include "strings/engine/number_scanners.hpp"
#include "strings/engine/text_comparison.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/strings.hpp"
#include "tests/reference/vector_algorithms.hpp"
#include "tests/strings/random_text.hpp"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

using namespace zeb_test;

namespace
{

using Text = std::span<const char>;

void expect_same_scans(const std::string &text)
{
    ASSERT_EQ(engine::index_of_number_start(text), reference::index_of_number_start(text)) << text;
    ASSERT_EQ(engine::number_prefix_length(text), reference::number_prefix_length(text)) << text;
    ASSERT_EQ(engine::index_of_number_end(text), reference::index_of_number_end(text)) << text;
    ASSERT_EQ(engine::index_of_last_non_number(text), reference::index_of_last_non_number(text)) << text;
}

void expect_same_orders(const std::string &left, const std::string &right)
{
    const Text first(left), second(right);
    ASSERT_EQ(engine::compare(first, second), reference::compare(left, right));
    ASSERT_EQ(engine::is_less<char>(first, second), reference::compare(left, right) == 2);
    const ZEB_Comparison folded = reference::compare_ignoring_case(left, right);
    ASSERT_EQ(engine::compare_ignoring_case(first, second), folded) << left << '|' << right;
    ASSERT_EQ(engine::is_equal_ignoring_case(first, second), folded == 1);
    const auto left_units = widened<uint32_t>(left), right_units = widened<uint32_t>(right);
    const ZEB_Comparison wide = engine::compare(std::span<const uint32_t>(left_units), right_units);
    ASSERT_EQ(wide, reference::compare(left_units, right_units));
}

/// The same text with its letters in any case, and now and then another byte, or another length.
std::string much_alike(std::mt19937 &random, std::string text)
{
    for (char &c : text)
        if (std::isalpha(static_cast<unsigned char>(c)) && random() % 2 == 0)
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
    for (int left = 0; left < 256; ++left) {
        for (int right = 0; right < 256; ++right) {
            first[66] = static_cast<char>(left);
            second[66] = static_cast<char>(right);
            const ZEB_Comparison expected = reference::compare_ignoring_case({first[66]}, {second[66]});
            ASSERT_EQ(engine::compare_ignoring_case(first, second), expected) << left << ' ' << right;
            ASSERT_EQ(engine::is_equal_ignoring_case(first, second), expected == 1);
            const Text one(&first[66], 1), other(&second[66], 1);
            ASSERT_EQ(engine::compare_ignoring_case(one, other), expected) << left << ' ' << right;
        }
    }
}

} // namespace

TEST(Number_Scanners, find_what_the_literal_scans_find)
{
    std::mt19937 random(1);
    for (const char *word : {"inf", "INFINITY", "nan", "Infinit", "na", "in", "12E5", "12.5e3", "x1", ""})
        for (const char *around : {"", " ", "x", "7", "y", "f "})
            for (const char *before : {"", "\t ", "x", "8"})
                expect_same_scans(std::string(before) + word + around);
    for (int byte = 0; byte < 256; ++byte)
        expect_same_scans(std::string(1, static_cast<char>(byte)));
    for (size_t length = 0; length <= 40; ++length)
        for (unsigned turn = 0; turn < 1500; ++turn)
            expect_same_scans(draw_text(random, length, turn % 8 == 0 ? "" : number_alphabet));
}

TEST(Number_Scanners, pass_over_what_they_are_told_to)
{
    const auto text = [](const char *characters) { return Text(characters, std::strlen(characters)); };
    EXPECT_EQ(engine::number_prefix_length(text("12.5e3")), ZEB_NOT_FOUND);
    EXPECT_EQ(engine::number_prefix_length(text("12 apples")), 2u);
    EXPECT_EQ(engine::number_prefix_length(text("Infinity")), 8u);
    EXPECT_EQ(engine::index_of_number_start(text("  -3")), 2u);
    EXPECT_EQ(engine::index_of_number_start(text("abc7")), 3u);
    EXPECT_EQ(engine::index_of_number_end(text("x = 4.2e1  ")), 8u);
    EXPECT_EQ(engine::index_of_number_end(text("value INF")), 8u);
    EXPECT_EQ(engine::index_of_last_non_number(text("12E5")), 2u);
}

TEST(Text_Comparison, orders_as_the_literal_loops_do)
{
    on_each_target([] {
        std::mt19937 random(2);
        for (size_t length = 0; length <= 40; ++length) {
            for (unsigned turn = 0; turn < 300; ++turn) {
                const std::string left = draw_text(random, length, turn % 4 == 0 ? "" : case_alphabet);
                expect_same_orders(left, much_alike(random, left));
                expect_same_orders(left, draw_text(random, random() % 41, case_alphabet));
            }
        }
        for (size_t length : {63, 64, 65, 127, 200, 1031}) {
            for (unsigned turn = 0; turn < 100; ++turn) {
                const std::string left = draw_text(random, length, "");
                expect_same_orders(left, left);
                expect_same_orders(left, much_alike(random, left));
            }
        }
    });
}

TEST(Text_Comparison, tells_every_pair_of_bytes_in_a_long_text_as_in_a_short_one)
{
    on_each_target(expect_every_pair_of_bytes_to_compare_alike);
}

/// Eight-bit alphabets beyond ASCII, one of them with a capital I whose small letter is no i.
TEST(Text_Comparison, folds_case_as_the_current_locale_does)
{
    const std::string folder = testing::TempDir() + "zeb_8bit_locales";
    setenv("LOCPATH", folder.c_str(), 1);
    for (const auto &[name, charset] :
         {std::pair("de_DE", "ISO-8859-1"), std::pair("tr_TR", "ISO-8859-9"), std::pair("ru_RU", "KOI8-R")}) {
        const std::string locale = std::string(name) + '.' + charset, path = folder + '/' + locale;
        const std::string make = "mkdir -p '" + folder + "' && { test -d '" + path + "' || localedef -i " +
                                 name + " -f " + charset + " '" + path + "'; } >/dev/null 2>&1";
        if (std::system(make.c_str()) != 0 || std::setlocale(LC_CTYPE, locale.c_str()) == nullptr)
            GTEST_SKIP() << "no locale " << locale << " can be made on this machine";
        expect_every_pair_of_bytes_to_compare_alike();
        expect_same_scans("\xA0 7\xA0");
        std::setlocale(LC_CTYPE, "C");
    }
    unsetenv("LOCPATH");
}

/// The substring search is the arrays' own; only its two end rules are looked at here.
TEST(Substring_Search, leaves_the_last_start_out)
{
    std::mt19937 random(3);
    for (size_t length = 0; length <= 40; ++length) {
        for (unsigned turn = 0; turn < 200; ++turn) {
            const auto text = widened<char>(draw_text(random, length, "ab"));
            const auto pattern = widened<char>(draw_text(random, random() % 6, "ab"));
            const uint32_t expected = reference::first_index_of_subsequence(text, pattern);
            ASSERT_EQ(engine::first_index_of_subsequence<char>(text, pattern), expected);
            const std::vector<uint32_t> units(text.begin(), text.end());
            const std::vector<uint32_t> run(pattern.begin(), pattern.end());
            ASSERT_EQ(engine::first_index_of_subsequence<uint32_t>(units, run), expected);
        }
    }
}
