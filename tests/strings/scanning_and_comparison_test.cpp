#include "strings/engine/number_scanners.hpp"
#include "strings/engine/text_comparison.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/strings/random_text.hpp"
#include "tests/support/comma_locale.hpp"

#include <cctype>
#include <cstring>

using namespace zeb_test;

namespace
{

using Text = std::span<const char>;

/// The characters in the order in which texts are compared that differ in case alone.
std::vector<int> folded(Text text)
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
    const Text first(left), second(right);
    ASSERT_EQ(engine::compare(first, second), order(left, right));
    ASSERT_EQ(engine::is_less<char>(first, second), left < right);
    const ZEB_Comparison without_case = order(folded(left), folded(right));
    ASSERT_EQ(engine::compare_ignoring_case(first, second), without_case) << left << '|' << right;
    ASSERT_EQ(engine::is_equal_ignoring_case(first, second), without_case == ZEB_COMPARED_EQUAL);
    const std::vector<uint32_t> wide_left(left.begin(), left.end()), wide_right(right.begin(), right.end());
    // Signed: of vectors of unsigned numbers, g++ 12 compares only a part on big-endian machines.
    const std::vector<int64_t> first_units(wide_left.begin(), wide_left.end());
    const std::vector<int64_t> second_units(wide_right.begin(), wide_right.end());
    ASSERT_EQ(engine::compare(std::span<const uint32_t>(wide_left), wide_right),
              order(first_units, second_units));
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
    for (int left = 0; left < 256; ++left) {
        for (int right = 0; right < 256; ++right) {
            first[66] = static_cast<char>(left);
            second[66] = static_cast<char>(right);
            const Text one(&first[66], 1), other(&second[66], 1);
            const ZEB_Comparison expected = order(folded(one), folded(other));
            ASSERT_EQ(engine::compare_ignoring_case(first, second), expected) << left << ' ' << right;
            ASSERT_EQ(engine::is_equal_ignoring_case(first, second), expected == ZEB_COMPARED_EQUAL);
            ASSERT_EQ(engine::compare_ignoring_case(one, other), expected) << left << ' ' << right;
        }
    }
}

} // namespace

/// The four scans of a text: where a number starts, how long one in front is, where the last one ends, and
/// the last character that is none of a number's.
TEST(Number_Scanners, find_numbers_and_special_words)
{
    constexpr uint32_t none = ZEB_NOT_FOUND;
    const struct {
        std::string text;
        uint32_t start, prefix, end, last;
    } rows[] = {
        {"", none, none, none, none}, {"12.5e3", 0, none, 5, none}, {"12 apples", 0, 2, 7, 8},
        {"  -3", 2, 0, 3, 1},         {"abc7", 3, 0, 3, 2},         {"x = 4.2e1  ", 4, 0, 8, 10},
        {"value INF", 4, 0, 8, 8},    {"12E5", 0, none, 3, 2},      {"12G5F", 0, none, 4, 4},
        {"inf", 0, 3, 2, 1},          {"\t iNf", 2, 0, 4, 3},       {"infinity", 0, 8, 7, 7},
        {"Infinity", 0, 8, 7, 7},     {"infinit", 0, 3, 2, 6},      {"INFINITYx", 0, 8, 2, 8},
        {"xinfinity", 3, 0, 8, 8},    {" nan", 1, 0, 3, 3},         {"NaN \v", 0, 3, 2, 4},
        {"nano", 0, 3, none, 3},      {"xnan", none, 0, 3, 3},      {"na", none, 0, none, 1},
        {"in", none, 0, none, 1},     {"if", 1, 0, 1, 0},           {"\v\f\r\n ", none, 0, none, 4},
        {" 7\t", 1, 0, 1, 2},         {"8 f ", 0, 1, 2, 3},         {std::string("7\0", 2), 0, 1, 0, 1},
        {"\xFF", none, 0, none, 0},   {"\xA0 7\xA0", 2, 0, 2, 3},   {"+-.", 0, none, 2, none},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(engine::index_of_number_start(row.text), row.start) << row.text;
        EXPECT_EQ(engine::number_prefix_length(row.text), row.prefix) << row.text;
        EXPECT_EQ(engine::index_of_number_end(row.text), row.end) << row.text;
        EXPECT_EQ(engine::index_of_last_non_number(row.text), row.last) << row.text;
    }
    // Of single bytes, those that a number can have.
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        const bool is_number = byte != 0 && std::strchr("+-.0123456789EFGefg", byte) != nullptr;
        EXPECT_EQ(engine::index_of_number_start(text), is_number ? 0 : none) << byte;
        EXPECT_EQ(engine::number_prefix_length(text), is_number ? none : 0) << byte;
        EXPECT_EQ(engine::index_of_number_end(text), is_number ? 0 : none) << byte;
        EXPECT_EQ(engine::index_of_last_non_number(text), is_number && !std::strchr("EFG", byte) ? none : 0);
    }
}

TEST(Text_Comparison, orders_as_the_literal_loops_do)
{
    std::vector<size_t> some = lengths();
    some.push_back(9000); // 32-bit text is compared in blocks
    on_each_target([&] {
        std::mt19937 random(2);
        for (const size_t length : some) {
            for (unsigned turn = 0; turn < 40; ++turn) {
                const std::string left = draw_text(random, length, turn % 4 == 0 ? "" : case_alphabet);
                expect_same_orders(left, left);
                expect_same_orders(left, much_alike(random, left));
                expect_same_orders(left, draw_text(random, random() % 41, case_alphabet));
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
    for (const auto &[name, charset] :
         {std::pair("de_DE", "ISO-8859-1"), std::pair("tr_TR", "ISO-8859-9"), std::pair("ru_RU", "KOI8-R")}) {
        if (!set_made_locale(LC_CTYPE, name, charset))
            GTEST_SKIP() << "no locale " << name << " can be made on this machine";
        expect_every_pair_of_bytes_to_compare_alike();
        EXPECT_EQ(engine::index_of_number_end("\xA0 7\xA0"), 2u);
        std::setlocale(LC_CTYPE, "C");
    }
    unsetenv("LOCPATH");
}
