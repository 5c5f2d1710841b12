#include "calendar/engine/date_arithmetic.hpp"

#include "calendar/engine/daylight_saving.hpp"
#include "calendar/engine/julian_day.hpp"
#include "core/engine/namespace.hpp"
#include "tests/reference/calendar_arithmetic.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <random>
#include <vector>

namespace
{

using engine::Date_Time;

bool same(const Date_Time &a, const Date_Time &b)
{
    return a.date.year == b.date.year && a.date.month == b.date.month && a.date.day == b.date.day &&
           engine::is_equal(a, b);
}

std::string shown(const Date_Time &value)
{
    return reference::slash_text(value) + " day " + std::to_string(value.julian_day);
}

/// Fields of every size, most of them real dates, many at midnight or at a month's first day.
Date_Time random_date(std::mt19937_64 &random)
{
    Date_Time value = engine::unset_date_time;
    value.julian_day = static_cast<std::int32_t>(random() >> (32 + random() % 32));
    engine::update_date(value);
    if (random() % 4 == 0)
        value.date.day = 1;
    if (random() % 16 == 0)
        value.date = {static_cast<int>(random()), static_cast<int>(random()), static_cast<int>(random())};
    const std::uint64_t seconds[] = {0, random() % 86400, random() % 24 * 3600, random() % 1440 * 60,
                                     random()};
    const std::uint64_t nanoseconds[] = {0, 0, random() % 1000000000, random()};
    value.time = {seconds[random() % 5], nanoseconds[random() % 4]};
    return value;
}

template <typename Operation, typename Transcription>
void expect_same_effect(const Date_Time &start, Operation operation, Transcription transcription)
{
    Date_Time made = start, expected = start;
    operation(made);
    transcription(expected);
    ASSERT_TRUE(same(made, expected))
        << shown(start) << " became " << shown(made) << " and not " << shown(expected);
}

} // namespace

TEST(Date_Arithmetic, every_unit_agrees_with_the_transcription_on_seeded_dates)
{
    std::mt19937_64 random(1582);
    for (int i = 0; i < 20000; ++i) {
        for (std::int32_t unit = -1; unit <= 20; ++unit) {
            SCOPED_TRACE(testing::Message() << "unit " << unit);
            const Date_Time start = random_date(random);
            const std::uint32_t count = static_cast<std::uint32_t>(random() >> (32 + random() % 32));
            expect_same_effect(
                start, [=](Date_Time &d) { engine::add_time_units(d, unit, count); },
                [=](Date_Time &d) { reference::add_time_units(d, unit, count); });
            expect_same_effect(
                start, [=](Date_Time &d) { engine::truncate_to_unit(d, unit); },
                [=](Date_Time &d) { reference::truncate_to_unit(d, unit); });
            expect_same_effect(
                start, [=](Date_Time &d) { engine::advance_to_unit_boundary(d, unit); },
                [=](Date_Time &d) { reference::advance_to_unit_boundary(d, unit); });
        }
        const Date_Time any = random_date(random);
        ASSERT_EQ(engine::is_daylight_saving_time(any), reference::is_daylight_saving_time(any))
            << shown(any);
        ASSERT_FALSE(HasFailure());
    }
}

TEST(Date_Arithmetic, known_steps)
{
    const auto add = [](std::uint32_t count) {
        return [count](Date_Time &value, ZEB_Time_Unit unit) { engine::add_time_units(value, unit, count); };
    };
    const struct {
        ZEB_Gregorian_Date date;
        std::uint64_t second;
        std::function<void(Date_Time &, ZEB_Time_Unit)> step;
        ZEB_Time_Unit unit;
        const char *text;
    } rows[] = {
        {{2021, 1, 31}, 0, add(1), ZEB_UNIT_MONTH, "3/3/2021"},
        {{2021, 3, 3}, 0, add(90000), ZEB_UNIT_SECOND, "3/4/2021 01:00:00"},
        {{2021, 2, 15}, 5, engine::truncate_to_unit, ZEB_UNIT_QUARTER, "12/1/2020"},
        {{2020, 12, 1}, 0, engine::advance_to_unit_boundary, ZEB_UNIT_QUARTER, "12/1/2020"}, // stays
        {{2021, 12, 31}, 86399, engine::truncate_to_unit, ZEB_UNIT_MINUTE, "12/31/2021 23:59:00"},
        {{2021, 12, 31}, 86399, engine::truncate_to_unit, ZEB_UNIT_HOUR, "12/31/2021 23:00:00"},
        {{2021, 12, 31}, 86399, engine::truncate_to_unit, ZEB_UNIT_YEAR, "1/1/2021"},
        {{2021, 12, 31}, 86399, engine::advance_to_unit_boundary, ZEB_UNIT_MINUTE, "1/1/2022"},
        {{2021, 12, 31}, 86399, engine::advance_to_unit_boundary, ZEB_UNIT_MONTH, "1/1/2022"},
        // Beyond month 14 the mapping drifts.
        {{2021, 6, 15}, 0, add(12), ZEB_UNIT_MONTH, "6/17/2022"},
        {{2021, 12, 31}, 86399, engine::advance_to_unit_boundary, ZEB_UNIT_QUARTER, "3/3/2022"},
    };
    for (const auto &row : rows) {
        Date_Time value = engine::make_date_time(row.date, row.second, 0);
        row.step(value, row.unit);
        EXPECT_EQ(reference::slash_text(value), row.text) << "unit " << row.unit;
    }
}

