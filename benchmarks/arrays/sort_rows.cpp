/// Sorting, with and without a permutation.
#include "benchmarks/arrays/array_rows.hpp"
#include "benchmarks/arrays/data.hpp"
#include "benchmarks/common/rows.hpp"

#include "arrays/engine/algorithms/sort.hpp"
#include "arrays/engine/algorithms/total_order.hpp"
#include "arrays/engine/kernels/shell_sort.hpp"
#include "core/engine/namespace.hpp"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>
#include <utility>

namespace zeb_bench
{
namespace
{

std::string count_name(std::size_t count) { return count == 10000000 ? "10^7" : "10^5"; }

template <class Element>
std::vector<Element> elements_of_shape(std::size_t count, const std::string &shape)
{
    std::vector<Element> elements = random_elements<Element>(count);
    if (shape == "sorted" || shape == "reversed")
        std::sort(elements.begin(), elements.end());
    if (shape == "reversed")
        std::reverse(elements.begin(), elements.end());
    if (shape == "all equal")
        std::fill(elements.begin(), elements.end(), elements[0]);
    if (shape == "duplicates")
        std::copy_n(elements.begin(), count / 2, elements.end() - static_cast<std::ptrdiff_t>(count / 2));
    if (shape == "distinct") {
        std::iota(elements.begin(), elements.end(), Element(1));
        std::shuffle(elements.begin(), elements.end(), std::mt19937(5));
    }
    if constexpr (std::is_floating_point_v<Element>) {
        if (shape == "random with a NaN")
            elements[count / 2] = std::nan("");
    }
    return elements;
}

/// Elements to sort, where they are sorted, and indexes beside them. Made when first prepared.
template <class Element>
struct Job {
    void prepare(std::size_t count, const std::string &shape)
    {
        if (source.empty())
            source = elements_of_shape<Element>(count, shape);
        elements = source;
    }
    void prepare_with_indexes(std::size_t count, const std::string &shape)
    {
        prepare(count, shape);
        indexes.resize(count);
        std::iota(indexes.begin(), indexes.end(), 0u);
        pairs.resize(count);
        for (std::uint32_t i = 0; i < count; ++i)
            pairs[i] = {source[i], i};
    }

