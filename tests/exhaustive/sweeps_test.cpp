// Comparisons of the engine with its plain transcriptions over numbered inputs, each a function of its
// number. Built as the program `exhaustive` they take all of them, in parts, of which --gtest_filter picks
// some and GTEST_TOTAL_SHARDS makes shares for several processes; else a slice of each.

#include "calendar/ZEB_Calendar_Functions.h"
#include "core/engine/namespace.hpp"
#include "numbers/ZEB_Number_Functions.h"
#include "numbers/engine/general_text.hpp"
#include "numbers/engine/shortest_text.hpp"
#include "tests/reference/calendar.hpp"
#include "tests/reference/number_text.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace
{

constexpr std::uint64_t all_32_bit_values = std::uint64_t{1} << 32;

// A well mixed number out of a counter.
std::uint64_t mixed(std::uint64_t value)
{
    value += 0x9E3779B97F4A7C15;
    value = (value ^ value >> 30) * 0xBF58476D1CE4E5B9;
    value = (value ^ value >> 27) * 0x94D049BB133111EB;
    return value ^ value >> 31;
}

std::uint32_t low_half(std::uint64_t index) { return static_cast<std::uint32_t>(index); }

float float_at(std::uint64_t index) { return std::bit_cast<float>(low_half(index)); }

std::string date_of_day(std::uint64_t index)
{
    const auto day = static_cast<std::int32_t>(low_half(index));
    const auto [year, month, date_day] = ZC_map_julian_day_to_gregorian_date(day);
    const ZEB_Gregorian_Date expected = reference::date_from_julian_day(day);
    const bool agrees = year == expected.year && month == expected.month && date_day == expected.day;
    return agrees ? "" : "day " + std::to_string(day);
}

// Every month of all years that have a faster way, and of some around them; or fields of every size.
constexpr std::uint64_t swept_months = std::uint64_t{1400020} * 16;

std::string day_of_date(std::uint64_t index)
{
    std::uint64_t random = index;
    const auto any_size = [&random] {
        random = mixed(random);
        return static_cast<std::int32_t>(static_cast<std::int64_t>(random) >> (32 + random % 32));
    };
    ZEB_Gregorian_Date date{any_size(), any_size(), any_size()};
    if (index < swept_months)
        date = {static_cast<std::int32_t>(index / 16) - 4810, static_cast<std::int32_t>(index % 16) - 1,
                date.day};
    const bool agrees = ZC_map_gregorian_date_to_julian_day(date) == reference::julian_day(date);
    return agrees ? ""
                  : std::to_string(date.year) + "-" + std::to_string(date.month) + "-" +
                        std::to_string(date.day);
}

// The text, its end, and an untouched byte after it; else what it should be.
template <typename Writer, typename... Arguments>
std::string text_difference(const std::string &expected, Writer writer, Arguments... arguments)
{
    char text[40];
    std::memset(text, '#', sizeof text);
    const std::size_t length = expected.size();
    const bool agrees = writer(text, arguments...) == text + length &&
                        std::memcmp(text, expected.c_str(), length + 1) == 0 && text[length + 1] == '#';
    return agrees ? "" : "expected \"" + expected + '"';
}

std::string unsigned_text(std::uint64_t index)
{
    return text_difference(std::to_string(low_half(index)), ZC_pretty_format_unsigned, low_half(index));
}

std::string float_text(std::uint64_t index)
{
    return text_difference(reference::pretty_float(float_at(index)), ZC_pretty_format_float, float_at(index));
}

// Up to three steps in either direction.
double step_around(double value, std::uint64_t random)
{
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(value) + random % 7 - 3);
}

double ten_to(std::uint64_t n, double lowest = 0) { return std::pow(10.0, static_cast<double>(n) + lowest); }

// Doubles dense where a writer could go wrong, one kind after the other.
double double_at(std::uint64_t index)
{
    const std::uint64_t random = mixed(index), more = mixed(random);
    const double unit = static_cast<double>(random >> 11) * 0x1p-53; // 0 to below 1
    const double whole = static_cast<double>(random >> (11 + more % 53));
    const double near_1 = random & 16 ? 1.0 : 1.0 + unit * 1e-9;
    const double tie = std::floor(unit * 1e9) + 0.5, tie_of_15_digits = std::floor(1e14 + unit * 8e14) + 0.5;
    const std::uint64_t kind = index % 8;
    return kind == 0   ? std::bit_cast<double>(random)
           : kind == 1 ? std::pow(10.0, unit * 10.0 - 4.0)
           : kind == 2 ? step_around(ten_to(random % 633, -324.0), more)
           : kind == 3 ? step_around(random & 8 ? 1.0 : 0.0001, more) * near_1
           : kind == 4 ? step_around(tie / ten_to(7 + more % 6), more >> 8) // half a unit of the last decimal
           : kind == 5 ? tie_of_15_digits * ten_to(more % 3)
           : kind == 6 ? step_around(whole * ten_to(more % 40, -20.0), more >> 8)
                       : whole / static_cast<double>(std::uint64_t{1} << more % 60);
}

