#include "numbers/ZEB_Number_Functions.h"
#include "tests/support/random_text.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <regex>

using namespace zeb_test;

namespace
{

/// The scanner reads what `convert`, a function of the C library, reads of the first 31 characters. Its copy
/// ends with the array's last byte, so that a sanitizer sees any look beyond it.
template <typename Value, typename Scanner, typename Convert>
void expect_scan(const std::string &text, Scanner scanner, Convert convert)
{
    const std::string start = text.substr(0, 31);
    char *end = nullptr;
    const auto converted = convert(start.c_str(), &end);
    const auto count = static_cast<std::uint32_t>(end - start.c_str());
    const auto untouched = static_cast<Value>(77);
    const Value expected = count != 0 ? static_cast<Value>(converted) : untouched;
    Value value = untouched;
    const std::vector<char> exact(text.begin(), text.end());
    EXPECT_EQ(scanner(exact.data(), static_cast<std::uint32_t>(exact.size()), &value), count)
        << '"' << text << '"';
    EXPECT_EQ(std::memcmp(&value, &expected, sizeof value), 0) << '"' << text << "\" is read as " << value;
}

std::string random_real(std::mt19937_64 &random)
{
    char text[80];
    const double value =
        static_cast<double>(random() >> random() % 64) / static_cast<double>(random() >> random() % 64 | 1);
    const char *const formats[] = {"%.17g", "%g", "%.3f", "%.25f", "%e", "%a", "%+.5f", "%.30e"};
    std::snprintf(text, sizeof text, formats[random() % 8], random() % 2 ? value : -value);
    return text;
}

} // namespace

TEST(Number_Scanning, reals_are_read_as_the_c_library_reads_them)
{
    std::mt19937_64 random(5);
    const std::vector<std::string> words =
        words_of("inf -Infinity nan(12) NaN 0x 0x1p 1e 1e+ . -. .e5 1e400 -1e-400 4.9e-324 0x.8p1 +5 00012. "
                 "2.4703282292062327e-324 1.17549435e-38 e xPpyTy");
    for (int i = 0; i < 40000 && !HasFailure(); ++i) {
        std::string text =
            spaces(random) + (random() % 4 ? random_real(random) : words[random() % words.size()]);
        if (random() % 2)
            text = spoiled(random, text, "0123456789..eE+-xXpPinfaNINFTYty \t,");
        expect_scan<double>(text, ZC_assign_double_from_char_c_array, std::strtod);
        expect_scan<float>(text, ZC_assign_float_from_char_c_array, std::strtof);
    }
}

TEST(Number_Scanning, integers_are_read_as_the_c_library_reads_them)
{
    std::mt19937_64 random(6);
    for (int i = 0; i < 20000 && !HasFailure(); ++i) {
        const int bases[] = {0, 2, 8, 10, 16, 36};
        const int base = bases[random() % 6];
        const std::string integer = (random() % 4 ? "" : "0x") + random_integer(random),
                          text = spoiled(random, spaces(random) + integer, "0123456789abcxz+- ");
        const auto in_base = [base](auto scanner) {
            return [=](const char *chars, std::uint32_t length, auto *value) {
                return scanner(chars, length, base, value);
            };
        };
        const auto by = [](auto function, int known_base) {
            return [=](const char *chars, char **end) { return function(chars, end, known_base); };
        };
        expect_scan<std::int32_t>(text, ZC_assign_int_from_char_c_array, by(std::strtoll, 10));
        expect_scan<std::uint32_t>(text, ZC_assign_unsigned_from_char_c_array, by(std::strtoull, 10));
        expect_scan<std::int32_t>(text, in_base(ZC_assign_int_with_base_from_char_c_array),
                                  by(std::strtoll, base));
        expect_scan<std::uint32_t>(text, in_base(ZC_assign_unsigned_with_base_from_char_c_array),
                                   by(std::strtoull, base));
        expect_scan<std::int64_t>(text, in_base(ZC_assign_int64_with_base_from_char_c_array),
                                  by(std::strtoll, base));
        expect_scan<std::uint64_t>(text, in_base(ZC_assign_unsigned64_with_base_from_char_c_array),
                                   by(std::strtoull, base));
    }
}

TEST(Number_Scanning, nothing_is_read_of_no_characters_or_in_no_base)
{
    std::int32_t value = 7;
    std::uint64_t wide = 7;
    EXPECT_EQ(ZC_assign_int_from_char_c_array(nullptr, 0, &value), 0U);
    for (const int base : {1, 37, -10}) {
        EXPECT_EQ(ZC_assign_int_with_base_from_char_c_array("1", 1, base, &value), 0U);
        EXPECT_EQ(ZC_assign_unsigned64_with_base_from_char_c_array("1", 1, base, &wide), 0U);
    }
    EXPECT_EQ(value, 7);
    EXPECT_EQ(wide, 7U);
    EXPECT_EQ(ZC_assign_int_from_char_c_array("123", 2, &value), 2U); // not beyond the length
    EXPECT_EQ(value, 12);
}

TEST(Special_Value, the_first_word_that_ends_is_found)
{
    std::mt19937_64 random(8);
    const std::regex special("(infinity|inf|nan)(?=\\s|$)", std::regex::icase);
    std::vector<std::string> words = words_of("inf INF infinity Infinity nan NaN in na infinit nano 1.5 ,");
    words.insert(words.end(), {" ", "\n", "\v"});
    for (int i = 0; i < 5000; ++i) {
        std::string text;
        for (std::uint64_t n = random() % 7; n > 0; --n)
            text += words[random() % words.size()];
        std::smatch match;
        const std::size_t place = std::regex_search(text, match, special)
                                      ? static_cast<std::size_t>(match.position())
                                      : text.size();
        const std::vector<char> exact(text.begin(), text.end());
        ASSERT_EQ(
            ZC_find_special_value_in_char_c_array(exact.data(), static_cast<std::uint32_t>(exact.size())),
            place)
            << text;
    }
}
