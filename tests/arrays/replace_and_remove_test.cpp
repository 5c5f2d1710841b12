#include "arrays/engine/algorithms/occurrences.hpp"
#include "arrays/engine/algorithms/replacement.hpp"
#include "arrays/engine/storage/removal.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/vector_algorithms.hpp"

#include <sys/mman.h>

using namespace zeb_test;

template <class Element>
class Changes_By_Value : public testing::Test
{
};
TYPED_TEST_SUITE(Changes_By_Value, Element_Types);

namespace
{

/// Elements of which about one in `rarity` equals the answered value.
template <class E>
std::vector<E> with_matches(std::mt19937 &random, size_t length, unsigned rarity, E value)
{
    std::vector<E> elements = draw_elements<E>(random, length, Draw::Any_Bits);
    for (E &element : elements)
        if (random() % rarity == 0)
            element = value;
    return elements;
}

} // namespace

TYPED_TEST(Changes_By_Value, removal_and_replacement_are_those_of_the_plain_loop)
{
    using E = TypeParam;
    on_each_target([] {
        std::mt19937 random(8);
        for (size_t length : lengths()) {
            for (unsigned rarity : {1u, 2u, 3u, 20u, 1000u}) {
                const E value = draw_element<E>(random, Draw::Few_Values, true);
                const E other = draw_element<E>(random, Draw::Any_Bits, true);
                const std::vector<E> elements = with_matches(random, length, rarity, value);
                const auto same = [&](auto literal, auto change) {
                    std::vector<E> expected = elements;
                    Walled<E> walled(elements, (length + rarity) % 31);
                    ASSERT_EQ(change(walled.span()), literal(expected)) << length << ' ' << rarity;
                    // All of the block, since a link's owner sees what lies beyond a new count.
                    ASSERT_TRUE(same_bits(walled.elements(), expected)) << length << ' ' << rarity;
                    ASSERT_TRUE(walled.wall_stands());
                };
                const auto removed = [&](auto &all) { return reference::remove_equal(all, value); };
                const auto replaced = [&](auto &all) { return reference::replace_equal(all, value, other); };
                same(removed, [&](auto span) { return engine::remove_equal(span, value); });
                same(removed, [&](auto span) { return engine::remove_equal(span, value, Asked_Equality()); });
                same(replaced, [&](auto span) { return engine::replace_equal(span, value, other); });
                same(replaced,
                     [&](auto span) { return engine::replace_equal(span, value, other, Asked_Equality()); });
            }
        }
    });
}

/// A link may view memory that cannot be written: all is well as long as no element there matches.
TYPED_TEST(Changes_By_Value, elements_that_do_not_match_are_not_written)
{
    using E = TypeParam;
    constexpr size_t bytes = 65536;
    void *const block = mmap(nullptr, 2 * bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(block, MAP_FAILED);
    constexpr size_t count = bytes / sizeof(E);
    E *const elements = static_cast<E *>(block);
    std::mt19937 random(9);
    E value;
    std::memset(&value, 0x43, sizeof value);
    size_t written = 0;
    for (size_t i = 0; i < count; ++i) {
        elements[i] = random() % 5 == 0 ? value : E{};
        written += elements[i] == value;
    }
    ASSERT_EQ(mprotect(static_cast<char *>(block) + bytes, bytes, PROT_READ), 0);
    on_each_target([&] {
        for (size_t i = 0; i < 3; ++i) {
            const std::span<E> all(elements + i, 2 * count - i);
            const uint32_t found = engine::replace_equal(all, value, value);
            EXPECT_LE(found, written);
            EXPECT_GE(found + i, written);
        }
        EXPECT_EQ(engine::replace_equal(std::span<E>(elements + count, count), value, value), 0u);
        EXPECT_EQ(engine::remove_equal(std::span<E>(elements + count, count), value), count);
    });
    munmap(block, 2 * bytes);
}

/// Replacements that are longer, as long and shorter, over few values so that occurrences would overlap.
TYPED_TEST(Changes_By_Value, occurrences_are_replaced_from_the_front_without_overlap)
{
    using E = TypeParam;
    std::mt19937 random(10);
    for (unsigned turn = 0; turn < 3000; ++turn) {
        const size_t length = random() % 90;
        const std::vector<E> elements = draw_elements<E>(random, length, Draw::Few_Values, turn % 8 == 0);
        const std::vector<E> pattern =
            draw_elements<E>(random, random() % 4, Draw::Few_Values, turn % 16 == 0);
        const std::vector<E> replacement = draw_elements<E>(random, random() % 4, Draw::Few_Values, false);
        std::vector<E> expected = elements;
        const uint32_t replaced = reference::replace_occurrences(expected, pattern, replacement);
        if (replacement.size() <= pattern.size()) {
            Walled<E> walled(elements, turn % 9);
            const auto answer = engine::replace_occurrences_in_place<E>(walled.span(), pattern, replacement);
            ASSERT_EQ(answer.replacements, replaced);
            ASSERT_EQ(answer.count, expected.size());
            std::vector<E> result = walled.elements();
            result.resize(answer.count);
            ASSERT_TRUE(same_bits(result, expected));
        }
        Walled<E> room(std::vector<E>(expected.size()), turn % 9);
        ASSERT_EQ(engine::copy_with_occurrences_replaced<E>(std::span<const E>(elements), pattern,
                                                            replacement, room.span(), Asked_Equality()),
                  replaced);
        ASSERT_TRUE(same_bits(room.elements(), expected));
        ASSERT_TRUE(room.wall_stands());
    }
}