std::string double_text(std::uint64_t index)
{
    const double value = mixed(~index) & 1 ? double_at(index) : -double_at(index);
    return text_difference(reference::pretty_double(value), ZC_pretty_format_double, value);
}

// Every float, and doubles.
std::string general_text(std::uint64_t index)
{
    const double value = index % 2 == 0 ? double{float_at(index / 2)} : double_at(index);
    char expected[64];
    std::snprintf(expected, sizeof expected, "%g", value);
    const auto write = [](char *text, double x) { return &(*engine::put_general(text, x) = '\0'); };
    return text_difference(expected, write, value);
}

// Every float, and doubles: mostly those of the other writers, and every power of two with its neighbours.
std::string shortest_text(std::uint64_t index)
{
    const auto write = [](char *text, auto x) { // which writes past its text
        char longer[engine::longest_shortest_text];
        char *const end = std::copy(longer, engine::put_shortest(longer, x), text);
        return &(*end = '\0');
    };
    if (index % 2 == 0)
        return text_difference(reference::shortest(float_at(index / 2)), write, float_at(index / 2));
    const std::uint64_t power = index / 16 % 2200;
    const double value = index % 16 == 1
                             ? step_around(std::ldexp(1.0, static_cast<int>(power) - 1080), mixed(index))
                             : double_at(index);
    return text_difference(reference::shortest(-value), write, -value);
}

// Every count of decimals, in the range that has a fixed text; half of the numbers have few decimals or ties.
std::string fixed_text(std::uint64_t index)
{
    const std::uint64_t random = mixed(index), more = mixed(random);
    const std::uint32_t decimals = index % 14;
    double value = std::pow(10.0, static_cast<double>(random >> 11) * 0x1p-53 * 20.5 - 15.0);
    if (more & 1)
        value = std::floor(value * 1e3) / 1e3 + 0.5 * std::pow(0.1, static_cast<double>(more / 4 % 14));
    if (more & 2)
        value = -value;
    const float rounded = static_cast<float>(value);
    return text_difference(reference::fixed(decimals, value), ZC_format_fixed_double, decimals, value) +
           text_difference(reference::fraction(decimals, value), ZC_format_fraction_double, decimals, value) +
           text_difference(reference::fixed(decimals, static_cast<double>(rounded)), ZC_format_fixed_float,
                           decimals, rounded);
}

struct Sweep {
    const char *name;
    std::uint64_t inputs;
    // The difference at one input, as text; empty where there is none.
    std::string (*difference)(std::uint64_t index);
};

const Sweep all_sweeps[] = {
    {"date_of_day", all_32_bit_values, date_of_day},
    {"day_of_date", 2 * swept_months, day_of_date},
    {"unsigned_text", all_32_bit_values, unsigned_text},
    {"float_text", all_32_bit_values, float_text},
    {"double_text", 128000000, double_text},
    {"fixed_text", 128000000, fixed_text},
    {"general_text", 2 * all_32_bit_values, general_text},
    {"shortest_text", 2 * all_32_bit_values, shortest_text},
};

#ifdef ZEB_SWEEP_ALL
constexpr std::uint64_t parts = 64, slice = 0;
#else
constexpr std::uint64_t parts = 1, slice = 60000;
#endif

class Sweeps : public testing::TestWithParam<std::tuple<Sweep, std::uint64_t>>
{
};

} // namespace

TEST_P(Sweeps, agree_with_the_transcription)
{
    const auto &[sweep, part] = GetParam();
    // Odd, so that no kind of input is passed over.
    const std::uint64_t step = slice != 0 ? sweep.inputs / slice | 1 : parts;
    for (std::uint64_t index = part; index < sweep.inputs; index += step)
        ASSERT_EQ(sweep.difference(index), "") << "input " << index;
    for (std::uint64_t index = 0; index < 1000; ++index)
        ASSERT_EQ(sweep.difference(index) + sweep.difference(sweep.inputs - 1 - index), "") << index;
}

INSTANTIATE_TEST_SUITE_P(
    All, Sweeps, testing::Combine(testing::ValuesIn(all_sweeps), testing::Range(std::uint64_t{0}, parts)),
    [](const auto &row) {
        return std::get<0>(row.param).name + std::string("_part_") + std::to_string(std::get<1>(row.param));
    });
