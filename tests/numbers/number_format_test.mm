#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/reference/scientific_text.hpp"
#include "tests/support/guarded_text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace
{

std::string text_of(ZEB_Number_Format *format)
{
    ZEB_Wide_String *const text = [format text];
    return {[text wide_char_data], [text wide_char_data] + [text count]};
}

/// A format's text and what it says of it, by `format_value` or by `format_fixed`.
reference::Scientific formatted(ZEB_Number_Format *format, double x, bool fixed)
{
    [[format text] clear];
    fixed ? [format format_fixed:x] : [format format_value:x];
    return {text_of(format), [format result_kind], [format error_code], [format range].start,
            [format range].end};
}

reference::Scientific scientific(uint32_t precision, double x, double base, double zero_reference)
{
    reference::Scientific result;
    ZEB_Index_Range range{77, 77};
    result.text = zeb_test::guarded_text(ZEB_SCIENTIFIC_TEXT_SIZE, [&](char *buffer) {
        return ZC_format_scientific_double(buffer, precision, &result.kind, &range, x, base, zero_reference);
    });
    result.start = range.start;
    result.end = range.end;
    return result;
}

constexpr double infinity = INFINITY, eulers_number = 2.718281828459045;

void expect_same(const reference::Scientific &made, const reference::Scientific &expected)
{
    ASSERT_EQ(made.text, expected.text);
    ASSERT_EQ(made.kind, expected.kind) << expected.text;
    ASSERT_EQ(made.error, expected.error) << expected.text;
    ASSERT_EQ(made.start, expected.start) << expected.text;
    ASSERT_EQ(made.end, expected.end) << expected.text;
}

} // namespace

TEST(Number_Format, texts_kinds_and_ranges_agree_with_the_transcription)
{
    const double bases[] = {10, 2,  eulers_number, 1.5, 16,   0.5,      1e28,
                            60, -2, 1.0000001,     0,   1e31, infinity, -3};
    const double special[] = {0, -0.0, infinity, -infinity, NAN, 1e-12, 5e-324, -1234567, 1e6, 0.0001};
    ZEB_Number_Format *const format = [[[ZEB_Number_Format alloc] init] autorelease];
    std::mt19937_64 random(7);
    for (int i = 0; i < 50000 && !testing::Test::HasFailure(); ++i) {
        const uint32_t precision = static_cast<uint32_t>(random() % 34);
        const double base = bases[random() % std::size(bases)], zero = random() % 2 ? 1.0 : 1e6;
        const double magnitude =
            std::pow(10.0, static_cast<double>(random() % (i % 2 ? 60 : 620)) - (i % 2 ? 30 : 320)) *
            static_cast<double>(random() % 2000000) / 1e6;
        double x = i % 10 ? std::copysign(magnitude, random() % 2 ? 1.0 : -1.0) : special[i / 10 % 10];
        if (random() % 4 == 0) // powers of the base, where the exponent turns over
            x = std::pow(base, static_cast<double>(random() % 20) - 10.0);
        SCOPED_TRACE(testing::Message()
                     << x << " base " << base << " precision " << precision << " zero " << zero);
        [format set_precision:precision];
        [format set_exponent_base:base];
        [format set_zero_reference:zero];
        expect_same(formatted(format, x, false), reference::format_value(precision, x, base, zero));
        expect_same(formatted(format, x, true), reference::format_fixed(precision, x));
        expect_same(scientific(precision, x, base, zero), reference::scientific(precision, x, base, zero));
    }
}