TEST(Date_Arithmetic, instants_agree_with_the_transcription)
{
    std::mt19937_64 random(1970);
    for (int i = 0; i < 300000; ++i) {
        const double seconds = i < 100000 ? -i * 432.5
                                          : static_cast<double>(static_cast<std::int64_t>(random())) *
                                                std::pow(0.5, static_cast<double>(16 + random() % 60));
        if (std::fabs(seconds) > 1.8e14)
            continue;
        Date_Time value = engine::unset_date_time;
        ASSERT_TRUE(engine::set_seconds_since_1970(value, seconds));
        ASSERT_TRUE(same(value, reference::date_from_seconds(seconds))) << seconds;
        ASSERT_NEAR(engine::seconds_since_1970(value), seconds, std::fabs(seconds) * 1e-15 + 2e-9);
    }
    Date_Time value = engine::unset_date_time;
    ASSERT_TRUE(
        engine::set_seconds_since_1970(value, -86400.0)); // a day further back, with a whole day of seconds
    EXPECT_TRUE(same(value, {{1969, 12, 30}, 2440586, {86400, 0}}));
    for (const double refused : {1e300, -1e15, 185331720384000.0, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_FALSE(engine::set_seconds_since_1970(value, refused));
    EXPECT_EQ(value.julian_day, 2440586);
}

TEST(Date_Arithmetic, order_looks_at_day_then_second_then_nanosecond)
{
    const std::vector<Date_Time> ascending{{{9, 9, 9}, -1, {9, 9}}, {{1, 1, 1}, 0, {0, 0}},
                                           {{1, 1, 1}, 0, {0, 7}},  {{1, 1, 1}, 0, {5, 0}},
                                           {{0, 1, 1}, 3, {0, 0}},  {{0, 1, 1}, 3, {0, UINT64_MAX}}};
    for (std::size_t i = 0; i < ascending.size(); ++i) {
        for (std::size_t j = 0; j < ascending.size(); ++j) {
            EXPECT_EQ(engine::is_at_or_before(ascending[i], ascending[j]), i <= j);
            EXPECT_EQ(engine::is_equal(ascending[i], ascending[j]), i == j);
        }
    }
    EXPECT_EQ(engine::days_between({{}, INT32_MIN, {}}, {{}, 1, {}}), INT32_MAX); // wraps around
}

TEST(Daylight_Saving, every_hour_from_1990_to_2040_agrees_with_the_transcription)
{
    const std::int32_t last = engine::julian_day_from_date({2041, 1, 1});
    for (std::int32_t day = engine::julian_day_from_date({1990, 1, 1}); day < last; ++day) {
        Date_Time value{engine::date_from_julian_day(day), day, {0, 0}};
        for (int hour = 0; hour < 24; ++hour, value.time.second += 3600)
            ASSERT_EQ(engine::is_daylight_saving_time(value), reference::is_daylight_saving_time(value))
                << shown(value);
    }
}

TEST(Daylight_Saving, known_days)
{
    const struct {
        ZEB_Gregorian_Date date;
        std::uint64_t second;
        bool daylight;
    } rows[] = {
        {{2025, 3, 9}, 7199, false},   {{2025, 3, 9}, 7200, true},   {{2025, 11, 2}, 3600, false},
        {{2025, 11, 3}, 0, true},      {{2025, 12, 1}, 0, false},    {{2006, 4, 2}, 7199, false},
        {{2006, 4, 2}, 7200, true},    {{2006, 10, 29}, 7199, true}, {{2006, 10, 29}, 7200, false},
        {{2006, 3, 31}, 80000, false},
    };
    for (const auto &row : rows)
        EXPECT_EQ(engine::is_daylight_saving_time(engine::make_date_time(row.date, row.second, 0)),
                  row.daylight)
            << row.date.year << "-" << row.date.month << "-" << row.date.day;
}
