#include "numbers/ZEB_Number_Functions.h"
#include "tests/reference/number_text.hpp"
#include "tests/support/guarded_text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

template <typename Writer, typename... Arguments>
std::string written(Writer writer, Arguments... arguments)
{
    return zeb_test::guarded_text(ZEB_NUMBER_TEXT_SIZE,
                                  [&](char *buffer) { return writer(buffer, arguments...); });
}

} // namespace

TEST(Pretty_Double, texts_of_its_ranges_and_their_edges)
{
    const struct {
        double value;
        const char *text;
    } rows[] = {
        {1.0 / 3.0, "0.333333333333"},
        {2.0 / 3.0, "0.666666666667"},
        {123456.789, "123456.789"},
        {-0.5, "-0.5"},
        {0.0001, "0.0001"},
        {std::nextafter(0.0001, 0.0), "1e-04"},
        {0.00001, "1e-05"},
        {1.5e-7, "1.5e-07"},
        {std::nextafter(1.0, 0.0), "1"},
        {1000000.0, "1e+06"},
        {-12345000000.0, "-1.2345e+10"},
        {999999999999999.5, "1e+15"},
        {1000000000000005.0, "1e+15"}, // a tie goes to the even digit
        {1000000000000015.0, "1.00000000000002e+15"},
        {-0.0, "0"},
        {-infinity, "Inf"},
        {not_a_number, "NaN"},
        {std::numeric_limits<double>::denorm_min(), "4.94065645841247e-324"},
        {-std::numeric_limits<double>::max(), "-1.79769313486232e+308"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(written(ZC_pretty_format_double, row.value), row.text);
}

TEST(Pretty_Float, texts_of_its_ranges_and_their_edges)
{
    const struct {
        float value;
        const char *text;
    } rows[] = {
        {0.5F, "0.5"},
        {1.0F / 3.0F, "0.3333"},
        {0.0001F, "1e-04"}, // just below the double 0.0001
        {1234.56789F, "1234.5679"},
        {1e6F, "1e+06"},
        {-1.5e-7F, "-1.5e-07"},
        {std::numeric_limits<float>::infinity(), "Inf"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(written(ZC_pretty_format_float, row.value), row.text);
}

TEST(Fixed_Text, every_count_of_decimals_agrees_with_the_transcription)
{
    std::mt19937_64 random(72);
    std::uniform_real_distribution<double> power(-15.0, 5.5);
    for (int i = 0; i < 200000; ++i) {
        const std::uint32_t decimals = static_cast<std::uint32_t>(random() % 14);
        double value = std::pow(10.0, power(random)) * (random() % 2 ? 1 : -1);
        if (random() % 2) // few decimals, and ties
            value = std::floor(value * 1e3) / 1e3 + 0.5 * std::pow(0.1, static_cast<double>(random() % 14));
        const float rounded = static_cast<float>(value);
        ASSERT_EQ(written(ZC_format_fixed_double, decimals, value), reference::fixed(decimals, value))
            << value;
        ASSERT_EQ(written(ZC_format_fraction_double, decimals, value), reference::fraction(decimals, value));
        ASSERT_EQ(written(ZC_format_fixed_float, decimals, rounded),
                  reference::fixed(decimals, static_cast<double>(rounded)));
    }
}

TEST(Fixed_Text, what_has_no_64_bit_digits_takes_another_form)
{
    EXPECT_EQ(written(ZC_format_fixed_double, 0U, 9223372036854774784.0), "9223372036854774784");
    EXPECT_EQ(written(ZC_format_fixed_double, 0U, -9223372036854775808.0), "-9.22337203685478e+18");
    EXPECT_EQ(written(ZC_format_fixed_double, 13U, 922337.25), "9.2233725e+05");
    EXPECT_EQ(written(ZC_format_fixed_float, 4U, -1e30F), "-1e+30");
    EXPECT_EQ(written(ZC_format_fixed_double, 4294967295U, 0.5), "0.5"); // counts as 13
    EXPECT_EQ(written(ZC_format_fixed_double, 2U, -infinity), "Inf");
    EXPECT_EQ(written(ZC_format_fraction_double, 2U, not_a_number), "NaN");
    EXPECT_EQ(written(ZC_format_fraction_double, 0U, -1e300), "1e+300"); // no sign
}
