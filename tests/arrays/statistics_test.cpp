/// Statistics against their definitions in wider numbers, on each vector instruction set.
#include "arrays/engine/algorithms/histogram.hpp"
#include "arrays/engine/algorithms/quantiles.hpp"
#include "arrays/engine/algorithms/statistics.hpp"

#include "core/engine/namespace.hpp"
#include "tests/support/vector_targets.hpp"

#include <random>
#include <vector>

using namespace zeb_test;

namespace
{

__extension__ using Wide = __int128;

/// Random bits now and then, and numbers close together far from 0; NaN, which no integer is.
template <class E>
std::vector<E> numbers(std::mt19937_64 &random, size_t count)
{
    const uint64_t manner = random() % 3;
    const E base = static_cast<E>(random() >> (std::is_floating_point_v<E> ? 30 : 1));
    std::vector<E> all(count);
    for (E &each : all) {
        each =
            static_cast<E>(manner == 0 ? static_cast<E>(random()) : base / 2 + static_cast<E>(random() % 99));
        if (manner == 2 && random() % 9 == 0)
            each = static_cast<E>(std::numeric_limits<E>::quiet_NaN());
    }
    return all;
}

/// Sums of integers wrap nowhere in 128 bits; those of floating-point numbers have 11 bits more than needed.
template <class E>
engine::Statistics<E> plain_statistics(const std::vector<E> &all)
{
    using Sum = std::conditional_t<std::is_floating_point_v<E>, long double, Wide>;
    engine::Statistics<E> expected;
    Sum sum = 0;
    long double squares = 0;
    for (const E each : all)
        each == each ? ++expected.number_count, sum += static_cast<Sum>(each) : ++expected.nan_count;
    const long double mean = static_cast<long double>(sum) / expected.number_count;
    // 64 bits are too few for the mean of large integers that are close together.
    const Sum origin = std::is_floating_point_v<E> || all.empty() ? 0 : static_cast<Sum>(all[0]);
    const auto whole = static_cast<long double>(sum - origin * static_cast<Sum>(all.size()));
    for (const E each : all)
        if (each == each)
            squares += std::pow(
                static_cast<long double>(static_cast<Sum>(each) - origin) - whole / expected.number_count, 2);
    expected.sum = static_cast<engine::Sum_Of<E>>(sum);
    expected.sum_is_cut = !std::is_floating_point_v<E> && static_cast<Sum>(expected.sum) != sum;
    if (expected.sum_is_cut)
        expected.sum = static_cast<engine::Sum_Of<E>>(sum < 0 ? INT64_MIN : INT64_MAX);
    expected.mean = static_cast<double>(mean);
    expected.variance = static_cast<double>(squares / expected.number_count);
    if (expected.number_count > 1)
        expected.sample_variance = static_cast<double>(squares / (expected.number_count - 1));
    return expected;
}

bool are_close(double left, double right, double tolerance)
{
    return left == right || (left != left && right != right) ||
           std::abs(left - right) <= tolerance * std::abs(right);
}

} // namespace

template <class E>
class Statistics : public testing::Test
{
};
using Number_Types = testing::Types<uint8_t, int32_t, uint32_t, int64_t, float, double>;
TYPED_TEST_SUITE(Statistics, Number_Types);

TYPED_TEST(Statistics, are_those_of_the_definition)
{
    std::mt19937_64 random(1);
    for (const size_t count : {0, 1, 2, 7, 16, 77, 4096, 4097, 70001})
        for (int turn = 0; turn < 9; ++turn) {
            const std::vector<TypeParam> all = numbers<TypeParam>(random, count);
            const engine::Statistics<TypeParam> expected = plain_statistics(all);
            double first = 0;
            on_each_target([&] {
                const engine::Statistics<TypeParam> found = engine::statistics<TypeParam>(all);
                ASSERT_EQ(found.number_count, expected.number_count);
                ASSERT_EQ(found.nan_count, expected.nan_count);
                ASSERT_EQ(found.sum_is_cut, expected.sum_is_cut);
                ASSERT_TRUE(found.sum == expected.sum || (std::is_floating_point_v<TypeParam> &&
                                                          are_close(found.sum, expected.sum, 1e-14)));
                ASSERT_TRUE(are_close(found.mean, expected.mean, 1e-14)) << count;
                ASSERT_TRUE(are_close(found.variance, expected.variance, 1e-11)) << count;
                ASSERT_TRUE(are_close(found.sample_variance, expected.sample_variance, 1e-11));
                first = first == 0 ? found.variance : first;
                ASSERT_TRUE(found.variance == first || found.variance != found.variance);
            });
        }
}

