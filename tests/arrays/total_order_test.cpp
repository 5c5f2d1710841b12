/// The total order against std::stable_sort, on each vector instruction set.
#include "arrays/engine/algorithms/total_order.hpp"

#include "core/engine/namespace.hpp"
#include "tests/support/memory.hpp"
#include "tests/support/vector_targets.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <random>
#include <vector>

using namespace zeb_test;

namespace
{

template <class E>
bool precedes(E left, E right)
{
    if constexpr (std::is_floating_point_v<E>) {
        if (std::isnan(left) || std::isnan(right))
            return !std::isnan(left);
        return left < right || (left == right && std::signbit(left) && !std::signbit(right));
    }
    return left < right;
}

/// Of any bits, of few values, or with zeros and NaN of both signs.
template <class E>
std::vector<E> elements(std::mt19937_64 &random, size_t count)
{
    using Limits = std::numeric_limits<E>;
    constexpr E nan = Limits::quiet_NaN(), infinity = Limits::infinity();
    const E odd[] = {0, E(-E(0)), nan, E(-nan), 1, infinity, E(-infinity), Limits::lowest()};
    const size_t kinds = 1 + random() % 12;
    std::vector<E> all(count);
    for (E &each : all) {
        const uint64_t bits = random();
        std::memcpy(&each, &bits, sizeof each);
        if (kinds < 9)
            each = odd[(bits + kinds) % std::min<size_t>(kinds, 8)];
    }
    return all;
}

template <class E>
bool are_same(const std::vector<E> &left, const std::vector<E> &right)
{
    return left.empty() || std::memcmp(left.data(), right.data(), left.size() * sizeof(E)) == 0;
}

} // namespace

template <class E>
class Total_Order : public testing::Test
{
};
using Number_Types = testing::Types<uint8_t, int32_t, uint32_t, int64_t, float, double>;
TYPED_TEST_SUITE(Total_Order, Number_Types);

TYPED_TEST(Total_Order, is_that_of_a_stable_sort)
{
    std::mt19937_64 random(1);
    for (const size_t count : {0, 1, 2, 3, 20, 257, 3000})
        for (int turn = 0; turn < 20; ++turn) {
            const std::vector<TypeParam> all = elements<TypeParam>(random, count);
            std::vector<uint32_t> marks(count + 2), positions(count), moved;
            std::generate(marks.begin(), marks.end(), [&] { return static_cast<uint32_t>(random() % 9); });
            std::iota(positions.begin(), positions.end(), 0);
            std::stable_sort(positions.begin(), positions.end(),
                             [&](uint32_t left, uint32_t right) { return precedes(all[left], all[right]); });
            std::vector<TypeParam> expected;
            for (const uint32_t position : positions) {
                expected.push_back(all[position]);
                moved.push_back(marks[position]);
            }
            moved.insert(moved.end(), marks.end() - 2, marks.end());
            on_each_target([&] {
                std::vector<TypeParam> sorted = all, with = all;
                std::vector<uint32_t> indexes = marks;
                engine::sort_by_total_order<TypeParam>(sorted);
                ASSERT_TRUE(engine::sort_by_total_order<TypeParam>(with, indexes));
                ASSERT_TRUE(are_same(sorted, expected) && are_same(with, expected)) << count;
                ASSERT_EQ(indexes, moved);
                with = all;
                indexes = marks;
                for (int calls = 0; calls < 4 && count > 1; ++calls) {
                    support::memory.calls_until_failure = calls;
                    const bool is_done = engine::sort_by_total_order<TypeParam>(with, indexes);
                    support::memory.calls_until_failure = -1;
                    if (is_done)
                        break;
                    ASSERT_TRUE(are_same(with, all) && indexes == marks);
                }
            });
        }
}
