#include "calendar/ZEB_Calendar_Functions.h"
#include "calendar/engine/date_text.hpp"
#include "core/engine/namespace.hpp"
#include "numbers/ZEB_Number_Functions.h"
#include "numbers/engine/number_format.hpp"
#include "tests/reference/number_scanning.hpp"
#include "tests/support/comma_locale.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

namespace
{

/// One text of every writer.
std::vector<std::string> all_texts(double x)
{
    char buffer[128];
    char *const start = buffer;
    engine::Number_Format_Result result{};
    const engine::Scientific_Rules rules{3, 1.5, 1.0};
    const engine::Date_Time date = engine::make_date_time({2000, 1, 1}, 5, 250000000);
    const std::function<char *()> writers[] = {
        [&] { return ZC_pretty_format_double(buffer, x); },
        [&] { return ZC_pretty_format_float(buffer, static_cast<float>(x)); },
        [&] { return ZC_format_fixed_double(buffer, 3, x); },
        [&] { return ZC_format_fraction_double(buffer, 3, x); },
        [&] { return ZC_format_fixed_float(buffer, 3, static_cast<float>(x)); },
        [&] { return ZC_format_scientific_double(buffer, 3, nullptr, nullptr, x, 1.5, 1.0); },
        [&] { return engine::format_value(buffer, rules, x, result); },
        [&] { return engine::format_fixed(buffer, 5, x, result); },
        [&] { return ZC_pretty_format_gregorian_date_from_seconds(buffer, x); },
        [&] { return engine::write_slash_text(buffer, date); },
        [&] { return ZC_format_iso8601_from_seconds(buffer, x); },
    };
    std::vector<std::string> texts;
    for (const auto &writer : writers)
        texts.emplace_back(start, writer());
    return texts;
}

} // namespace

TEST_F(Comma_Locale, writers_know_no_locale)
{
    for (const double x :
         {0.5, -1234.5678, 1.5e-7, 1.000000000000005e18 /* a tie, left to the C library */, 1e300}) {
        const std::vector<std::string> with_comma = all_texts(x);
        const std::string locale = std::setlocale(LC_NUMERIC, nullptr);
        std::setlocale(LC_NUMERIC, "C");
        EXPECT_EQ(with_comma, all_texts(x));
        std::setlocale(LC_NUMERIC, locale.c_str());
    }
}

TEST_F(Comma_Locale, scanners_read_what_the_writers_write)
{
    const std::string locale = std::setlocale(LC_NUMERIC, nullptr);
    for (const std::string text :
         {"1.5", "1,5", "12", ".5", "1e5.5", "1.5e2x", "-0x1.8p1", "0x1,8p1", "+2.25", " 2.5",
          "1.797693134862315708145274237318", "infinity", "-nan(7)", "1e-400", "1234.5e"}) {
        const std::uint32_t length = static_cast<std::uint32_t>(text.size());
        double value = -7, expected = -7;
        float single = -7, expected_single = -7;
        const std::uint32_t count = ZC_assign_double_from_char_c_array(text.data(), length, &value);
        const std::uint32_t single_count = ZC_assign_float_from_char_c_array(text.data(), length, &single);
        EXPECT_EQ(std::setlocale(LC_NUMERIC, nullptr), locale);
        std::setlocale(LC_NUMERIC, "C");
        EXPECT_EQ(count, reference::scan_double(text, &expected)) << text;
        EXPECT_EQ(single_count, reference::scan_float(text, &expected_single)) << text;
        std::setlocale(LC_NUMERIC, locale.c_str());
        EXPECT_TRUE(value == expected || (std::isnan(value) && std::isnan(expected))) << text;
        EXPECT_TRUE(single == expected_single || (std::isnan(single) && std::isnan(expected_single))) << text;
    }
}

TEST_F(Comma_Locale, dates_are_read_with_a_full_stop)
{
    const struct {
        const char *text;
        std::uint32_t count;
        double seconds;
    } rows[] = {{"1/1/1970 0:0:5.5", 16, 5.5},
                {"1/1/1970 0:0:5,5", 14, 5},
                {"1/1/1970 0:0:5.5e1", 18, 55}, // left to the C library
                {"1/1/1970 0:0:0x1.8p1", 20, 3},
                {"1/1/1970,5", 8, 0}};
    for (const auto &row : rows) {
        double seconds = -7;
        EXPECT_EQ(ZC_assign_seconds_from_gregorian_date_char_c_array(
                      row.text, static_cast<std::uint32_t>(std::strlen(row.text)), &seconds),
                  row.count)
            << row.text;
        EXPECT_EQ(seconds, row.seconds) << row.text;
    }
    EXPECT_EQ(engine::read_spaced_text("1/2/2000 3:4:5.6", 16).time.nanosecond, 6U);
    double seconds = 0;
    EXPECT_EQ(ZC_assign_seconds_from_iso8601_char_c_array("1970-01-01T00:00:01.5", 21, &seconds), 21U);
    EXPECT_EQ(seconds, 1.5);
}
