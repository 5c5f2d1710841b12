#include "tests/support/class_test.hpp"
#include "tests/support/guarded_text.hpp"

#include <array>
#include <cmath>
#include <random>

using zeb_test::guarded_text;

namespace
{

constexpr double infinity = INFINITY, eulers_number = 2.718281828459045;

/// A text, and what is said of it.
std::string told(const std::string &text, uint32_t kind, uint32_t error = 0, ZEB_Index_Range range = {0, 0})
{
    return text + ", kind " + std::to_string(kind) + ", error " + std::to_string(error) + ", from " +
           std::to_string(range.start) + " to " + std::to_string(range.end);
}

std::string text_of(ZEB_Number_Format *format)
{
    ZEB_Wide_String *const text = [format text];
    return {[text wide_char_data], [text wide_char_data] + [text count]};
}

/// By `format_value` or by `format_fixed`.
std::string formatted(ZEB_Number_Format *format, double x, bool fixed = false)
{
    [[format text] clear];
    fixed ? [format format_fixed:x] : [format format_value:x];
    return told(text_of(format), [format result_kind], [format error_code], [format range]);
}

std::string scientific(uint32_t precision, double x, double base, double zero_reference)
{
    uint32_t kind = 77;
    ZEB_Index_Range range{77, 77};
    const std::string text = guarded_text(ZEB_SCIENTIFIC_TEXT_SIZE, ZC_format_scientific_double, precision,
                                          &kind, &range, x, base, zero_reference);
    return told(text, kind, 0, range);
}

} // namespace

TEST(Scientific_Text, mantissa_base_and_exponent_amount_to_the_number)
{
    const std::pair<double, std::string> bases[] = {{10, "10"},   {2, "2"},     {eulers_number, "e"},
                                                    {1.5, "1.5"}, {0.5, "0.5"}, {60, "60"}};
    std::mt19937_64 random(7);
    for (int i = 0; i < 10000; ++i) {
        const auto precision = static_cast<uint32_t>(random() % 13) + 1;
        const auto &[base, base_text] = bases[random() % std::size(bases)];
        const bool is_power = random() % 4 == 0; // of the base, where the exponent turns over
        const double x = is_power ? std::pow(base, static_cast<double>(random() % 20) - 10.0)
                                  : std::ldexp(static_cast<double>(static_cast<int64_t>(random())),
                                               -static_cast<int>(random() % 90));
        ZEB_Index_Range range;
        const std::string text = guarded_text(ZEB_SCIENTIFIC_TEXT_SIZE, ZC_format_scientific_double,
                                              precision, nullptr, &range, x, base, 0);
        const std::size_t base_at = text.find(' ') + 1;
        const double mantissa = std::stod(text), power = std::pow(base, std::stoi(text.substr(range.start)));
        const double unit = power * std::pow(0.1, precision);
        ASSERT_NEAR(mantissa * power, x, unit / 2 + std::fabs(x) * 1e-15) << text;
        ASSERT_EQ(range.end + 1, text.size());
        ASSERT_EQ(text.substr(base_at, range.start - base_at), base_text);
        if (base > 1 && base_text != "e") { // whose mantissa is 1 at most
            ASSERT_GT(std::fabs(mantissa), 1 - 1e-10) << text;
            ASSERT_LE(std::fabs(mantissa), is_power ? 1 + 1e-10 : base) << text;
        }
    }
}

TEST(Number_Format, known_texts_and_their_raised_ranges)
{
    const struct {
        uint32_t precision;
        double x, base, zero_reference;
        std::string text;
        ZEB_Index_Range raised;
    } rows[] = {
        {2, 1234567, 10, 1, "1.23 106", {7, 7}},
        {2, 0.00002, 10, 1, "2 10-5", {4, 5}},
        {2, 5, eulers_number, 1, "0.68 e2", {6, 6}},
        {0, 3000, 10, 1, "103", {2, 2}},     // one digit is left out
        {0, -3000, 10, 1, "-3 103", {5, 5}}, // two characters are not
        {3, 0, 10, 1, "0 101", {4, 4}},
        {3, 6, 1.5, 0, "1.185 1.54", {9, 9}},
        {29, 3, 10, 1, "3 100", {4, 4}}, // a part has 31 characters at most
    };
    for (const auto &row : rows)
        EXPECT_EQ(scientific(row.precision, row.x, row.base, row.zero_reference),
                  told(row.text, 3, 0, row.raised));
    EXPECT_EQ(scientific(3, NAN, 10, 1), told("NaN", 0));
    const std::array<double, 4> refused[] = {
        {30, 3, 10, 1}, {29, -3, 10, 1}, {4294967295, 5, 10, 1}, {3, 5, 1, 0},   {3, 0, 10, -1},
        {3, 5, -2, 1},  {3, 5, 0, 1},    {3, 5, infinity, 1},    {3, 0, NAN, 1}, {3, -1.5, 1e31, 1}};
    for (const auto &[precision, x, base, zero_reference] : refused)
        EXPECT_EQ(scientific(static_cast<uint32_t>(precision), x, base, zero_reference), told("Err", 0))
            << x << ' ' << base;

    ZEB_Number_Format *const format = [[[ZEB_Number_Format alloc] init] autorelease];
    EXPECT_EQ(formatted(format, -infinity), told("Inf", 0, 201));
    EXPECT_EQ(formatted(format, -1e-12), told("0", 1));
    EXPECT_EQ(formatted(format, -1.1e-12), told("-1.1 10-12", 3, 0, {7, 9}));
    for (const auto &[x, text] : {std::pair(-0.25, "-0.25"), {0.0001, "0.0001"}, {999999.5, "999999.5"}})
        EXPECT_EQ(formatted(format, x), told(text, 2));
    EXPECT_EQ(formatted(format, -0.00009), told("-9 10-5", 3, 0, {5, 6}));
    EXPECT_EQ(formatted(format, 1e6), told("1 106", 3, 0, {4, 4}));
    EXPECT_EQ(formatted(format, NAN, true), told("NaN", 0, 201));
    EXPECT_EQ(formatted(format, -2.5, true), told("-2.500000", 2));
    [format set_precision:60];
    EXPECT_EQ(formatted(format, -2.5, true), told("-2.5" + std::string(59, '0'), 2));
    for (const uint32_t precision : {61u, 4294967295u}) {
        [format set_precision:precision];
        EXPECT_EQ(formatted(format, -2.5, true), told("", 0, 201));
    }
}

TEST(Number_Format, texts_are_gathered_in_one_string_and_copies_part)
{
    ZEB_Number_Format *const format = [[[ZEB_Number_Format alloc] init] autorelease];
    EXPECT_EQ([format zero_reference], 1.0);
    [format format_value:1234567];
    [format format_value:0.5];
    EXPECT_STREQ([[format description] UTF8String], "1.234567 1060.5");

    ZEB_Wide_String *const label = [[[ZEB_Wide_String alloc] init] autorelease];
    [format set_text:label];
    [format set_text:label];
    [format format_value:2e7];
    EXPECT_EQ([label count], 5u);

    ZEB_Number_Format *const copied = [[format copy] autorelease];
    EXPECT_EQ(text_of(copied), "2 107");
    EXPECT_EQ([copied range].start + [copied result_kind], 4u + 3u);
    [copied format_value:NAN];
    EXPECT_EQ(text_of(copied) + ", " + text_of(format), "2 107NaN, 2 107");
    [copied set_text:nil];
    [copied format_fixed:1];
    EXPECT_EQ(text_of(copied), "1.000000");
}
