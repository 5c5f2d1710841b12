#include "numbers/ZEB_Number_Functions.h"
#include "tests/calendar/random_text.hpp"
#include "tests/reference/number_scanning.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <vector>

using namespace zeb_test;

namespace
{

template <typename Value>
std::string bits(Value value)
{
    unsigned char bytes[sizeof value];
    std::memcpy(bytes, &value, sizeof value);
    return std::string(bytes, bytes + sizeof value);
}

/// Scans a copy that ends with the array's last byte, so that a sanitizer sees any look beyond it.
template <typename Value, typename Scanner, typename Reference>
void expect_same_scan(const std::string &text, Scanner scanner, Reference transcription)
{
    const std::vector<char> exact(text.begin(), text.end());
    Value value = static_cast<Value>(77), expected = static_cast<Value>(77);
    const std::uint32_t count = scanner(exact.data(), static_cast<std::uint32_t>(exact.size()), &value);
    ASSERT_EQ(count, transcription(text, &expected)) << '"' << text << '"';
    ASSERT_EQ(bits(value), bits(expected)) << '"' << text << '"';
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

TEST(Real_Scanning, seeded_texts_are_read_as_the_c_library_reads_them)
{
    std::mt19937_64 random(5);
    const std::string alphabet = "0123456789..eE+-xXpPinfaNINFTYty \t,";
    const char *const words[] = {"inf",
                                 "-Infinity",
                                 "nan(12)",
                                 "NaN",
                                 "0x",
                                 "0x1p",
                                 "1e",
                                 "1e+",
                                 ".",
                                 "-.",
                                 ".e5",
                                 "1e400",
                                 "-1e-400",
                                 "4.9e-324",
                                 "2.4703282292062327e-324",
                                 "0x.8p1",
                                 "1.17549435e-38",
                                 "+5",
                                 "00012."};
    for (int i = 0; i < 200000; ++i) {
        std::string text = spaces(random) + (random() % 8 ? random_real(random) : words[random() % 19]);
        if (random() % 2)
            text = spoiled(random, text, alphabet);
        if (random() % 8 == 0)
            text = random_run(random, alphabet, 40);
        ASSERT_NO_FATAL_FAILURE(
            expect_same_scan<double>(text, ZC_assign_double_from_char_c_array, reference::scan_double));
        ASSERT_NO_FATAL_FAILURE(
            expect_same_scan<float>(text, ZC_assign_float_from_char_c_array, reference::scan_float));
    }
}

TEST(Integer_Scanning, seeded_texts_are_read_as_the_c_library_reads_them)
{
    std::mt19937_64 random(6);
    for (int i = 0; i < 100000; ++i) {
        const int bases[] = {0, 2, 8, 10, 16, 36, 1, 37, -10};
        const int base = bases[random() % 9];
        std::string text = spaces(random) + (random() % 4 ? "" : "0x") + random_integer(random);
        text = spoiled(random, text, "0123456789abcxz+- ");
        const auto in_base = [base](auto function) {
            return [=](const char *chars, std::uint32_t length, auto *value) {
                return function(chars, length, base, value);
            };
        };
        const auto as = [](auto scan, int any_base) {
            return [=](const std::string &t, auto *v) { return scan(t, any_base, v); };
        };
        const auto as_signed = [](const std::string &t, int b, auto *v) {
            return reference::scan_signed(t, b, v);
        };
        const auto as_unsigned = [](const std::string &t, int b, auto *v) {
            return reference::scan_unsigned(t, b, v);
        };
        expect_same_scan<std::int32_t>(text, ZC_assign_int_from_char_c_array, as(as_signed, 10));
        expect_same_scan<std::uint32_t>(text, ZC_assign_unsigned_from_char_c_array, as(as_unsigned, 10));
        expect_same_scan<std::int32_t>(text, in_base(ZC_assign_int_with_base_from_char_c_array),
                                       as(as_signed, base));
        expect_same_scan<std::uint32_t>(text, in_base(ZC_assign_unsigned_with_base_from_char_c_array),
                                        as(as_unsigned, base));
        expect_same_scan<std::int64_t>(text, in_base(ZC_assign_int64_with_base_from_char_c_array),
                                       as(as_signed, base));
        expect_same_scan<std::uint64_t>(text, in_base(ZC_assign_unsigned64_with_base_from_char_c_array),
                                        as(as_unsigned, base));
        ASSERT_FALSE(HasFailure());
    }
}

TEST(Integer_Scanning, stops_after_the_number_and_leaves_the_result_of_none)
{
    std::int32_t value = 7;
    EXPECT_EQ(ZC_assign_int_from_char_c_array("abc", 3, &value), 0U);
    EXPECT_EQ(ZC_assign_int_from_char_c_array(nullptr, 0, &value), 0U);
    EXPECT_EQ(value, 7);
    EXPECT_EQ(ZC_assign_int_from_char_c_array("12abc", 5, &value), 2U);
    EXPECT_EQ(value, 12);
    EXPECT_EQ(ZC_assign_int_from_char_c_array("123", 2, &value), 2U); // not beyond the length
    EXPECT_EQ(value, 12);
}

TEST(Special_Value, the_first_word_that_ends_is_found)
{
    std::mt19937_64 random(8);
    const std::string words[] = {"inf", "INF",     "infinity", "Infinity", "nan", "NaN", "in",
                                 "na",  "infinit", "nano",     " ",        "\n",  "1.5", ","};
    for (int i = 0; i < 100000; ++i) {
        std::string text;
        for (std::uint64_t n = random() % 7; n > 0; --n)
            text += words[random() % 14];
        const std::vector<char> exact(text.begin(), text.end());
        ASSERT_EQ(
            ZC_find_special_value_in_char_c_array(exact.data(), static_cast<std::uint32_t>(exact.size())),
            reference::special_value(text))
            << text;
    }
}
