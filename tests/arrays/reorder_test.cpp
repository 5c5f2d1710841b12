#include "arrays/engine/fill.hpp"
#include "arrays/engine/permutation.hpp"
#include "arrays/engine/reorder.hpp"

#include "tests/arrays/random_elements.hpp"
#include "tests/reference/vector_algorithms.hpp"

using namespace zeb_test;
using zeb::Permutation_Outcome;

template <class Element>
class Reordering : public testing::Test
{
};
TYPED_TEST_SUITE(Reordering, Element_Types);

TYPED_TEST(Reordering, reversal_keeps_the_middle_pair_of_an_even_count)
{
    using E = TypeParam;
    on_each_target([] {
        std::mt19937 random(11);
        for (size_t length : lengths()) {
            std::vector<E> elements = draw_elements<E>(random, length, Draw::Any_Bits);
            Walled<E> walled(elements, length % 33);
            zeb::reverse(walled.span());
            reference::reverse(elements);
            ASSERT_TRUE(same_bits(walled.elements(), elements)) << length;
            ASSERT_TRUE(walled.wall_stands());
        }
    });
}

TYPED_TEST(Reordering, filling_writes_the_range_and_nothing_else)
{
    using E = TypeParam;
    on_each_target([] {
        std::mt19937 random(12);
        std::vector<size_t> counts = lengths();
        counts.push_back((size_t{17} << 20) /
                         sizeof(E)); // past the size from which stores go round the caches
        for (size_t length : counts) {
            const E value = draw_element<E>(random, Draw::Any_Bits, true);
            std::vector<E> elements(length, E{});
            Walled<E> walled(elements, length % 33);
            const uint32_t start = static_cast<uint32_t>(random() % (length + 2));
            const uint32_t end =
                length % 3 == 0 ? UINT32_MAX : start + static_cast<uint32_t>(random() % (length + 1));
            zeb::fill_range(walled.span(), {start, end}, value);
            for (size_t i = start; i <= end && i < length; ++i)
                elements[i] = value;
            ASSERT_TRUE(same_bits(walled.elements(), elements)) << length << ' ' << start << ' ' << end;
            zeb::fill_range(walled.span(), {1, 0}, E{});
            ASSERT_TRUE(same_bits(walled.elements(), elements));
            zeb::fill(walled.span(), value);
            ASSERT_TRUE(same_bits(walled.elements(), std::vector<E>(length, value)));
            ASSERT_TRUE(walled.wall_stands());
        }
    });
}

TYPED_TEST(Reordering, moves_swaps_and_transpositions_are_the_plain_ones)
{
    using E = TypeParam;
    std::mt19937 random(13);
    for (uint32_t length = 1; length < 60; ++length) {
        const std::vector<E> elements = draw_elements<E>(random, length, Draw::Any_Bits);
        const uint32_t from = random() % length, to = random() % length;
        std::vector<E> expected = elements, ours = elements;
        reference::move(expected, from, to);
        zeb::move_element(std::span(ours), from, to);
        ASSERT_TRUE(same_bits(ours, expected)) << from << " to " << to;
        reference::swap(expected, from, to);
        zeb::swap_elements(std::span(ours), from, to);
        ASSERT_TRUE(same_bits(ours, expected));
        zeb::move_element(std::span(ours), from, length);
        zeb::swap_elements(std::span(ours), length, to);
        ASSERT_TRUE(same_bits(ours, expected));
        for (uint32_t rows = 0; rows <= length; ++rows) {
            const uint32_t columns = rows == 0 ? 0 : length / rows;
            ASSERT_TRUE(zeb::transpose(std::span(ours), rows, columns));
            reference::transpose(expected, rows, columns);
            ASSERT_TRUE(same_bits(ours, expected)) << rows << " x " << columns;
        }
        // A product that only seems to be the count where it is cut to 32 bits.
        ASSERT_TRUE(zeb::transpose(std::span(ours), 65536, 65536));
        ASSERT_TRUE(same_bits(ours, expected));
    }
}

TYPED_TEST(Reordering, permutations_of_any_length_are_applied_and_undone)
{
    using E = TypeParam;
    std::mt19937 random(14);
    for (uint32_t turn = 0; turn < 400; ++turn) {
        const uint32_t count = random() % 50, entries = turn % 3 == 0 ? count : random() % 60;
        const std::vector<E> elements = draw_elements<E>(random, count, Draw::Any_Bits);
        std::vector<uint32_t> permutation(entries);
        for (uint32_t i = 0; i < entries; ++i)
            permutation[i] = i < count ? random() % count : UINT32_MAX; // entries past the count are not read
        std::vector<E> expected = elements, ours = elements;
        ASSERT_EQ(zeb::apply_permutation<E>(ours, permutation), Permutation_Outcome::Applied);
        reference::apply_permutation(expected, permutation);
        ASSERT_TRUE(same_bits(ours, expected));
        ASSERT_EQ(zeb::apply_inverse_permutation<E>(ours, permutation), Permutation_Outcome::Applied);
        reference::apply_inverse_permutation(expected, permutation);
        ASSERT_TRUE(same_bits(ours, expected));
        if (count == 0 || entries == 0)
            continue;
        permutation[random() % std::min(count, entries)] = count + random() % 2 * 1000;
        ASSERT_EQ(zeb::apply_permutation<E>(ours, permutation), Permutation_Outcome::Entry_Outside);
        ASSERT_EQ(zeb::apply_inverse_permutation<E>(ours, permutation), Permutation_Outcome::Entry_Outside);
        ASSERT_TRUE(same_bits(ours, expected));
    }
}
