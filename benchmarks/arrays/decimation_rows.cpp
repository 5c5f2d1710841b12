/// Long series in the pixel columns of a chart.
#include "benchmarks/arrays/array_rows.hpp"
#include "benchmarks/arrays/compiled_loops.hpp"
#include "benchmarks/arrays/data.hpp"
#include "benchmarks/common/rows.hpp"

#include "arrays/engine/algorithms/decimation.hpp"
#include "core/engine/namespace.hpp"

#include <memory>

namespace zeb_bench
{
namespace
{

constexpr std::size_t column_count = 1000;

struct Series {
    /// Positions whose distances are random, as those of measurements are.
    void prepare(std::size_t count)
    {
        if (!values.empty())
            return;
        values = random_elements<double>(count);
        positions = random_elements<double>(count, 2);
        double position = 0;
        for (double &next : positions)
            next = position += next;
    }
    void decimate() { engine::decimate(positions, values, positions.front(), positions.back(), columns); }
    void decimate_in_a_loop()
    {
        compiled::decimate(positions.data(), values.data(), values.size(), positions.front(),
                           positions.back(), columns.data(), columns.size());
    }

    std::vector<double> positions, values;
    std::vector<ZEB_Chart_Column> columns = std::vector<ZEB_Chart_Column>(column_count);
};

void add_row(const char *size, std::size_t count)
{
    const auto series = std::make_shared<Series>();
    const std::size_t bytes = count * sizeof(double);
    Row(std::string("decimation, ") + size + " points in 1000 columns", Measure::Bytes,
        static_cast<double>(bytes), [=] { series->prepare(count); })
        .goal(2)
        .limit_goal(0.75)
        .framework([=] { series->decimate(); })
        .peer("compiled loop", [=] { series->decimate_in_a_loop(); })
        .limit("read", [=] { return compiled::read(series->values.data(), bytes); });
}

} // namespace

void add_decimation_rows()
{
    add_row("10^7", 10000000);
    add_row("10^8", 100000000);
}

} // namespace zeb_bench
