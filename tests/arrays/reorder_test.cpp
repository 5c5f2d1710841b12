#include "arrays/engine/algorithms/fill.hpp"
#include "arrays/engine/algorithms/reorder.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/vector_algorithms.hpp"

using namespace zeb_test;

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
            engine::reverse(walled.span());
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
            engine::fill_range(walled.span(), {start, end}, value);
            for (size_t i = start; i <= end && i < length; ++i)
                elements[i] = value;
            ASSERT_TRUE(same_bits(walled.elements(), elements)) << length << ' ' << start << ' ' << end;
            engine::fill_range(walled.span(), {1, 0}, E{});
            ASSERT_TRUE(same_bits(walled.elements(), elements));
            engine::fill(walled.span(), value);
            ASSERT_TRUE(same_bits(walled.elements(), std::vector<E>(length, value)));
            ASSERT_TRUE(walled.wall_stands());
        }
    });
}
