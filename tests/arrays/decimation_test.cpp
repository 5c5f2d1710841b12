/// The columns of a chart against the loop that says what they are, on each vector instruction set.
#include "arrays/engine/algorithms/decimation.hpp"

#include "core/engine/namespace.hpp"
#include "tests/support/vector_targets.hpp"

#include <array>
#include <bit>
#include <random>
#include <vector>

using namespace zeb_test;

namespace
{

constexpr double not_a_number = NAN, infinity = INFINITY;

struct Chart {
    std::vector<double> positions, values;
    double start, end;
    std::vector<ZEB_Chart_Column> columns;
};

std::vector<ZEB_Chart_Column> plain_columns(const Chart &chart)
{
    const double n = static_cast<double>(chart.columns.size());
    std::vector<ZEB_Chart_Column> all(chart.columns.size(),
                                      {not_a_number, not_a_number, not_a_number, not_a_number, 0});
    for (size_t i = 0; i < chart.positions.size(); ++i) {
        const double position = chart.positions[i], value = chart.values[i];
        if (position < chart.start || position > chart.end)
            continue;
        const double number = std::floor((position - chart.start) * (n / (chart.end - chart.start)));
        ZEB_Chart_Column &column = all[static_cast<size_t>(std::min(number, n - 1))];
        column.first = column.count++ == 0 ? value : column.first;
        column.lowest = value < column.lowest || std::isnan(column.lowest) ? value : column.lowest;
        column.highest = value > column.highest || std::isnan(column.highest) ? value : column.highest;
        column.last = value;
    }
    return all;
}

/// What is to be the same; a NaN is like any other.
std::vector<uint64_t> bits_of(const std::vector<ZEB_Chart_Column> &columns)
{
    std::vector<uint64_t> bits;
    for (const auto &[first, lowest, highest, last, count] : columns)
        for (const double value : {first, lowest, highest, last, static_cast<double>(count)})
            bits.push_back(std::isnan(value) ? 1 : std::bit_cast<uint64_t>(value));
    return bits;
}

constexpr double odd[] = {not_a_number, infinity, -infinity, 0.0, -0.0, 1, 1e300, not_a_number};

/// Points in crowds and far apart, ties among them, some outside of the bounds; values of few kinds or many.
Chart random_chart(std::mt19937 &random, size_t points, size_t columns)
{
    Chart chart{{}, {}, static_cast<double>(random() % 5) - 2.3, 0, {columns, {1, 2, 3, 4, 5}}};
    const uint32_t step = 1 + random() % 90, kinds = 1 + random() % 20, first_kind = random() % 8;
    double position = -3;
    while (chart.positions.size() < points) {
        chart.positions.push_back(position += random() % 7 == 0 ? 0.1 * (random() % step) : 0);
        const size_t kind = first_kind + random() % kinds;
        chart.values.push_back(kind < std::size(odd) ? odd[kind] : static_cast<double>(random()) - 1e9);
    }
    chart.end = chart.start + 0.1 + std::round((position + 3) * (random() % 12)) / 10;
    return chart;
}

} // namespace

/// In disorder positions make no more of it than other columns.
TEST(Decimation, shows_what_the_plain_loop_does)
{
    std::mt19937 random(1);
    for (const size_t points : {0, 1, 2, 17, 300, 6000})
        for (int turn = 0; turn < 60; ++turn) {
            Chart chart = random_chart(random, points, std::array{1, 2, 7, 100, 1000}[turn % 5]);
            const auto decimate = [&chart] {
                return engine::decimate(chart.positions, chart.values, chart.start, chart.end, chart.columns);
            };
            const auto expected = bits_of(plain_columns(chart));
            on_each_target([&] {
                ASSERT_TRUE(decimate());
                ASSERT_EQ(bits_of(chart.columns), expected) << points << " points, turn " << turn;
            });
            std::shuffle(chart.positions.begin(), chart.positions.end(), random);
            for (size_t i = 0; i < points; i += 1 + random() % 9)
                chart.positions[i] = odd[random() % 8];
            decimate();
            for (const ZEB_Chart_Column &column : chart.columns)
                ASSERT_LE(column.count, points);
        }
}
