#include "arrays/engine/algorithms/equality.hpp"
#include "arrays/engine/algorithms/extrema.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/vector_algorithms.hpp"

using namespace zeb_test;

template <class Element>
class Extremes : public testing::Test
{
};
TYPED_TEST_SUITE(Extremes, Element_Types);

namespace
{

template <class E>
void expect_extremes(const std::vector<E> &elements, size_t offset)
{
    Walled<E> walled(elements, offset);
    const std::span<const E> span = walled.span();
    const E low = reference::minimum(elements);
    const E high = reference::maximum(elements);
    ASSERT_TRUE(same_bits(engine::minimum(span), low)) << elements.size();
    ASSERT_TRUE(same_bits(engine::maximum(span), high)) << elements.size();
    const engine::Extrema<E> both = engine::minimum_and_maximum(span);
    ASSERT_TRUE(same_bits(both.minimum, low) && same_bits(both.maximum, high)) << elements.size();
    ASSERT_TRUE(same_bits(engine::minimum(span, Asked_Less()), low));
    ASSERT_TRUE(same_bits(engine::maximum(span, Asked_Less()), high));
}

} // namespace

TYPED_TEST(Extremes, are_those_of_the_plain_scan)
{
    using E = TypeParam;
    on_each_target([] {
        std::mt19937 random(5);
        for (size_t length : lengths())
            for (unsigned kind = 0; kind < 8; ++kind)
                expect_extremes(draw_elements<E>(random, length,
                                                 kind % 2 == 0 ? Draw::Few_Values : Draw::Any_Bits,
                                                 kind % 4 < 2),
                                length % 29);
    });
}

/// Zeros of both signs as the extreme, and a not-a-number in front, in lengths around the vectors.
TYPED_TEST(Extremes, keep_the_first_zero_and_a_leading_not_a_number)
{
    using E = TypeParam;
    if constexpr (std::is_floating_point_v<E>) {
        on_each_target([] {
            std::mt19937 random(6);
            for (size_t length = 1; length < 150; ++length) {
                for (E sign : {E(1), E(-1)}) {
                    std::vector<E> elements(length);
                    for (E &element : elements)
                        element = random() % 3 == 0 ? sign * static_cast<E>(random() % 9 + 1)
                                                    : (random() % 2 == 0 ? E(0) : -E(0));
                    expect_extremes(elements, length % 7);
                    elements[random() % length] = std::numeric_limits<E>::quiet_NaN();
                    expect_extremes(elements, length % 7);
                    elements[0] = -std::numeric_limits<E>::quiet_NaN();
                    expect_extremes(elements, length % 7);
                }
            }
        });
    }
}

TYPED_TEST(Extremes, equality_sees_one_difference_at_every_place)
{
    using E = TypeParam;
    on_each_target([] {
        std::mt19937 random(7);
        for (size_t length : lengths()) {
            const std::vector<E> left = draw_elements<E>(random, length, Draw::Few_Values, length % 2 == 1);
            std::vector<E> right = left;
            for (size_t turn = 0; turn <= std::min<size_t>(length, 40); ++turn) {
                Walled<E> walled(right, length % 13);
                const std::span<const E> span(left);
                ASSERT_EQ(engine::same_memory<E>(span, walled.span()), reference::same_memory(left, right));
                ASSERT_EQ(engine::same_values<E>(span, walled.span()), reference::same_values(left, right));
                ASSERT_EQ(engine::same_values<E>(span, walled.span(), Asked_Equality()),
                          reference::same_values(left, right));
                right = left;
                if (length > 0)
                    right[random() % length] = draw_element<E>(random, Draw::Few_Values, true);
            }
            right.push_back(E{});
            ASSERT_FALSE(engine::same_memory<E>(std::span<const E>(left), right));
            ASSERT_FALSE(engine::same_values<E>(std::span<const E>(left), right));
        }
    });
}
