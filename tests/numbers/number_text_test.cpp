#include "core/engine/namespace.hpp"
#include "numbers/ZEB_Number_Functions.h"
#include "numbers/engine/shortest_text.hpp"
#include "tests/support/guarded_text.hpp"
#include "tests/support/random_text.hpp"

#include <gtest/gtest.h>

#include <cmath>

using zeb_test::guarded_text;

namespace
{

constexpr double infinity = INFINITY, not_a_number = NAN;
constexpr std::size_t size = ZEB_NUMBER_TEXT_SIZE;

std::string pretty(double x) { return guarded_text(size, ZC_pretty_format_double, x); }
std::string pretty(float x) { return guarded_text(size, ZC_pretty_format_float, x); }
std::string fixed(std::uint32_t n, double x) { return guarded_text(size, ZC_format_fixed_double, n, x); }
std::string fixed(std::uint32_t n, float x) { return guarded_text(size, ZC_format_fixed_float, n, x); }
std::string fraction(std::uint32_t n, double x)
{
    return guarded_text(size, ZC_format_fraction_double, n, x);
}

template <class Number>
std::string shortest(Number x)
{
    char text[engine::longest_shortest_text];
    return {text, engine::put_shortest(text, x)};
}

} // namespace

// Numbers of every range at random: tests/exhaustive.
TEST(Number_Text, known_texts_at_the_edges_of_the_ranges)
{
    const std::pair<std::vector<std::string>, const char *> rows[] = {
        {{pretty(-0.1234567), pretty(0.12345678), pretty(0.0001)}, "-0.1234567 0.12345678 0.0001"},
        {{pretty(std::nextafter(0.0001, 0.0)), pretty(std::nextafter(1.0, 0.0))}, "1e-04 1"},
        {{pretty(-0.0), pretty(-infinity), pretty(not_a_number)}, "0 Inf NaN"},
        {{pretty(0x1p-1074), pretty(-0x1.fffffffffffffp1023)},
         "4.94065645841247e-324 -1.79769313486232e+308"},
        {{pretty(1.0F / 3.0F), pretty(0.0001F)}, "0.3333 1e-04"}, // just below the double 0.0001
        {{fixed(2, -0.004), fixed(2, 99.995F), fixed(13, 1.0 / 3.0)}, "0 100 0.3333333333333"},
        {{fixed(4294967295U, 1.0 / 3.0)}, "0.3333333333333"}, // counts as 13
        {{fraction(3, -12.5), fraction(3, 0.5)}, "12.5 .5"},  // no sign
        // What has no 64-bit digits takes another form.
        {{fixed(0, 0x1p63 - 1024), fixed(0, -0x1p63)}, "9223372036854774784 -9.22337203685478e+18"},
        {{fixed(13, 922337.25), fixed(4, -1e30F), fixed(2, -infinity)}, "9.2233725e+05 -1e+30 Inf"},
        {{fraction(2, not_a_number), fraction(0, -1e300)}, "NaN 1e+300"},
    };
    for (const auto &[texts, expected] : rows)
        EXPECT_EQ(texts, zeb_test::words_of(expected));
    EXPECT_EQ(fraction(3, 0.0001), "");
}

TEST(Number_Text, shortest_texts_at_the_edges_of_the_notations)
{
    const std::vector<double> values = {
        0.0,    -0.0, infinity, -infinity, not_a_number, 0.1,  1e-4,      -1.25e-4,  1e-7,
        1.5e-5, 100,  1e15,     0x1p53,    1e16,         1e22, 123456.75, 0x1p-1074, -0x1.fffffffffffffp1023,
        0x1p-44};
    // The last one, rounded to 16 digits, is another number.
    const auto texts =
        zeb_test::words_of("0 -0 Inf -Inf NaN 0.1 0.0001 -0.000125 1e-07 1.5e-05 100 1000000000000000 "
                           "9007199254740992 1e+16 1e+22 123456.75 5e-324 "
                           "-1.7976931348623157e+308 5.684341886080802e-14");
    ASSERT_EQ(texts.size(), values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        double read = 0;
        EXPECT_EQ(shortest(values[i]), texts[i]);
        ZC_assign_double_from_char_c_array(texts[i].data(), static_cast<std::uint32_t>(texts[i].size()),
                                           &read);
        EXPECT_TRUE(read == values[i] || std::isnan(values[i])) << texts[i];
    }
    EXPECT_EQ(shortest(0.1F) + ' ' + shortest(16777216.0F) + ' ' + shortest(0x1p-149F), "0.1 16777216 1e-45");
}

TEST(Number_Text, unsigned_numbers_around_the_powers_of_ten)
{
    for (std::uint32_t power = 1; power != 0; power = power < 1000000000 ? power * 10 : 0)
        for (const std::uint32_t value : {power - 1, power, power + 1, -power})
            EXPECT_EQ(guarded_text(11, ZC_pretty_format_unsigned, value), std::to_string(value));
}
