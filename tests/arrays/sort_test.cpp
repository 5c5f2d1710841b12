#include "arrays/engine/algorithms/sort.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/vector_algorithms.hpp"

#include <algorithm>

using namespace zeb_test;

template <class Element>
class Sorting : public testing::Test
{
};
TYPED_TEST_SUITE(Sorting, Element_Types);

namespace
{

const auto less_at = [](const auto *later, const auto *earlier) { return *later < *earlier; };

template <class Element>
std::vector<Element> shaped(std::vector<Element> elements, unsigned shape)
{
    if (shape == 1 || shape == 2)
        std::sort(elements.begin(), elements.end());
    if (shape == 2)
        std::reverse(elements.begin(), elements.end());
    if (shape == 3 && !elements.empty())
        std::fill(elements.begin(), elements.end(), elements[0]);
    return elements;
}

/// The inputs of one length: few and many values, with and without odd ones, random, sorted, reversed, one.
template <class E, class Check>
void for_each_input(std::mt19937 &random, size_t length, Check check)
{
    for (unsigned kind = 0; kind < 4; ++kind) {
        const bool odd = kind >= 2;
        const Draw draw = kind % 2 == 0 ? Draw::Any_Bits : Draw::Few_Values;
        for (unsigned shape = 0; shape < (odd ? 1u : 4u); ++shape)
            check(shaped(draw_elements<E>(random, length, draw, odd), shape));
    }
}

std::vector<uint32_t> marks(size_t count, uint32_t step)
{
    std::vector<uint32_t> all(count);
    for (uint32_t i = 0; i < count; ++i)
        all[i] = i * step;
    return all;
}

} // namespace

TYPED_TEST(Sorting, by_own_order_ends_as_the_plain_sort_does)
{
    using E = TypeParam;
    on_each_target([] {
        std::mt19937 random(15);
        for (size_t length : lengths()) {
            for_each_input<E>(random, length, [&](const std::vector<E> &elements) {
                std::vector<E> expected = elements;
                reference::sort(expected, nullptr, less_at);
                Walled<E> walled(elements, length % 21);
                engine::sort(walled.span());
                ASSERT_TRUE(same_bits(walled.elements(), expected)) << length;
                ASSERT_TRUE(walled.wall_stands());
            });
        }
    });
}

TYPED_TEST(Sorting, with_a_permutation_moves_the_indexes_as_the_plain_sort_does)
{
    using E = TypeParam;
    on_each_target([] {
        std::mt19937 random(16);
        for (size_t length : lengths()) {
            for_each_input<E>(random, length, [&](const std::vector<E> &elements) {
                const std::vector<uint32_t> indexes = marks(length, length % 2 == 0 ? 1 : 7);
                std::vector<E> expected = elements, ours = elements;
                std::vector<uint32_t> expected_indexes = indexes, our_indexes = indexes;
                reference::sort(expected, &expected_indexes, less_at);
                Walled<E> walled(elements, length % 21);
                Walled<uint32_t> walled_indexes(indexes, length % 19);
                ASSERT_TRUE(engine::sort_with_permutation(walled.span(), walled_indexes.span()));
                ASSERT_TRUE(same_bits(walled.elements(), expected)) << length;
                ASSERT_EQ(walled_indexes.elements(), expected_indexes) << length;
                ASSERT_TRUE(walled.wall_stands() && walled_indexes.wall_stands());
                ASSERT_TRUE(engine::sort_with_permutation<E>(ours, our_indexes, Asked_Less()));
                ASSERT_TRUE(same_bits(ours, expected) && our_indexes == expected_indexes);
                if (length > 0) {
                    our_indexes.pop_back();
                    ASSERT_FALSE(engine::sort_with_permutation<E>(ours, our_indexes));
                }
            });
        }
    });
}

/// Numbers that differ in their last bits only, beside one that is far away: nothing but whole numbers tells
/// them apart.
TYPED_TEST(Sorting, with_a_permutation_tells_near_numbers_apart)
{
    using E = TypeParam;
    if constexpr (std::is_floating_point_v<E>) {
        on_each_target([] {
            std::mt19937 random(18);
            for (uint32_t step : {1u, 2u, 40u}) {
                std::vector<E> elements(1500, E(1));
                for (uint32_t i = 0; i < elements.size(); ++i)
                    elements[i] += static_cast<E>(i / step) * std::numeric_limits<E>::epsilon();
                elements[7] = std::numeric_limits<E>::max();
                std::shuffle(elements.begin(), elements.end(), random);
                std::vector<uint32_t> indexes = marks(elements.size(), 3);
                std::vector<E> expected = elements;
                std::vector<uint32_t> expected_indexes = indexes;
                reference::sort(expected, &expected_indexes, less_at);
                ASSERT_TRUE(engine::sort_with_permutation<E>(elements, indexes));
                ASSERT_TRUE(same_bits(elements, expected));
                ASSERT_EQ(indexes, expected_indexes);
            }
        });
    }
}

/// Counts that do not fit in a signed 32-bit number are left alone; the block is never looked at.
TEST(Sorting_Too_Many, changes_nothing)
{
    EXPECT_FALSE(engine::sort_detail::sorts(size_t{1} << 31));
    EXPECT_TRUE(engine::sort_detail::sorts((size_t{1} << 31) - 1));
    EXPECT_FALSE(engine::sort_detail::sorts(1));
}
