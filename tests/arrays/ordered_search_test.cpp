/// The ordered searches in long runs, where the next probes are prefetched; the classes' tests hold them for
/// short ones, by every manner of a caller's comparison.
#include "arrays/engine/algorithms/ordered_search.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/vector_algorithms.hpp"

#include <algorithm>

using namespace zeb_test;

template <class Element>
class Ordered_Search : public testing::Test
{
};
TYPED_TEST_SUITE(Ordered_Search, Element_Types);

TYPED_TEST(Ordered_Search, ends_where_the_rules_end_and_asks_in_their_order)
{
    using E = TypeParam;
    std::mt19937 random(4);
    std::vector<size_t> counts = lengths();
    counts.push_back(70000); // past the count from which the next probes are prefetched
    for (size_t length : counts) {
        for (unsigned kind = 0; kind < 4; ++kind) {
            const Draw draw = kind % 2 == 0 ? Draw::Any_Bits : Draw::Few_Values;
            std::vector<E> elements = draw_elements<E>(random, length, draw, kind >= 2);
            if (kind < 2)
                std::sort(elements.begin(), elements.end(), reference::Less());
            const std::span<const E> span(elements);
            for (int i = 0; i < 12; ++i) {
                const bool present = i % 2 == 0 && length > 0;
                const E key = present ? elements[random() % length] : draw_element<E>(random, draw, true);
                std::vector<const E *> asked, expected_asked;
                const auto recorded = [](std::vector<const E *> &places) {
                    return [&places](const E *left, const E *right) {
                        places.push_back(right);
                        return reference::own_comparison(left, right);
                    };
                };
                const auto plain = recorded(expected_asked);
                const uint32_t found = reference::ordered_find(elements, key, plain).index;
                const uint32_t nearest = reference::ordered_find_nearest(elements, key, plain).index;
                const reference::Ordered place = reference::ordered_insert(elements, key, plain);
                ASSERT_EQ(engine::ordered_find(span, key, recorded(asked)).index, found);
                ASSERT_EQ(engine::ordered_find_nearest(span, key, recorded(asked)).index, nearest);
                ASSERT_EQ(engine::ordered_insert_position(span, key, recorded(asked)).index, place.index);
                ASSERT_EQ(asked, expected_asked);
                ASSERT_EQ(engine::ordered_find(span, key).index, found);
                ASSERT_EQ(engine::ordered_find_nearest(span, key).index, nearest);
                const engine::Ordered_Insert own = engine::ordered_insert_position(span, key);
                ASSERT_EQ(own.index, place.index);
                ASSERT_EQ(own.outcome == engine::Ordered_Insert_Outcome::Inserts, place.inserts);
                ASSERT_FALSE(own.warns);
            }
        }
    }
}
