#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/reference/scientific_text.hpp"

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

/// What was appended last, and what the format says of it.
void expect_result(ZEB_Number_Format *format, const reference::Scientific &expected)
{
    ASSERT_EQ(text_of(format), expected.text);
    ASSERT_EQ([format result_kind], expected.kind) << expected.text;
    ASSERT_EQ([format error_code], expected.error) << expected.text;
    ASSERT_EQ([format range].start, expected.start) << expected.text;
    ASSERT_EQ([format range].end, expected.end) << expected.text;
}

} // namespace

TEST(Number_Format, texts_kinds_and_ranges_agree_with_the_transcription)
{
    const double bases[] = {10, 2, 2.718281828459045, 1.5, 0, -3};
    const double special[] = {0, -0.0, INFINITY, -INFINITY, NAN, 1e-12, 5e-324, -1234567, 1e6, 0.0001};
    ZEB_Number_Format *const format = [[[ZEB_Number_Format alloc] init] autorelease];
    std::mt19937_64 random(7);
    for (int i = 0; i < 20000; ++i) {
        const double magnitude = std::pow(10.0, static_cast<double>(random() % 60) - 30) *
                                 static_cast<double>(random() % 2000000) / 1e6;
        const double x = i % 10 ? std::copysign(magnitude, random() % 2 ? 1.0 : -1.0) : special[i / 10 % 10];
        const uint32_t precision = static_cast<uint32_t>(random() % 18);
        const double base = bases[random() % 6], zero = random() % 2 ? 1.0 : 1e6;
        [format set_precision:precision];
        [format set_exponent_base:base];
        [format set_zero_reference:zero];
        [[format text] clear];
        [format format_value:x];
        ASSERT_NO_FATAL_FAILURE(expect_result(format, reference::format_value(precision, x, base, zero)))
            << x << " with base " << base;
        [[format text] clear];
        [format format_fixed:x];
        ASSERT_NO_FATAL_FAILURE(expect_result(format, reference::format_fixed(precision, x))) << x;
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