    std::vector<Element> source, elements;
    std::vector<std::uint32_t> indexes;
    std::vector<std::pair<Element, std::uint32_t>> pairs;
};

template <class Element>
std::string row_name(const char *job, const std::string &shape, std::size_t count)
{
    return std::string(job) + ", " + shape + ", " + type_name<Element>() + ", " + count_name(count);
}

template <class Element>
void add_row(std::size_t count, const std::string &shape, double goal)
{
    const auto job = std::make_shared<Job<Element>>();
    Row(row_name<Element>("sort", shape, count), Measure::Items, static_cast<double>(count),
        [=] { job->prepare(count, shape); })
        .goal(goal)
        .framework([job] { engine::sort(std::span(job->elements)); })
        .peer("std::sort", [job] { std::sort(job->elements.begin(), job->elements.end()); });
}

template <class Element>
void plain_shell_sort(std::vector<Element> &elements, std::vector<std::uint32_t> &indexes)
{
    engine::shell::sort(
        elements.size(), [&](std::size_t a, std::size_t b) { return elements[a] < elements[b]; },
        [&](std::size_t a, std::size_t b) {
            std::swap(elements[a], elements[b]);
            std::swap(indexes[a], indexes[b]);
        });
}

/// Distinct keys are compared with a sort of pairs, others with the plain Shell sort that decides there.
template <class Element>
void add_permutation_row(std::size_t count, const std::string &shape, double goal)
{
    const auto job = std::make_shared<Job<Element>>();
    Row row(row_name<Element>("sort with permutation", shape, count), Measure::Items,
            static_cast<double>(count), [=] { job->prepare_with_indexes(count, shape); });
    row.goal(goal).framework(
        [job] { engine::sort_with_permutation(std::span(job->elements), std::span(job->indexes)); });
    if (shape == "distinct")
        row.peer("std::sort of pairs", [job] { std::sort(job->pairs.begin(), job->pairs.end()); });
    else
        row.peer("plain Shell sort", [job] { plain_shell_sort(job->elements, job->indexes); });
}

/// Behind the plain sort it may be a little, and far before the platform's stable sort. With NaN the latter
/// needs an order of its own.
template <class Element>
void add_total_order_row(std::size_t count, const std::string &shape, const char *peer, double goal)
{
    const auto job = std::make_shared<Job<Element>>();
    const auto precedes = [](Element left, Element right) {
        return left < right || (right != right && left == left);
    };
    Row(row_name<Element>("sort by total order", shape, count), Measure::Items, static_cast<double>(count),
        [=] { job->prepare(count, shape); })
        .goal_over(peer, goal)
        .framework([job] { engine::sort_by_total_order(std::span(job->elements)); })
        .peer("plain sort", [job] { engine::sort(std::span(job->elements)); })
        .peer("std::stable_sort",
              [=] { std::stable_sort(job->elements.begin(), job->elements.end(), precedes); });
}

template <class Element>
void add_total_order_permutation_row(std::size_t count, const std::string &shape, const char *peer,
                                     double goal)
{
    const auto job = std::make_shared<Job<Element>>();
    Row(row_name<Element>("sort by total order with permutation", shape, count), Measure::Items,
        static_cast<double>(count), [=] { job->prepare_with_indexes(count, shape); })
        .goal_over(peer, goal)
        .framework([job] { engine::sort_by_total_order(std::span(job->elements), std::span(job->indexes)); })
        .peer("plain sort",
              [job] { engine::sort_with_permutation(std::span(job->elements), std::span(job->indexes)); })
        .peer("std::stable_sort of pairs", [job] {
            std::stable_sort(job->pairs.begin(), job->pairs.end(),
                             [](const auto &left, const auto &right) { return left.first < right.first; });
        });
}

template <class Element>
void add_total_order_rows(std::size_t count)
{
    add_total_order_row<Element>(count, "random", "plain sort", 0.6);
    add_total_order_row<Element>(count, "random with a NaN", "std::stable_sort", 3);
    add_total_order_permutation_row<Element>(count, "distinct", "plain sort", 0.6);
    add_total_order_permutation_row<Element>(count, "duplicates", "std::stable_sort of pairs", 3);
}

} // namespace

void add_sort_rows()
{
    for (const std::size_t count : {100000, 10000000}) {
        add_row<std::int32_t>(count, "random", 8);
        add_row<std::uint32_t>(count, "random", 8);
        add_row<std::int64_t>(count, "random", 5);
        add_row<float>(count, "random", 8);
        add_row<double>(count, "random", 5);
        add_row<std::uint8_t>(count, "random", 80);
    }
    for (const char *shape : {"sorted", "reversed", "all equal"}) {
        add_row<std::uint8_t>(100000, shape, 1);
        add_row<std::int32_t>(100000, shape, 1);
        add_row<float>(100000, shape, 1);
        add_row<double>(100000, shape, 1);
        add_row<std::int32_t>(10000000, shape, 1);
        add_row<double>(10000000, shape, 1);
    }
    add_row<float>(100000, "random with a NaN", 1.2);
    add_row<double>(100000, "random with a NaN", 1.2);
    for (const std::size_t count : {100000, 10000000}) {
        add_permutation_row<std::int32_t>(count, "distinct", 3);
        add_permutation_row<std::int64_t>(count, "distinct", 2.5);
        add_permutation_row<double>(count, "distinct", 2.5);
        add_permutation_row<std::int32_t>(count, "duplicates", 2);
        add_permutation_row<double>(count, "duplicates", 2);
        add_total_order_rows<float>(count);
        add_total_order_rows<double>(count);
    }
}

} // namespace zeb_bench
