/// Values of one unit converted to another in place, in the cache and in memory.
#include "benchmarks/common/rows.hpp"

#include "benchmarks/arrays/compiled_loops.hpp"
#include "core/engine/namespace.hpp"
#include "units/engine/unit_conversion.hpp"

#include <vector>

namespace zeb_bench
{
namespace
{

void add_row(const std::string &name, std::size_t count, std::uint32_t from, std::uint32_t to,
             ZEB_Dimension dimension)
{
    auto *const values = new std::vector<double>(count, 1.5);
    const auto bytes = count * sizeof(double);
    const auto source = ZEB_unit_identity(dimension, from), target = ZEB_unit_identity(dimension, to);
    // There and back, so that the values stay what they were.
    Row(name, Measure::Bytes, 2.0 * static_cast<double>(bytes))
        .limit_goal(0.75)
        .framework([=] {
            engine::convert(*values, source, target);
            engine::convert(*values, target, source);
        })
        .limit("change in place", [=] {
            compiled::change(values->data(), bytes);
            compiled::change(values->data(), bytes);
        });
}

} // namespace
} // namespace zeb_bench

int main(int argc, char **argv)
{
    using namespace zeb_bench;
    constexpr std::size_t small = std::size_t{1} << 17, large = std::size_t{1} << 23;
    add_row("inches to meters, 1 MiB", small, 33, 11, ZEB_DIMENSION_LENGTH);
    add_row("inches to meters, 64 MiB", large, 33, 11, ZEB_DIMENSION_LENGTH);
    add_row("Fahrenheit to Celsius, 64 MiB", large, 22, 21, ZEB_DIMENSION_TEMPERATURE);
    return run_rows(argc, argv);
}
