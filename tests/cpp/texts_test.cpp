#include <Korvane_ZEB_engine/Korvane_ZEB_engine.hpp>

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace
{

using namespace std::string_literals;
using Texts = std::vector<std::string>;

TEST(Cpp_Texts, pieces_join_to_the_text_again)
{
    const struct {
        std::string text, separator;
        Texts pieces;
    } cases[] = {{"", ",", {""}},          {",", ",", {"", ""}}, {"a,b,", ",", {"a", "b", ""}},
                 {"aaa", "aa", {"", "a"}}, {"abc", "", {"abc"}}, {"a\0b"s, "\0"s, {"a", "b"}}};
    for (const auto &[text, separator, pieces] : cases) {
        const zeb::Pieces range(text, separator);
        Texts found;
        for (const std::string_view piece : range)
            found.emplace_back(piece);
        EXPECT_EQ(found, pieces);
        EXPECT_EQ(zeb::join(found, separator), text);
    }
    EXPECT_EQ(zeb::join(Texts{}, ","), "");
}

TEST(Cpp_Texts, searches_comparisons_and_trimming)
{
    EXPECT_EQ(zeb::find("abcabc", "bc", 2), 4u);
    EXPECT_EQ(zeb::find_last("abcabc", "ab"), 3u);
    EXPECT_TRUE(!zeb::find("abc", "") && !zeb::find("abc", "a", 9) && !zeb::find_last("abc", "d"));
    EXPECT_EQ(zeb::trim(" \t a b\n"), "a b");
    EXPECT_EQ(zeb::trim_left("  "), "");
    EXPECT_TRUE(zeb::compare("ab", "abc") < 0 && zeb::compare("\xFF", "a") > 0 && zeb::compare("", "") == 0);
    EXPECT_TRUE(zeb::is_equal_ignoring_case("Abc", "aBC") && zeb::compare_ignoring_case("B", "a") > 0);
    EXPECT_EQ(zeb::number_start("x = -2.5 m"), 4u);
    EXPECT_EQ(zeb::number_prefix_length("2.5 m"), 3u);
    EXPECT_EQ(zeb::number_end("x = -2.5 m"), 7u);
    const std::u32string points = *zeb::code_points_of_utf8("a\u00E4\U0001F600");
    EXPECT_EQ(points, U"a\u00E4\U0001F600");
    EXPECT_EQ(zeb::utf8_of_code_points(points), "a\u00E4\U0001F600");
    EXPECT_TRUE(!zeb::code_points_of_utf8("\xC0\x80") && !zeb::utf8_of_code_points({U"\xD800", 1}));
    EXPECT_FALSE(zeb::is_valid_utf8("\xE4"));
}

TEST(Cpp_Texts, numbers_are_read_as_they_were_written)
{
    for (const double number : {0.1, -1e22, 5e-324, 1.7976931348623157e308, 123456.789}) {
        double read = 0;
        const zeb::Number_Text text = zeb::shortest_text(number);
        EXPECT_EQ(zeb::scan_number(text, read), text.size());
        EXPECT_EQ(read, number);
    }
    EXPECT_EQ(zeb::pretty_text(1.0 / 3).view(), "0.333333333333");
    EXPECT_EQ(zeb::fixed_text(-2.506, 2).view(), "-2.51");
    EXPECT_EQ(zeb::decimal_text(INT64_MIN).view(), std::to_string(INT64_MIN));
    EXPECT_EQ(zeb::decimal_text(7u).c_str(), "7"s);
    std::int32_t integer = 5;
    EXPECT_EQ(zeb::scan_number(" -0x1F", integer, 16), 6u);
    EXPECT_EQ(integer, -31);
    EXPECT_EQ(zeb::scan_number("x", integer), 0u);
    EXPECT_EQ(integer, -31);
}

TEST(Cpp_Dates, days_instants_and_texts_agree)
{
    for (const std::int64_t day : {-1000000ll, -1ll, 0ll, 1721426ll, 2440588ll, 2460000ll, 5000000ll}) {
        const zeb::Gregorian_Date date = *zeb::date_of_julian_day(day);
        EXPECT_EQ(zeb::julian_day(date), day);
        zeb::Date_And_Time read{};
        const zeb::Number_Text text = zeb::iso_text(zeb::Date_And_Time{date, {86399, 500000000}});
        EXPECT_EQ(zeb::scan_iso_text(text, read), text.size());
        EXPECT_TRUE(zeb::julian_day(read.date) == day && read.time.second == 86399 &&
                    read.time.nanosecond == 500000000);
        const auto midnight = zeb::date_of_seconds_since_1970(zeb::seconds_since_1970({date, {0, 0}}));
        EXPECT_TRUE(zeb::julian_day(midnight->date) == day && midnight->time.second == 0);
    }
    EXPECT_EQ(zeb::weekday({1970, 1, 1}), 3u); // a Thursday
    EXPECT_EQ(zeb::weekday(*zeb::date_of_julian_day(-1)), 6u);
    EXPECT_EQ(zeb::iso_text(zeb::add_months({2024, 1, 31}, 1)).view(), "2024-02-29");
    EXPECT_FALSE(zeb::date_of_julian_day(INT64_MAX) || zeb::date_of_seconds_since_1970(std::nan("")));
    zeb::Date_And_Time read{};
    EXPECT_EQ(zeb::scan_slash_text(" 7/14/1789 17:30:01.5", read), 21u);
    EXPECT_TRUE(read.date.year == 1789 && read.time.second == 63001 && read.time.nanosecond == 500000000);
    EXPECT_EQ(zeb::scan_slash_text("2/30/2000", read), 0u);
    EXPECT_EQ(read.date.year, 1789);
    const auto now = zeb::local_time(zeb::current_time());
    EXPECT_TRUE(now && now->date.year > 2000 && now->time.second < 86400);
}

TEST(Cpp_Units, names_symbols_and_conversions)
{
    std::size_t known = 0;
    for (const zeb::Dimension dimension : {ZEB_DIMENSION_LENGTH, ZEB_DIMENSION_TIME, ZEB_DIMENSION_ANGLE})
        for (std::size_t i = 0; i < zeb::unit_count(dimension); ++i)
            known += !zeb::unit_texts(*zeb::unit_at(dimension, i))->singular.empty();
    EXPECT_EQ(known, zeb::unit_count(ZEB_DIMENSION_LENGTH) + zeb::unit_count(ZEB_DIMENSION_TIME) +
                         zeb::unit_count(ZEB_DIMENSION_ANGLE));
    EXPECT_FALSE(zeb::unit_at(ZEB_DIMENSION_LENGTH, 1000) || zeb::unit_texts(ZEB_unit_identity(77, 1)));
    const zeb::Unit minute = ZEB_unit_identity(ZEB_DIMENSION_TIME, ZEB_UNIT_MINUTE);
    const zeb::Unit second = ZEB_unit_identity(ZEB_DIMENSION_TIME, ZEB_UNIT_SECOND);
    EXPECT_EQ(zeb::converted(2.5, minute, second), 150.0);
    EXPECT_FALSE(zeb::converted(1, minute, ZEB_unit_identity(ZEB_DIMENSION_TIME, ZEB_UNIT_MONTH)));
}

} // namespace