/// Between neighbours in the sorted numbers, and ascending with the fractions.
TYPED_TEST(Statistics, part_the_numbers)
{
    std::mt19937_64 random(2);
    for (const size_t count : {0, 1, 2, 101, 5000}) {
        const std::vector<TypeParam> all = numbers<TypeParam>(random, count);
        std::vector<TypeParam> sorted;
        std::ranges::copy_if(all, std::back_inserter(sorted), [](TypeParam each) { return each == each; });
        std::ranges::sort(sorted);
        double parts[] = {0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1};
        ASSERT_TRUE(engine::quantiles<TypeParam>(all, parts, parts));
        for (size_t i = 0; i <= 10 && !sorted.empty(); ++i) {
            const size_t tenths = (sorted.size() - 1) * i;
            ASSERT_GE(parts[i], static_cast<double>(sorted[tenths / 10]));
            ASSERT_LE(parts[i], static_cast<double>(sorted[(tenths + 9) / 10]));
        }
        EXPECT_EQ(std::isnan(parts[5]), sorted.empty());
    }
}

TYPED_TEST(Statistics, count_what_is_in_each_bin)
{
    std::mt19937_64 random(3);
    for (const size_t bins : {1, 7, 5000}) {
        const std::vector<TypeParam> all = numbers<TypeParam>(random, 3001);
        const double first = all[0] == all[0] ? std::abs(static_cast<double>(all[0])) : 1;
        const double low = -first / 2, high = first * 1.5 + 1;
        std::vector<uint32_t> expected(bins + 3), counts(bins);
        for (const TypeParam each : all) {
            const double number = static_cast<double>(each);
            const double place = std::floor((number - low) * (static_cast<double>(bins) / (high - low)));
            ++expected[number != number ? bins + 2
                       : number < low   ? bins
                       : number > high  ? bins + 1
                                        : std::min(static_cast<size_t>(place), bins - 1)];
        }
        ZEB_Histogram_Rest rest;
        const engine::Equal_Parts parts(low, high, static_cast<uint32_t>(bins));
        on_each_target([&] {
            counts.resize(bins);
            ASSERT_TRUE(engine::histogram<TypeParam>(all, parts, counts, rest));
            counts.insert(counts.end(), {rest.below, rest.above, rest.nan_count});
            EXPECT_EQ(counts, expected);
        });
    }
}

/// What rounding takes is added again, as long as nothing overflows.
TEST(Compensated_Sums, lose_nothing)
{
    const double infinity = HUGE_VAL;
    std::vector<double> all(10001);
    for (size_t i = 0; i < 10000; ++i)
        all[i] = i % 3 == 0 ? 1e18 : i % 3 == 1 ? 0.25 : -1e18;
    all[9999] = 0;
    on_each_target([&] {
        all[0] = 1e18;
        all[10000] = 0;
        EXPECT_EQ(engine::statistics<double>(all).sum, 3333 * 0.25);
        all[10000] = -infinity;
        EXPECT_EQ(engine::statistics<double>(all).sum, -infinity);
        EXPECT_TRUE(std::isnan(engine::statistics<double>(all).variance));
        all[0] = infinity;
        EXPECT_TRUE(std::isnan(engine::statistics<double>(all).sum));
        EXPECT_EQ(engine::statistics<double>(std::vector<double>(5001, 0.1)).variance, 0);
    });
}
