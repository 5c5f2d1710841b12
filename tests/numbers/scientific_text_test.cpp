#include "core/engine/namespace.hpp"
#include "numbers/ZEB_Number_Functions.h"
#include "numbers/engine/number_format.hpp"
#include "tests/reference/scientific_text.hpp"
#include "tests/support/guarded_text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

using zeb_test::guarded_text;

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double eulers_number = 2.718281828459045;

reference::Scientific scientific(std::uint32_t precision, double x, double base, double zero_reference)
{
    reference::Scientific result;
    ZEB_Index_Range range{77, 77};
    result.text = guarded_text(ZEB_SCIENTIFIC_TEXT_SIZE, [&](char *buffer) {
        return ZC_format_scientific_double(buffer, precision, &result.kind, &range, x, base, zero_reference);
    });
    result.start = range.start;
    result.end = range.end;
    return result;
}

template <typename Format>
reference::Scientific formatted(std::size_t size, Format format)
{
    engine::Number_Format_Result result{9, 9, {9, 9}};
    const std::string text = guarded_text(size, [&](char *buffer) { return format(buffer, result); });
    return {text, result.result_kind, result.error_code, result.range.start, result.range.end};
}

reference::Scientific value_text(const engine::Scientific_Rules &rules, double x)
{
    return formatted(engine::scientific_text_size, [&](char *buffer, auto &result) {
        return engine::format_value(buffer, rules, x, result);
    });
}

reference::Scientific fixed_text(std::uint32_t decimals, double x)
{
    return formatted(
        64, [&](char *buffer, auto &result) { return engine::format_fixed(buffer, decimals, x, result); });
}

void expect_same(const reference::Scientific &made, const reference::Scientific &expected)
{
    EXPECT_EQ(made.text, expected.text);
    EXPECT_EQ(made.kind, expected.kind) << expected.text;
    EXPECT_EQ(made.error, expected.error) << expected.text;
    EXPECT_EQ(made.start, expected.start) << expected.text;
    EXPECT_EQ(made.end, expected.end) << expected.text;
}

} // namespace

TEST(Scientific_Text, known_texts_and_their_raised_ranges)
{
    expect_same(scientific(2, 1234567.0, 10.0, 1.0), {"1.23 106", 3, 0, 7, 7});
    expect_same(scientific(2, 0.00002, 10.0, 1.0), {"2 10-5", 3, 0, 4, 5});
    expect_same(scientific(2, 5.0, eulers_number, 1.0), {"0.68 e2", 3, 0, 6, 6});
    expect_same(scientific(0, 3000.0, 10.0, 1.0), {"103", 3, 0, 2, 2});     // one digit is left out
    expect_same(scientific(0, -3000.0, 10.0, 1.0), {"-3 103", 3, 0, 5, 5}); // two characters are not
    expect_same(scientific(3, 0.0, 10.0, 1.0), {"0 101", 3, 0, 4, 4});
    expect_same(scientific(3, 6.0, 1.5, 0.0), {"1.185 1.54", 3, 0, 9, 9});
    expect_same(scientific(3, 5.0, 1.0, 0.0), {"Err"});            // no power of 1
    expect_same(scientific(3, 0.0, 10.0, -1.0), {"Err"});          // no logarithm of 0
    expect_same(scientific(4294967295U, 5.0, 10.0, 1.0), {"Err"}); // no room for the mantissa
    expect_same(scientific(3, -infinity, 10.0, 1.0), {"Inf"});
    for (const double no_base : {0.0, -0.0, infinity, -infinity, std::nan("")}) {
        expect_same(scientific(3, 5.0, no_base, 1.0), {"Err"});
        expect_same(scientific(3, 0.0, no_base, 1.0), {"Err"}); // also where no logarithm is asked for
    }
    expect_same(scientific(3, -1.5, 1e31, 1.0), {"Err"}); // the base does not fit behind the mantissa
    char buffer[ZEB_SCIENTIFIC_TEXT_SIZE];
    ZC_format_scientific_double(buffer, 2, nullptr, nullptr, 1234567.0, 10.0, 1.0);
    EXPECT_STREQ(buffer, "1.23 106");
}

TEST(Scientific_Text, seeded_values_and_bases_agree_with_the_transcription)
{
    std::mt19937_64 random(10);
    std::uniform_real_distribution<double> power(-320.0, 308.0), small_power(-9.0, 9.0);
    const double bases[] = {10.0, 2.0,  eulers_number, 1.5, 16.0, 0.5,     1e28,
                            60.0, -2.0, 1.0000001,     0.0, 1e31, infinity};
    for (int i = 0; i < 100000; ++i) {
        const std::uint32_t precision = static_cast<std::uint32_t>(random() % 34);
        const double base = bases[random() % std::size(bases)];
        const double reference_value = random() % 4 ? 1.0 : std::pow(10.0, small_power(random));
        double x =
            std::pow(10.0, random() % 2 ? small_power(random) : power(random)) * (random() % 2 ? 1 : -1);
        if (random() % 4 == 0) // powers of the base, where the exponent turns over
            x = std::pow(base, static_cast<double>(random() % 20) - 10.0);
        SCOPED_TRACE(testing::Message() << precision << " " << x << " " << base << " " << reference_value);
        expect_same(scientific(precision, x, base, reference_value),
                    reference::scientific(precision, x, base, reference_value));
        expect_same(value_text({precision, base, reference_value}, x),
                    reference::format_value(precision, x, base, reference_value));
        expect_same(fixed_text(precision * 2, x), reference::format_fixed(precision * 2, x));
        ASSERT_FALSE(HasFailure());
    }
}

TEST(Number_Format, special_values_and_failures)
{
    const engine::Scientific_Rules rules{6, 10.0, 1.0};
    expect_same(value_text(rules, std::nan("")), {"NaN", 0, 201});
    expect_same(value_text(rules, -infinity), {"Inf", 0, 201});
    expect_same(value_text(rules, -1e-12), {"0", 1});
    expect_same(value_text(rules, -1.1e-12), {"-1.1 10-12", 3, 0, 7, 9});
    expect_same(value_text(rules, -0.25), {"-0.25", 2});
    expect_same(fixed_text(3, std::nan("")), {"NaN", 0, 201});
    expect_same(fixed_text(3, -2.5), {"-2.500", 2});
    expect_same(fixed_text(61, 2.5), {"2.5" + std::string(60, '0'), 2});
    expect_same(fixed_text(62, 2.5), {"", 0, 201});
    expect_same(fixed_text(4294967295U, 2.5), {"", 0, 201});
}
