#include "arrays/engine/algorithms/search.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/vector_algorithms.hpp"

using namespace zeb_test;

template <class Element>
class Search : public testing::Test
{
};
TYPED_TEST_SUITE(Search, Element_Types);

TYPED_TEST(Search, first_and_last_index_are_those_of_the_plain_scan)
{
    using E = TypeParam;
    on_each_target([] {
        std::mt19937 random(1);
        for (size_t length : lengths()) {
            for (Draw draw : {Draw::Few_Values, Draw::Any_Bits}) {
                const std::vector<E> elements = draw_elements<E>(random, length, draw);
                Walled<E> walled(elements, length % 37);
                const std::span<const E> span = walled.span();
                for (int i = 0; i < 6; ++i) {
                    const bool present = i % 2 == 0 && length > 0;
                    const E value =
                        present ? elements[random() % length] : draw_element<E>(random, draw, true);
                    const uint32_t first = reference::first_index_of(elements, value);
                    const uint32_t last = reference::last_index_of(elements, value);
                    ASSERT_EQ(engine::first_index_of(span, value), first) << length;
                    ASSERT_EQ(engine::last_index_of(span, value), last) << length;
                    ASSERT_EQ(engine::first_index_of(span, value, Asked_Equality()), first);
                    ASSERT_EQ(engine::last_index_of(span, value, Asked_Equality()), last);
                }
            }
        }
    });
}

/// A single match at each place of a run with vectors, rests and overlaps.
TYPED_TEST(Search, a_lone_element_is_found_at_every_place)
{
    using E = TypeParam;
    on_each_target([] {
        std::vector<E> elements(300, E{});
        E wanted;
        std::memset(&wanted, 0x41, sizeof wanted);
        for (size_t length : {1, 15, 64, 130, 299}) {
            for (size_t at = 0; at < length; ++at) {
                elements[at] = wanted;
                Walled<E> walled({elements.begin(), elements.begin() + static_cast<std::ptrdiff_t>(length)},
                                 at % 11);
                const std::span<const E> span = walled.span();
                ASSERT_EQ(engine::first_index_of(span, wanted), at);
                ASSERT_EQ(engine::last_index_of(span, wanted), at);
                elements[at] = E{};
            }
        }
    });
}

/// Patterns cut out of the text, some spoilt, over alphabets of one to many values.
TYPED_TEST(Search, subsequences_are_those_of_the_plain_scan)
{
    using E = TypeParam;
    on_each_target([] {
        std::mt19937 random(2);
        for (size_t length : lengths()) {
            for (unsigned kind = 0; kind < 12; ++kind) {
                std::vector<E> elements = draw_elements<E>(random, length, Draw::Few_Values, kind % 3 == 0);
                if (kind % 4 == 1)
                    for (size_t i = 0; i < length; ++i)
                        elements[i] = elements[i % (1 + kind / 4)];
                const size_t start = length == 0 ? 0 : random() % length;
                const size_t rest = length - start;
                const size_t m = kind % 2 == 0 ? std::min<size_t>(rest, random() % 6)
                                 : rest == 0   ? 0
                                               : random() % rest + 1;
                std::vector<E> pattern(elements.begin() + static_cast<std::ptrdiff_t>(start),
                                       elements.begin() + static_cast<std::ptrdiff_t>(start + m));
                if (kind % 5 == 4 && m > 0)
                    pattern[random() % m] = draw_element<E>(random, Draw::Few_Values, true);
                Walled<E> walled(elements, kind);
                const std::span<const E> span = walled.span();
                const uint32_t expected = reference::first_index_of_subsequence(elements, pattern);
                ASSERT_EQ(engine::first_index_of_subsequence<E>(span, pattern), expected)
                    << length << ' ' << m;
                ASSERT_EQ(engine::first_index_of_subsequence<E>(span, pattern, Asked_Equality()), expected);
                // One element more after the end makes the last occurrence one that is found.
                std::vector<E> longer = elements;
                longer.push_back(E{});
                ASSERT_EQ(engine::find_occurrence<E>(span, pattern),
                          reference::first_index_of_subsequence(longer, pattern));
            }
        }
    });
}

/// Runs that nearly match everywhere make the vectors give up; the answer stays the same.
TYPED_TEST(Search, repetitive_patterns_are_found)
{
    using E = TypeParam;
    on_each_target([] {
        E a{}, b;
        std::memset(&b, 0x42, sizeof b);
        for (size_t broken_at : {0, 1, 31, 62, 63}) {
            for (size_t length : {6000, 200000}) {
                std::vector<E> pattern(64, a);
                pattern[broken_at] = b;
                std::vector<E> elements(length, a);
                const std::span<const E> span(elements);
                ASSERT_EQ(engine::first_index_of_subsequence<E>(span, pattern), ZEB_NOT_FOUND);
                elements[length - 999] = b;
                const uint32_t expected = static_cast<uint32_t>(length - 999 - broken_at);
                ASSERT_EQ(engine::first_index_of_subsequence<E>(span, pattern), expected);
                ASSERT_EQ(engine::find_occurrence<E>(span, pattern, expected), expected);
                ASSERT_EQ(engine::find_occurrence<E>(span, pattern, expected + 1), ZEB_NOT_FOUND);
            }
        }
    });
}

/// A long text is sampled on the way: the first occurrence is found before, across and behind that place.
TYPED_TEST(Search, runs_are_found_anywhere_in_a_long_text)
{
    using E = TypeParam;
    constexpr size_t sampled_at = 65536;
    on_each_target([] {
        std::mt19937 random(19);
        std::vector<E> elements = draw_elements<E>(random, 3 * sampled_at, Draw::Few_Values, false);
        for (size_t length : {2, 3, 4, 20, 300, 70000}) {
            for (size_t start :
                 {size_t{7}, sampled_at - length / 2, sampled_at + 1, elements.size() - length - 1}) {
                const auto first = elements.begin() + static_cast<std::ptrdiff_t>(start);
                const std::vector<E> pattern(first, first + static_cast<std::ptrdiff_t>(length));
                ASSERT_EQ(engine::first_index_of_subsequence<E>(std::span<const E>(elements), pattern),
                          reference::first_index_of_subsequence(elements, pattern));
            }
        }
    });
}
