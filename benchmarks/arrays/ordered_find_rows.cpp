/// Binary searches.
#include "benchmarks/arrays/array_rows.hpp"
#include "benchmarks/arrays/data.hpp"
#include "benchmarks/common/rows.hpp"

#include "arrays/engine/algorithms/ordered_search.hpp"
#include "core/engine/namespace.hpp"

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace zeb_bench
{
namespace
{

ZEB_Comparison compare(const double *key, const double *element)
{
    return *key < *element ? ZEB_COMPARED_LESS : *key > *element ? ZEB_COMPARED_GREATER : ZEB_COMPARED_EQUAL;
}

/// Known only when it runs, as a caller's function is.
ZEB_Comparison (*volatile chosen_compare)(const double *, const double *) = compare;

int compare_for_bsearch(const void *left, const void *right)
{
    const double a = *static_cast<const double *>(left), b = *static_cast<const double *>(right);
    return a < b ? -1 : a > b;
}

/// The search as it is told, step by step.
template <class Compare>
std::uint32_t told(std::span<const double> elements, const double &key, Compare asked)
{
    std::uint32_t low = 0, high = static_cast<std::uint32_t>(elements.size()) - 1;
    std::uint32_t probe = static_cast<std::uint32_t>(elements.size()) / 2;
    for (;;) {
        const ZEB_Comparison answer = asked(&key, &elements[probe]);
        if (answer == 3) {
            if (probe == high)
                return ZEB_NOT_FOUND;
            low = probe + 1;
        } else if (answer == 2) {
            if (probe == low)
                return ZEB_NOT_FOUND;
            high = probe - 1;
        } else {
            return probe;
        }
        probe = low + (high - low + 1) / 2;
    }
}

/// Sorted elements, and keys of which half are among them.
struct Job {
    explicit Job(std::size_t count)
        : elements(random_elements<double>(count)), keys(random_elements<double>(keys_count, 9))
    {
        std::mt19937 random(3);
        for (std::size_t i = 0; i < keys.size(); ++i)
            if (random() % 2 == 0)
                keys[i] = elements[random() % count];
        std::sort(elements.begin(), elements.end());
    }

    /// Many more keys than the branch predictor can learn.
    static constexpr std::size_t keys_count = 100000;

    template <class Find>
    auto each(Find find) const
    {
        return [this, find] {
            std::uint64_t sum = 0;
            for (const double &key : keys)
                sum += static_cast<std::uint64_t>(find(std::span<const double>(elements), key));
            return sum;
        };
    }

    std::vector<double> elements, keys;
};

void add_rows(std::size_t count, const char *size, double goal)
{
    static std::vector<std::unique_ptr<Job>> jobs;
    jobs.push_back(std::make_unique<Job>(count));
    const Job &job = *jobs.back();
    using Elements = std::span<const double>;
    ZEB_Comparison (*const function)(const double *, const double *) = chosen_compare;
    Row(std::string("ordered find, own order, double, ") + size, Measure::Items, Job::keys_count)
        .goal(goal)
        .framework(
            job.each([](Elements all, const double &key) { return engine::ordered_find(all, key).index; }))
        .peer("std::lower_bound", job.each([](Elements all, const double &key) {
            return std::lower_bound(all.begin(), all.end(), key) - all.begin();
        }));
    Row(std::string("ordered find, function, double, ") + size, Measure::Items, Job::keys_count)
        .goal(1)
        .framework(job.each(
            [=](Elements all, const double &key) { return engine::ordered_find(all, key, function).index; }))
        .peer("as told", job.each([=](Elements all, const double &key) { return told(all, key, function); }))
        .limit("bsearch", job.each([](Elements all, const double &key) {
            return reinterpret_cast<std::uintptr_t>(
                std::bsearch(&key, all.data(), all.size(), sizeof key, compare_for_bsearch));
        }));
}

} // namespace

void add_ordered_find_rows()
{
    add_rows(1000, "10^3", 1 / 0.8);
    add_rows(1000000, "10^6", 1 / 1.1);
}

} // namespace zeb_bench
