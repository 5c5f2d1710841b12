#include "arrays/engine/algorithms/ordered_search.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/vector_algorithms.hpp"

#include <algorithm>

using namespace zeb_test;

namespace
{

/// How a recorded comparison answers.
enum class Manner { Honest, Inconsistent, Sometimes_Unknown };

/// A comparison that keeps what it was asked about.
template <class Element>
struct Recorder {
    Manner manner;
    const Element *base;
    std::vector<int64_t> asked;

    ZEB_Comparison operator()(const Element *key, const Element *element)
    {
        asked.push_back(element - base);
        const uint32_t noise = static_cast<uint32_t>(element - base) * 2654435761u >> 13;
        if (manner == Manner::Inconsistent)
            return noise % 2 == 0 ? 2 : 3;
        if (manner == Manner::Sometimes_Unknown && noise % 4 == 0)
            return noise % 8 == 0 ? 0 : 4 + noise % 3;
        return reference::own_comparison(key, element);
    }
};

template <class Element, class Engine, class Reference>
void compare_searches(const std::vector<Element> &elements, Element key, Manner manner, Engine engine,
                      Reference literal)
{
    Recorder<Element> ours{manner, elements.data(), {}};
    Recorder<Element> theirs{manner, elements.data(), {}};
    const reference::Ordered expected = literal(elements, key, std::ref(theirs));
    const reference::Ordered found = engine(elements, key, std::ref(ours));
    ASSERT_EQ(found.index, expected.index) << elements.size();
    ASSERT_EQ(found.warned, expected.warned);
    ASSERT_EQ(found.inserts, expected.inserts);
    ASSERT_EQ(ours.asked, theirs.asked);
}

const auto find = [](const auto &elements, auto key, auto compare) -> reference::Ordered {
    const engine::Ordered_Find found = engine::ordered_find(std::span(elements), key, compare);
    return {found.index, found.warns, false};
};
const auto find_nearest = [](const auto &elements, auto key, auto compare) -> reference::Ordered {
    const engine::Ordered_Find found = engine::ordered_find_nearest(std::span(elements), key, compare);
    return {found.index, found.warns, false};
};
const auto insert_position = [](const auto &elements, auto key, auto compare) -> reference::Ordered {
    const engine::Ordered_Insert place = engine::ordered_insert_position(std::span(elements), key, compare);
    return {place.index, place.warns, place.outcome == engine::Ordered_Insert_Outcome::Inserts};
};
const auto literal_find = [](const auto &elements, auto key, auto compare) {
    return reference::ordered_find(elements, key, compare);
};
const auto literal_find_nearest = [](const auto &elements, auto key, auto compare) {
    return reference::ordered_find_nearest(elements, key, compare);
};
const auto literal_insert = [](const auto &elements, auto key, auto compare) {
    return reference::ordered_insert(elements, key, compare);
};

} // namespace

template <class Element>
class Ordered_Search : public testing::Test
{
};
TYPED_TEST_SUITE(Ordered_Search, Element_Types);

TYPED_TEST(Ordered_Search, asks_a_function_about_the_same_elements_in_the_same_order)
{
    using E = TypeParam;
    std::mt19937 random(3);
    std::vector<size_t> counts = lengths();
    counts.push_back(70000); // past the count from which the next probes are prefetched
    for (size_t length : counts) {
        std::vector<E> elements = draw_elements<E>(random, length, Draw::Any_Bits, false);
        std::sort(elements.begin(), elements.end());
        for (Manner manner : {Manner::Honest, Manner::Inconsistent, Manner::Sometimes_Unknown}) {
            for (int i = 0; i < 6; ++i) {
                const bool present = i % 2 == 0 && length > 0;
                const E key =
                    present ? elements[random() % length] : draw_element<E>(random, Draw::Any_Bits, true);
                compare_searches(elements, key, manner, find, literal_find);
                compare_searches(elements, key, manner, find_nearest, literal_find_nearest);
                compare_searches(elements, key, manner, insert_position, literal_insert);
            }
        }
    }
}

/// The own order against the written rules, on sorted, unsorted and not-a-number elements.
TYPED_TEST(Ordered_Search, own_order_ends_where_the_rules_end)
{
    using E = TypeParam;
    std::mt19937 random(4);
    std::vector<size_t> counts = lengths();
    counts.push_back(70000);
    for (size_t length : counts) {
        for (unsigned kind = 0; kind < 4; ++kind) {
            const Draw draw = kind % 2 == 0 ? Draw::Any_Bits : Draw::Few_Values;
            std::vector<E> elements = draw_elements<E>(random, length, draw, kind >= 2);
            if (kind < 2)
                std::sort(elements.begin(), elements.end());
            for (int i = 0; i < 12; ++i) {
                const bool present = i % 2 == 0 && length > 0;
                const E key = present ? elements[random() % length] : draw_element<E>(random, draw, true);
                const auto own = [](const E *left, const E *right) {
                    return reference::own_comparison(left, right);
                };
                const std::span<const E> span(elements);
                ASSERT_EQ(engine::ordered_find(span, key).index,
                          reference::ordered_find(elements, key, own).index);
                ASSERT_EQ(engine::ordered_find_nearest(span, key).index,
                          reference::ordered_find_nearest(elements, key, own).index);
                const engine::Ordered_Insert place = engine::ordered_insert_position(span, key);
                const reference::Ordered expected = reference::ordered_insert(elements, key, own);
                ASSERT_EQ(place.index, expected.index);
                ASSERT_EQ(place.outcome == engine::Ordered_Insert_Outcome::Inserts, expected.inserts);
                ASSERT_FALSE(place.warns);
            }
        }
    }
}
