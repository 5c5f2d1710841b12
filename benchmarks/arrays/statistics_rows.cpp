/// Sums with means and variances, quantiles and histograms.
#include "benchmarks/arrays/array_rows.hpp"
#include "benchmarks/arrays/compiled_loops.hpp"
#include "benchmarks/arrays/compiled_sums.hpp"
#include "benchmarks/arrays/data.hpp"
#include "benchmarks/common/rows.hpp"

#include "arrays/engine/algorithms/histogram.hpp"
#include "arrays/engine/algorithms/quantiles.hpp"
#include "arrays/engine/algorithms/statistics.hpp"
#include "core/engine/namespace.hpp"

#include <algorithm>
#include <memory>

namespace zeb_bench
{
namespace
{

template <class Element>
void add_statistics_row(std::size_t bytes)
{
    const std::size_t count = bytes / sizeof(Element);
    const std::span<const Element> all(shared_elements<Element>(count).data(), count);
    Row row(std::string("statistics, ") + type_name<Element>() + ", " + size_name(bytes), Measure::Bytes,
            static_cast<double>(bytes));
    // In the cache the loop is faster that knows no NaN and lets its rounding errors be.
    if (bytes > std::size_t{16} << 20)
        row.goal(0.95).limit_goal(0.75);
    row.framework([=] { return engine::statistics(all).variance; })
        .peer("compiled loop of sums",
              [=] { return compiled::sums<engine::Sum_Of<Element>>(all.data(), all.size()).squares; })
        .limit("read", [=] { return compiled::read(all.data(), bytes); });
}

void add_quantiles_row(std::size_t count)
{
    const auto copy = std::make_shared<std::vector<double>>();
    Row("three quantiles, double, 10^7", Measure::Items, static_cast<double>(count),
        [=] { *copy = shared_elements<double>(count); })
        .goal(0.95)
        .framework([=] {
            double values[] = {0.25, 0.5, 0.75};
            engine::quantiles<double>(*copy, values, values);
            return values[0] + values[2];
        })
        .peer("std::nth_element", [=] {
            const auto at = [&](std::ptrdiff_t place) { return copy->begin() + place; };
            const auto fourth = static_cast<std::ptrdiff_t>(count / 4);
            std::nth_element(at(0), at(2 * fourth), copy->end());
            std::nth_element(at(0), at(fourth), at(2 * fourth));
            std::nth_element(at(2 * fourth), at(3 * fourth), copy->end());
            return *at(fourth) + *at(3 * fourth);
        });
}

void add_histogram_row(std::size_t count)
{
    const auto bins = std::make_shared<std::vector<std::uint32_t>>(100);
    const std::span<const double> all(shared_elements<double>(count).data(), count);
    Row("histogram of 100 bins, double, 10^7", Measure::Bytes, static_cast<double>(count * sizeof(double)))
        .goal(0.95)
        .framework([=] {
            ZEB_Histogram_Rest rest{};
            engine::histogram(all, engine::Equal_Parts(0.3, 1.2, 100), std::span(*bins), rest);
            return rest.above;
        })
        .peer("compiled loop",
              [=] { compiled::count_in_bins(all.data(), all.size(), 0.3, 1.2, bins->data(), bins->size()); });
}

} // namespace

void add_statistics_rows()
{
    for (const std::size_t bytes : {std::size_t{1} << 20, std::size_t{64} << 20}) {
        add_statistics_row<std::uint8_t>(bytes);
        add_statistics_row<std::int32_t>(bytes);
        add_statistics_row<std::uint32_t>(bytes);
        add_statistics_row<std::int64_t>(bytes);
        add_statistics_row<float>(bytes);
        add_statistics_row<double>(bytes);
    }
    add_quantiles_row(10000000);
    add_histogram_row(10000000);
}

} // namespace zeb_bench