TEST(Number_Format, known_texts_and_their_raised_ranges)
{
    expect_same(scientific(2, 1234567.0, 10.0, 1.0), {"1.23 106", 3, 0, 7, 7});
    expect_same(scientific(2, 0.00002, 10.0, 1.0), {"2 10-5", 3, 0, 4, 5});
    expect_same(scientific(2, 5.0, eulers_number, 1.0), {"0.68 e2", 3, 0, 6, 6});
    expect_same(scientific(0, 3000.0, 10.0, 1.0), {"103", 3, 0, 2, 2});     // one digit is left out
    expect_same(scientific(0, -3000.0, 10.0, 1.0), {"-3 103", 3, 0, 5, 5}); // two characters are not
    expect_same(scientific(3, 0.0, 10.0, 1.0), {"0 101", 3, 0, 4, 4});
    expect_same(scientific(3, 6.0, 1.5, 0.0), {"1.185 1.54", 3, 0, 9, 9});
    expect_same(scientific(3, -infinity, 10.0, 1.0), {"Inf"});
    const struct {
        uint32_t precision;
        double x, base, zero_reference;
    } errors[] = {{3, 5, 1, 0},   {3, 0, 10, -1},       {4294967295u, 5, 10, 1},
                  {3, 5, 0, 1},   {3, 5, -0.0, 1},      {3, 5, infinity, 1},
                  {3, 0, NAN, 1}, {3, 0, -infinity, 1}, {3, -1.5, 1e31, 1}};
    for (const auto &row : errors)
        expect_same(scientific(row.precision, row.x, row.base, row.zero_reference), {"Err"});
    char buffer[ZEB_SCIENTIFIC_TEXT_SIZE];
    ZC_format_scientific_double(buffer, 2, nullptr, nullptr, 1234567.0, 10.0, 1.0);
    EXPECT_STREQ(buffer, "1.23 106");

    ZEB_Number_Format *const format = [[[ZEB_Number_Format alloc] init] autorelease];
    expect_same(formatted(format, NAN, false), {"NaN", 0, 201});
    expect_same(formatted(format, -infinity, false), {"Inf", 0, 201});
    expect_same(formatted(format, -1e-12, false), {"0", 1});
    expect_same(formatted(format, -1.1e-12, false), {"-1.1 10-12", 3, 0, 7, 9});
    expect_same(formatted(format, -0.25, false), {"-0.25", 2});
    expect_same(formatted(format, NAN, true), {"NaN", 0, 201});
    const std::pair<uint32_t, reference::Scientific> decimals[] = {{3, {"-2.500", 2}},
                                                                   {60, {"-2.5" + std::string(59, '0'), 2}},
                                                                   {62, {"", 0, 201}},
                                                                   {4294967295u, {"", 0, 201}}};
    for (const auto &[count, expected] : decimals) {
        [format set_precision:count];
        expect_same(formatted(format, -2.5, true), expected);
    }
}

TEST(Number_Format, a_new_one_appends_to_a_text_of_its_own)
{
    ZEB_Number_Format *const format = [[[ZEB_Number_Format alloc] init] autorelease];
    EXPECT_EQ([format precision], 6u);
    EXPECT_EQ([format exponent_base], 10.0);
    EXPECT_EQ([format zero_reference], 1.0);
    [format format_value:1234567];
    [format format_value:0.5];
    EXPECT_EQ(text_of(format), "1.234567 1060.5");
    EXPECT_STREQ([[format description] UTF8String], "1.234567 1060.5");
}

TEST(Number_Format, texts_can_be_gathered_in_one_string_and_copies_part)
{
    ZEB_Wide_String *const label = [[[ZEB_Wide_String alloc] init] autorelease];
    ZEB_Number_Format *const format = [[[ZEB_Number_Format alloc] init] autorelease];
    [format set_text:label];
    [format set_text:label];
    [format format_value:2e7];
    EXPECT_EQ([label count], 5u);

    ZEB_Number_Format *const copied = [[format copy] autorelease];
    EXPECT_EQ(text_of(copied), "2 107");
    EXPECT_EQ([copied range].start, 4u);
    EXPECT_EQ([copied result_kind], 3u);
    [copied format_value:NAN];
    EXPECT_EQ(text_of(copied), "2 107NaN");
    EXPECT_EQ(text_of(format), "2 107");
    EXPECT_EQ([copied error_code], 201u);
    [copied set_text:nil];
    [copied format_fixed:1];
    EXPECT_EQ(text_of(copied), "1.000000");

    [format set_result_kind:1];
    [format set_error_code:2];
    [format set_range:ZEB_Index_Range{3, 4}];
    EXPECT_EQ([format result_kind] + [format error_code] + [format range].start + [format range].end, 10u);
}
