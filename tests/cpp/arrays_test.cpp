#include <Korvane_ZEB_engine/Korvane_ZEB_engine.hpp>

#include "tests/support/memory.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <vector>

namespace
{

template <class Type>
class Cpp_Elements : public testing::Test
{
protected:
    /// Few different values, so that there are runs and repetitions.
    std::vector<Type> random_values(std::size_t count)
    {
        std::vector<Type> values(count);
        for (Type &value : values)
            value = static_cast<Type>(random() % 100);
        return values;
    }
    std::mt19937 random{7};
};

using Types = testing::Types<std::uint8_t, std::int32_t, std::uint32_t, std::int64_t, float, double>;
TYPED_TEST_SUITE(Cpp_Elements, Types);

TYPED_TEST(Cpp_Elements, operations_agree_with_the_standard_library)
{
    for (const std::size_t count : {0u, 1u, 2u, 3u, 100u, 1001u}) {
        const std::vector<TypeParam> values = this->random_values(count);
        std::vector<TypeParam> expected = values, sorted = values, stable = values, other = values;
        std::vector<std::uint32_t> companions(count), order(count);
        std::iota(companions.begin(), companions.end(), 0u);
        order = companions;
        std::stable_sort(expected.begin(), expected.end());
        zeb::sort(sorted);
        EXPECT_EQ(sorted, expected);
        ASSERT_TRUE(zeb::sort_by_total_order(stable, companions));
        std::stable_sort(order.begin(), order.end(), [&](auto a, auto b) { return values[a] < values[b]; });
        EXPECT_EQ(companions, order);
        EXPECT_TRUE(zeb::permute(other, companions));
        EXPECT_EQ(other, expected);
        EXPECT_TRUE(zeb::permute_inversely(other, companions));
        EXPECT_EQ(other, values);
        EXPECT_EQ(zeb::sort(stable, std::span(order).first(count / 2)), count == 0);

        const TypeParam value = static_cast<TypeParam>(this->random() % 100);
        const auto first = std::find(values.begin(), values.end(), value);
        EXPECT_EQ(zeb::index_of(values, value).value_or(count), std::size_t(first - values.begin()));
        const auto last = std::find(values.rbegin(), values.rend(), value);
        EXPECT_EQ(zeb::last_index_of(values, value).has_value(), last != values.rend());
        EXPECT_EQ(zeb::last_index_of(values, value).value_or(0),
                  std::size_t(values.rend() - last) - (last != values.rend()));
        const std::size_t place = zeb::ordered_insert_position(sorted, value);
        EXPECT_TRUE(std::ranges::all_of(sorted.begin(), sorted.begin() + std::ptrdiff_t(place),
                                        [=](auto x) { return x <= value; }));
        EXPECT_TRUE(std::ranges::all_of(sorted.begin() + std::ptrdiff_t(place), sorted.end(),
                                        [=](auto x) { return x >= value; }));
        EXPECT_EQ(zeb::ordered_find(sorted, value).has_value(), first != values.end());

        std::reverse(expected.begin(), expected.end());
        zeb::reverse(sorted);
        EXPECT_EQ(sorted, expected);
        const std::size_t times = std::size_t(std::count(values.begin(), values.end(), value));
        EXPECT_EQ(zeb::replace(sorted, value, TypeParam{101}), times);
        EXPECT_EQ(zeb::remove(sorted, TypeParam{101}), count - times);
        if (count != 0) {
            const auto [least, greatest] = *zeb::extrema(values);
            EXPECT_TRUE(least == expected.back() && greatest == expected.front());
        }
        const auto statistics = zeb::statistics(values);
        EXPECT_EQ(double(statistics.sum), std::accumulate(values.begin(), values.end(), 0.0));
        EXPECT_EQ(statistics.number_count, count);
    }
}

TYPED_TEST(Cpp_Elements, an_array_does_what_a_vector_does)
{
    zeb::Array<TypeParam> array;
    std::vector<TypeParam> model;
    for (int step = 0; step < 2000; ++step) {
        const std::size_t at = model.empty() ? 0 : this->random() % (model.size() + 2), before = array.size();
        const std::vector<TypeParam> run = this->random_values(this->random() % 20);
        const auto place = model.begin() + std::ptrdiff_t(std::min(at, model.size()));
        support::memory.calls_until_failure = this->random() % 4 == 0 ? 0 : -1;
        bool done = true;
        switch (this->random() % 6) {
        case 0:
            if ((done = array.append(TypeParam{7})))
                model.push_back(7);
            break;
        case 1:
            if ((done = array.insert(at, run)))
                model.insert(place, run.begin(), run.end());
            break;
        case 2: // its own elements
            if ((done = array.insert(at, array)))
                model.insert(place, model.size(), 0), std::copy(array.begin(), array.end(), model.begin());
            break;
        case 3:
            array.remove(at, run.size());
            model.erase(place, model.begin() +
                                   std::ptrdiff_t(std::min(
                                       std::max(at, std::min(at + run.size(), model.size())), model.size())));
            break;
        case 4:
            array.trim();
            break;
        default:
            if (model.size() > 1000 && (done = array.copy(run)))
                model = run;
        }
        support::memory.calls_until_failure = -1;
        EXPECT_TRUE(done || array.size() == before);
        ASSERT_TRUE(std::ranges::equal(array, model)) << step;
    }
    zeb::Array<TypeParam> moved(std::move(array));
    EXPECT_TRUE(array.empty() && std::ranges::equal(moved, model)); // NOLINT: empty by contract
    EXPECT_FALSE(moved.resize(zeb::greatest_count));
}

TEST(Cpp_Numbers, without_an_order_or_a_number)
{
    const double nan = std::nan("");
    std::vector<double> values{nan, 1, -0.0, 0.0, -nan, 5};
    EXPECT_FALSE(zeb::index_of(values, nan));
    EXPECT_FALSE(zeb::ordered_find(values, nan));
    EXPECT_EQ(zeb::ordered_insert_position(values, nan), values.size());
    EXPECT_EQ(zeb::statistics(values).nan_count, 2u);
    std::vector<double> middle(1);
    ASSERT_TRUE(zeb::quantiles(values, std::vector{0.5}, middle));
    EXPECT_EQ(middle[0], 0.5);
    EXPECT_FALSE(zeb::quantiles(values, std::vector{0.5, 1.0}, middle));
    std::vector<std::uint32_t> bins(2);
    zeb::Histogram_Rest rest;
    ASSERT_TRUE(zeb::histogram(values, 0, 4, bins, &rest));
    EXPECT_EQ(bins, (std::vector<std::uint32_t>{3, 0}));
    EXPECT_TRUE(rest.above == 1 && rest.nan_count == 2);
    EXPECT_FALSE(zeb::histogram(values, 4, 0, bins));
    zeb::sort_by_total_order(values);
    EXPECT_TRUE(std::signbit(values[0]) && !std::signbit(values[1]) && values[3] == 5 &&
                std::isnan(values[4]));
    EXPECT_FALSE(zeb::permute(values, std::vector<std::uint32_t>{6}));
    EXPECT_FALSE(zeb::move_element(values, 0, 6));
    EXPECT_FALSE(zeb::transpose(values, 4, 2));
    EXPECT_TRUE(zeb::transpose(values, 2, 3));
    EXPECT_EQ(values[2], 0.0);
    EXPECT_EQ(*zeb::find_run(std::vector{1, 2, 1, 2}, std::vector{1, 2}, 1), 2u);
    std::vector<zeb::Chart_Column> columns(2);
    EXPECT_TRUE(zeb::decimate(std::vector{0.0, 1.0, 2.0}, std::vector{3.0, 5.0, 4.0}, 0, 2, columns));
    EXPECT_TRUE(columns[0].count == 1 && columns[1].highest == 5 && columns[1].last == 4);
    EXPECT_FALSE(zeb::decimate(std::vector{0.0}, {}, 0, 2, columns));
}

} // namespace
