#include "numbers/ZEB_Number_Functions.h"
#include "tests/support/guarded_text.hpp"
#include "tests/support/random_text.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace zeb_test;

namespace
{

/// The scanner, told `arguments`, reads what `convert`, a function of the C library, reads of the first 31
/// characters.
template <typename Value, typename Convert, typename Scanner, typename... Arguments>
void expect_scan(const std::string &text, Convert convert, Scanner scanner, Arguments... arguments)
{
    const std::string start = text.substr(0, 31);
    char *end = nullptr;
    const auto converted = convert(start.c_str(), &end);
    const auto untouched = static_cast<Value>(77);
    const Value expected = end != start.c_str() ? static_cast<Value>(converted) : untouched;
    Value value = untouched;
    EXPECT_EQ(scanned(text, scanner, arguments..., &value), end - start.c_str()) << '"' << text << '"';
    EXPECT_EQ(std::memcmp(&value, &expected, sizeof value), 0) << '"' << text << "\" is read as " << value;
}

std::string random_real(std::mt19937_64 &random)
{
    char text[80];
    const auto any_size = [&] { return static_cast<double>(random() >> random() % 64); };
    const double value = any_size() / (any_size() + 1);
    const char *const formats[] = {"%.17g", "%g", "%.3f", "%.25f", "%e", "%a", "%+.5f", "%.30e"};
    std::snprintf(text, sizeof text, formats[random() % 8], random() % 2 ? value : -value);
    return text;
}

} // namespace

TEST(Number_Scanning, numbers_are_read_as_the_c_library_reads_them)
{
    std::mt19937_64 random(5);
    const std::vector<std::string> words =
        words_of("inf -Infinity nan(12) NaN 0x 0x1p 1e 1e+ . -. .e5 1e400 -1e-400 4.9e-324 0x.8p1 +5 00012. "
                 "2.4703282292062327e-324 1.17549435e-38 e xPpyTy");
    const auto by = [](auto function, int base) {
        return [=](const char *chars, char **end) { return function(chars, end, base); };
    };
    for (int i = 0; i < 15000 && !HasFailure(); ++i) {
        const std::string numbers[] = {random_real(random), random_real(random), random_integer(random),
                                       "0x" + random_integer(random), words[random() % words.size()]};
        std::string text = spaces(random) + numbers[random() % 5];
        if (random() % 2)
            text = spoiled(random, text, "0123456789..eE+-xXpPinfaNINFTYtybcz \t,");
        const int bases[] = {0, 2, 8, 10, 16, 36};
        const int base = bases[random() % 6];
        const auto as_signed = by(std::strtoll, base);
        const auto as_unsigned = by(std::strtoull, base);
        expect_scan<double>(text, std::strtod, ZC_assign_double_from_char_c_array);
        expect_scan<float>(text, std::strtof, ZC_assign_float_from_char_c_array);
        expect_scan<std::int32_t>(text, by(std::strtoll, 10), ZC_assign_int_from_char_c_array);
        expect_scan<std::uint32_t>(text, by(std::strtoull, 10), ZC_assign_unsigned_from_char_c_array);
        expect_scan<std::int32_t>(text, as_signed, ZC_assign_int_with_base_from_char_c_array, base);
        expect_scan<std::int64_t>(text, as_signed, ZC_assign_int64_with_base_from_char_c_array, base);
        expect_scan<std::uint32_t>(text, as_unsigned, ZC_assign_unsigned_with_base_from_char_c_array, base);
        expect_scan<std::uint64_t>(text, as_unsigned, ZC_assign_unsigned64_with_base_from_char_c_array, base);
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
    EXPECT_TRUE(value == 7 && wide == 7);
    EXPECT_EQ(ZC_assign_int_from_char_c_array("123", 2, &value), 2U); // not beyond the length
    EXPECT_EQ(value, 12);
}

TEST(Special_Value, the_first_word_that_ends_is_found)
{
    const std::pair<std::string, std::uint32_t> rows[] = {
        {"inf", 0},        {"1 INF", 2},      {"infinity", 0},       {"infinit", 7},
        {"xInfinity ", 1}, {"nano NaN\n", 5}, {"infinf\v", 3},       {"in", 2},
        {"na", 2},         {"nan,inf\f", 4},  {"infinityx nan", 10}, {"", 0}};
    for (const auto &[text, place] : rows)
        EXPECT_EQ(scanned(text, ZC_find_special_value_in_char_c_array), place) << text;
}
