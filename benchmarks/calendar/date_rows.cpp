/// Day numbers, date text and month steps, against std::chrono and the C library.
#include "benchmarks/calendar/calendar_rows.hpp"
#include "benchmarks/calendar/samples.hpp"
#include "benchmarks/common/rows.hpp"

#include "calendar/ZEB_Calendar_Functions.h"
#include "calendar/engine/date_arithmetic.hpp"
#include "core/engine/namespace.hpp"

#include <chrono>
#include <cstdio>
#include <string>

namespace zeb_bench
{
namespace
{

using namespace std::chrono;

constexpr int32_t day_of_1970 = 2440588;

int32_t sum_of(ZEB_Gregorian_Date date) { return date.year + date.month + date.day; }

// Called as the framework's functions are, across a border that the compiler may not look through.

[[gnu::noinline]] ZEB_Gregorian_Date chrono_date(int32_t julian_day)
{
    const year_month_day date{sys_days{days{julian_day - day_of_1970}}};
    return {int{date.year()}, static_cast<int32_t>(unsigned{date.month()}),
            static_cast<int32_t>(unsigned{date.day()})};
}

[[gnu::noinline]] int32_t chrono_day(ZEB_Gregorian_Date date)
{
    return static_cast<int32_t>(
               sys_days{year{date.year} / date.month / date.day}.time_since_epoch().count()) +
           day_of_1970;
}

int print_date(char *text, std::size_t size, double seconds)
{
    const double day = std::floor(seconds / 86400.0);
    const ZEB_Gregorian_Date date = chrono_date(static_cast<int32_t>(day) + day_of_1970);
    const double rest = seconds - day * 86400.0;
    const int minutes = static_cast<int>(rest / 60.0);
    return std::snprintf(text, size, "%d/%d/%d %02d:%02d:%09.6f", date.month, date.day, date.year,
                         minutes / 60, minutes % 60, rest - minutes * 60.0);
}

int scan_date(const char *text)
{
    int month = 0, day = 0, year = 0, hours = 0, minutes = 0, count = 0;
    double seconds = 0;
    std::sscanf(text, "%d / %d / %d %d : %d : %lf%n", &month, &day, &year, &hours, &minutes, &seconds,
                &count);
    benchmark::DoNotOptimize(seconds);
    return count;
}

void add_mapping_rows()
{
    static const std::vector<int32_t> day_numbers =
        samples([](std::mt19937_64 &random) { return 2400000 + static_cast<int32_t>(random() % 100000); });
    static const std::vector<ZEB_Gregorian_Date> dates = [] {
        std::vector<ZEB_Gregorian_Date> made;
        for (const int32_t day : day_numbers)
            made.push_back(ZC_map_julian_day_to_gregorian_date(day));
        return made;
    }();
    Row("day to date", Measure::Items, sample_count)
        .framework(for_each(day_numbers,
                            [](int32_t day) { return sum_of(ZC_map_julian_day_to_gregorian_date(day)); }))
        .peer("std::chrono", for_each(day_numbers, [](int32_t day) { return sum_of(chrono_date(day)); }))
        .goal(1 / 1.1);
    Row("date to day", Measure::Items, sample_count)
        .framework(for_each(
            dates, [](ZEB_Gregorian_Date date) { return ZC_map_gregorian_date_to_julian_day(date); }))
        .peer("std::chrono", for_each(dates, [](ZEB_Gregorian_Date date) { return chrono_day(date); }))
        .goal(1 / 1.25);
}

void add_text_rows()
{
    static char text[128];
    static const std::vector<double> instants = samples(instant);
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> made;
        for (const double seconds : instants) {
            ZC_pretty_format_gregorian_date_from_seconds(text, seconds);
            made.emplace_back(text);
        }
        return made;
    }();
    Row("pretty date", Measure::Items, sample_count)
        .framework(for_each(instants,
                            [](double seconds) {
                                return ZC_pretty_format_gregorian_date_from_seconds(text, seconds) - text;
                            }))
        .peer("snprintf",
              for_each(instants, [](double seconds) { return print_date(text, sizeof text, seconds); }))
        .goal(1 / 0.35);
    Row("scan date", Measure::Items, sample_count)
        .framework(for_each(texts,
                            [](const std::string &chars) {
                                double seconds = 0;
                                const uint32_t length = static_cast<uint32_t>(chars.size());
                                const uint32_t count = ZC_assign_seconds_from_gregorian_date_char_c_array(
                                    chars.data(), length, &seconds);
                                benchmark::DoNotOptimize(seconds);
                                return count;
                            }))
        .peer("sscanf", for_each(texts, [](const std::string &chars) { return scan_date(chars.c_str()); }))
        .goal(1 / 0.25);
}

void add_month_row()
{
    constexpr int steps = 20000;
    Row("month steps", Measure::Items, steps)
        .framework([] {
            engine::Date_Time value = engine::make_date_time({1900, 1, 15}, 0, 0);
            for (int i = 0; i < steps; ++i)
                engine::add_time_units(value, ZEB_UNIT_MONTH, 1);
            return value.julian_day;
        })
        .peer("std::chrono",
              [] {
                  year_month_day date = year{1900} / 1 / 15;
                  for (int i = 0; i < steps; ++i) {
                      date += months{1};
                      date = sys_days{date};
                      benchmark::DoNotOptimize(date);
                  }
                  return sys_days{date}.time_since_epoch().count();
              })
        .goal(1 / 1.5);
}

} // namespace

void add_date_rows()
{
    add_mapping_rows();
    add_text_rows();
    add_month_row();
}

} // namespace zeb_bench
