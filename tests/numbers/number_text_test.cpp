#include "numbers/ZEB_Number_Functions.h"
#include "tests/support/guarded_text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using zeb_test::guarded_text;

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

constexpr std::size_t size = ZEB_NUMBER_TEXT_SIZE;

std::string pretty(double x) { return guarded_text(size, ZC_pretty_format_double, x); }
std::string pretty(float x) { return guarded_text(size, ZC_pretty_format_float, x); }
std::string fixed(std::uint32_t n, double x) { return guarded_text(size, ZC_format_fixed_double, n, x); }
std::string fixed(std::uint32_t n, float x) { return guarded_text(size, ZC_format_fixed_float, n, x); }
std::string fraction(std::uint32_t n, double x)
{
    return guarded_text(size, ZC_format_fraction_double, n, x);
}

} // namespace

// Numbers of every range at random: tests/exhaustive.
TEST(Number_Text, known_texts_at_the_edges_of_the_ranges)
{
    const std::pair<std::string, const char *> rows[] = {
        {pretty(-0.1234567), "-0.1234567"},
        {pretty(0.12345678), "0.12345678"},
        {pretty(0.0001), "0.0001"},
        {pretty(std::nextafter(0.0001, 0.0)), "1e-04"},
        {pretty(std::nextafter(1.0, 0.0)), "1"},
        {pretty(999999999999999.5), "1e+15"},
        {pretty(1000000000000005.0), "1e+15"}, // a tie goes to the even digit
        {pretty(1000000000000015.0), "1.00000000000002e+15"},
        {pretty(-0.0), "0"},
        {pretty(-infinity), "Inf"},
        {pretty(not_a_number), "NaN"},
        {pretty(std::numeric_limits<double>::denorm_min()), "4.94065645841247e-324"},
        {pretty(-std::numeric_limits<double>::max()), "-1.79769313486232e+308"},
        {pretty(1.0F / 3.0F), "0.3333"},
        {pretty(0.0001F), "1e-04"}, // just below the double 0.0001
        {fixed(2, -0.004), "0"},
        {fixed(13, 1.0 / 3.0), "0.3333333333333"},
        {fixed(4294967295U, 1.0 / 3.0), "0.3333333333333"}, // counts as 13
        {fixed(2, 99.995F), "100"},
        {fraction(3, -12.5), "12.5"}, // no sign
        {fraction(3, 0.5), ".5"},
        {fraction(3, 0.0001), ""},
        // What has no 64-bit digits takes another form.
        {fixed(0, 9223372036854774784.0), "9223372036854774784"},
        {fixed(0, -9223372036854775808.0), "-9.22337203685478e+18"},
        {fixed(13, 922337.25), "9.2233725e+05"},
        {fixed(4, -1e30F), "-1e+30"},
        {fixed(2, -infinity), "Inf"},
        {fraction(2, not_a_number), "NaN"},
        {fraction(0, -1e300), "1e+300"},
    };
    for (const auto &[text, expected] : rows)
        EXPECT_EQ(text, expected);
}

TEST(Number_Text, unsigned_numbers_around_the_powers_of_ten)
{
    for (std::uint32_t power = 1; power != 0; power = power < 1000000000 ? power * 10 : 0)
        for (const std::uint32_t value : {power - 1, power, power + 1, -power})
            EXPECT_EQ(guarded_text(11, ZC_pretty_format_unsigned, value), std::to_string(value));
}
