/// Algorithms that copy elements aside, on a machine that has no memory left for it.
#include "arrays/engine/algorithms/permutation.hpp"
#include "arrays/engine/algorithms/search.hpp"
#include "arrays/engine/algorithms/sort.hpp"
#include "arrays/engine/allocator.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/vector_algorithms.hpp"

#include <numeric>

using namespace zeb_test;

/// Stands in for the allocator of the engine in this program.
namespace zeb::engine
{
void *reallocate(void *, std::size_t) noexcept { return nullptr; }
void release(void *) noexcept {}
} // namespace zeb::engine

template <class Element>
class Without_Memory : public testing::Test
{
};
TYPED_TEST_SUITE(Without_Memory, Element_Types);

TYPED_TEST(Without_Memory, sorts_all_the_same)
{
    using E = TypeParam;
    const auto less = [](const E *later, const E *earlier) { return *later < *earlier; };
    std::mt19937 random(19);
    for (size_t length : {20, 300, 1000}) {
        for (Draw draw : {Draw::Any_Bits, Draw::Few_Values}) {
            std::vector<E> elements = draw_elements<E>(random, length, draw, false);
            std::vector<uint32_t> indexes(length);
            std::iota(indexes.begin(), indexes.end(), 5u);
            std::vector<E> expected = elements;
            std::vector<uint32_t> expected_indexes = indexes;
            reference::sort(expected, &expected_indexes, less);
            std::vector<E> alone = elements;
            engine::sort(std::span(alone));
            EXPECT_TRUE(same_bits(alone, expected));
            EXPECT_TRUE(engine::sort_with_permutation<E>(elements, indexes));
            EXPECT_TRUE(same_bits(elements, expected));
            EXPECT_EQ(indexes, expected_indexes);
        }
    }
}

TYPED_TEST(Without_Memory, rearranging_says_so_and_changes_nothing)
{
    using E = TypeParam;
    std::mt19937 random(20);
    const std::vector<E> elements = draw_elements<E>(random, 6, Draw::Any_Bits);
    const std::vector<uint32_t> permutation{5, 4, 3, 2, 1, 0};
    std::vector<E> ours = elements;
    EXPECT_FALSE(engine::rearrange<E>(ours, permutation, engine::Permutation_Way::forward));
    EXPECT_FALSE(engine::rearrange<E>(ours, permutation, engine::Permutation_Way::inverse));
    EXPECT_FALSE(engine::transpose<E>(ours, 2, 3));
    EXPECT_TRUE(same_bits(ours, elements));
}

/// The pattern that makes the vectors give up needs a table, and is found without it too.
TYPED_TEST(Without_Memory, repetitive_patterns_are_found)
{
    using E = TypeParam;
    E other;
    std::memset(&other, 0x42, sizeof other);
    std::vector<E> pattern(64, E{});
    pattern[31] = other;
    std::vector<E> elements(6000, E{});
    elements[5001] = other;
    EXPECT_EQ(engine::first_index_of_subsequence<E>(std::span<const E>(elements), pattern), 4970u);
}
