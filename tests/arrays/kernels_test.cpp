/// Every algorithm of plain elements on each vector instruction set of this machine, on elements at any
/// offset between walls, with memory and without, against its plainest form.
#include "arrays/engine/algorithms/equality.hpp"
#include "arrays/engine/algorithms/extrema.hpp"
#include "arrays/engine/algorithms/fill.hpp"
#include "arrays/engine/algorithms/permutation.hpp"
#include "arrays/engine/algorithms/reorder.hpp"
#include "arrays/engine/algorithms/replacement.hpp"
#include "arrays/engine/algorithms/search.hpp"
#include "arrays/engine/algorithms/sort.hpp"
#include "arrays/engine/storage/removal.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/vector_algorithms.hpp"
#include "tests/support/memory.hpp"

#include <numeric>
#include <sys/mman.h>

using namespace zeb_test;

// Every 64-bit ARM processor has vectors; it is they that are tested.
#if ZEB_HAS_HIGHWAY && defined(__aarch64__)
static_assert(HWY_STATIC_TARGET == HWY_NEON);
#endif

template <class Element>
class Kernels : public testing::Test
{
protected:
    using Elements = std::vector<Element>;
    using Changed = std::span<Element>;
    using Seen = std::span<const Element>;

    /// Holds what a change answers and leaves, also around the elements, against its plain form.
    template <class Ours, class Plain>
    void hold(const Elements &elements, size_t offset, Ours ours, Plain plain)
    {
        Elements expected = elements;
        Walled<Element> walled(elements, offset);
        ASSERT_EQ(ours(walled.span()), plain(expected)) << elements.size();
        // All of the block, since a link's owner sees what lies beyond a new count.
        ASSERT_TRUE(same_bits(walled.elements(), expected)) << elements.size();
        ASSERT_TRUE(walled.wall_stands());
    }

    /// Elements of few values or of any, at random, sorted, reversed, or all the same.
    Elements draw(size_t length, unsigned shape)
    {
        Elements all =
            draw_elements<Element>(random, length, shape % 2 == 0 ? Draw::Any_Bits : Draw::Few_Values,
                                   shape % 8 == 6 || shape % 8 == 7);
        if (shape % 8 == 2 || shape % 8 == 3)
            std::sort(all.begin(), all.end(), reference::Less());
        if (shape % 8 == 3)
            std::reverse(all.begin(), all.end());
        if (shape % 8 == 4)
            std::fill(all.begin(), all.end(), length == 0 ? Element{} : all[0]);
        return all;
    }

    /// A value that is one of the elements, or any.
    Element value_of(const Elements &elements, unsigned shape)
    {
        return !elements.empty() && random() % 2 == 0
                   ? elements[random() % elements.size()]
                   : draw_element<Element>(random, shape % 2 == 0 ? Draw::Any_Bits : Draw::Few_Values, true);
    }

    template <class Test>
    void on_each_input(Test test)
    {
        on_each_target([&] {
            for (size_t length : lengths())
                for (unsigned shape = 0; shape < 8 && !testing::Test::HasFatalFailure(); ++shape)
                    test(draw(length, shape), shape, length % 37 + shape);
        });
    }

    /// All of one value, but for a lone other.
    static Elements lone(size_t length, size_t at)
    {
        Elements all(length, Element{});
        if (at < length)
            std::memset(static_cast<void *>(&all[at]), 0x42, sizeof(Element));
        return all;
    }

    void expect_found(const Elements &elements, const Elements &pattern, size_t offset)
    {
        Walled<Element> walled(elements, offset);
        const Seen span = walled.span();
        const uint32_t expected = reference::first_index_of_subsequence(elements, pattern);
        ASSERT_EQ(engine::first_index_of_subsequence<Element>(span, pattern), expected) << pattern.size();
        ASSERT_EQ(engine::first_index_of_subsequence<Element>(span, pattern, std::equal_to<>()), expected);
        // One element more after the end makes the last occurrence one that is found.
        Elements longer = elements;
        longer.push_back(Element{});
        ASSERT_EQ(engine::find_occurrence<Element>(span, pattern),
                  reference::first_index_of_subsequence(longer, pattern));
    }

    void expect_sorted(const Elements &elements, size_t offset, uint32_t step)
    {
        std::vector<uint32_t> marks(elements.size());
        for (uint32_t i = 0; i < marks.size(); ++i)
            marks[i] = i * step;
        Elements expected = elements, ours = elements;
        std::vector<uint32_t> expected_marks = marks, our_marks = marks;
        reference::sort(expected, &expected_marks, less_at);
        Walled<Element> alone(elements, offset), walled(elements, offset);
        Walled<uint32_t> walled_marks(marks, offset % 19);
        engine::sort(alone.span());
        ASSERT_TRUE(same_bits(alone.elements(), expected) && alone.wall_stands()) << elements.size();
        ASSERT_TRUE(engine::sort_with_permutation(walled.span(), walled_marks.span()));
        ASSERT_TRUE(same_bits(walled.elements(), expected) && walled.wall_stands()) << elements.size();
        ASSERT_TRUE(walled_marks.elements() == expected_marks && walled_marks.wall_stands());
        ASSERT_TRUE(engine::sort_with_permutation<Element>(ours, our_marks, reference::Less()));
        ASSERT_TRUE(same_bits(ours, expected) && our_marks == expected_marks);
        if (!marks.empty()) {
            our_marks.pop_back();
            ASSERT_FALSE(engine::sort_with_permutation<Element>(ours, our_marks));
        }
    }

    static constexpr auto less_at = [](const auto *later, const auto *earlier) {
        return reference::Less()(*later, *earlier);
    };
    std::mt19937 random{1};
};
TYPED_TEST_SUITE(Kernels, Element_Types);

TYPED_TEST(Kernels, find_equal_elements)
{
    using E = TypeParam;
    this->on_each_input([&](const std::vector<E> &elements, unsigned shape, size_t offset) {
        Walled<E> walled(elements, offset);
        const std::span<const E> span = walled.span();
        for (int i = 0; i < 4; ++i) {
            const E value = this->value_of(elements, shape);
            const uint32_t first = reference::first_index_of(elements, value);
            const uint32_t last = reference::last_index_of(elements, value);
            ASSERT_EQ(engine::first_index_of(span, value), first) << elements.size();
            ASSERT_EQ(engine::last_index_of(span, value), last) << elements.size();
            ASSERT_EQ(engine::first_index_of(span, value, std::equal_to<>()), first);
            ASSERT_EQ(engine::last_index_of(span, value, std::equal_to<>()), last);
        }
    });
    on_each_target([&] {
        for (size_t length : {1, 15, 64, 130, 299}) {
            for (size_t at = 0; at < length; ++at) {
                const std::vector<E> elements = this->lone(length, at);
                ASSERT_EQ(engine::first_index_of<E>(std::span(elements), elements[at]), at);
                ASSERT_EQ(engine::last_index_of<E>(std::span(elements), elements[at]), at);
            }
        }
    });
}

TYPED_TEST(Kernels, find_runs)
{
    using E = TypeParam;
    this->on_each_input([&](std::vector<E> elements, unsigned shape, size_t offset) {
        if (shape == 5 && !elements.empty())
            for (size_t i = 0; i < elements.size(); ++i)
                elements[i] = elements[i % 3];
        const size_t start = elements.empty() ? 0 : this->random() % elements.size();
        const size_t rest = elements.size() - start, some = this->random();
        const auto from = elements.begin() + static_cast<std::ptrdiff_t>(start);
        for (size_t length : {std::min(rest, some % 6), rest == 0 ? 0 : some % rest + 1}) {
            std::vector<E> pattern(from, from + static_cast<std::ptrdiff_t>(length));
            this->expect_found(elements, pattern, offset);
            if (!pattern.empty())
                pattern[some % length] = this->value_of(elements, shape);
            this->expect_found(elements, pattern, offset);
        }
    });
}

/// Runs that nearly match everywhere make the vectors give up, for a table that there may be no memory for.
TYPED_TEST(Kernels, find_repetitive_runs_with_memory_and_without)
{
    using E = TypeParam;
    on_each_target([&] {
        for (const bool is_out : {false, true}) {
            support::memory.is_out = is_out;
            for (size_t broken_at : {0, 1, 31, 62, 63}) {
                for (size_t length : {6000, is_out ? 9000 : 200000}) {
                    const std::vector<E> pattern = this->lone(64, broken_at);
                    const std::vector<E> elements = this->lone(length, length - 999),
                                         none = this->lone(length, length);
                    const auto expected = static_cast<uint32_t>(length - 999 - broken_at);
                    const std::span<const E> span(elements);
                    EXPECT_EQ(engine::first_index_of_subsequence<E>(std::span(none), pattern), ZEB_NOT_FOUND);
                    EXPECT_EQ(engine::first_index_of_subsequence<E>(span, pattern), expected);
                    EXPECT_EQ(engine::find_occurrence<E>(span, pattern, expected), expected);
                    EXPECT_EQ(engine::find_occurrence<E>(span, pattern, expected + 1), ZEB_NOT_FOUND);
                }
            }
            support::memory.is_out = false;
        }
    });
}

/// A long text is sampled on the way: the first occurrence is found before, across and behind that place.
TYPED_TEST(Kernels, find_runs_anywhere_in_a_long_text)
{
    using E = TypeParam;
    constexpr size_t sampled_at = 65536;
    on_each_target([&] {
        const std::vector<E> elements = this->draw(3 * sampled_at, 1);
        for (size_t length : {2, 3, 4, 20, 300, 70000}) {
            for (size_t start :
                 {size_t{7}, sampled_at - length / 2, sampled_at + 1, elements.size() - length - 1}) {
                const auto first = elements.begin() + static_cast<std::ptrdiff_t>(start);
                const std::vector<E> pattern(first, first + static_cast<std::ptrdiff_t>(length));
                ASSERT_EQ(engine::first_index_of_subsequence<E>(std::span(elements), pattern),
                          reference::first_index_of_subsequence(elements, pattern));
            }
        }
    });
}

TYPED_TEST(Kernels, give_the_extremes)
{
    using E = TypeParam;
    const auto expect_extremes = [](const std::vector<E> &elements, size_t offset) {
        Walled<E> walled(elements, offset);
        const std::span<const E> span = walled.span();
        const E low = reference::minimum(elements), high = reference::maximum(elements);
        const engine::Extrema<E> both = engine::minimum_and_maximum(span);
        for (const E least : {engine::minimum(span), both.minimum, engine::minimum(span, reference::Less())})
            ASSERT_TRUE(same_bits(least, low)) << elements.size();
        for (const E greatest :
             {engine::maximum(span), both.maximum, engine::maximum(span, reference::Less())})
            ASSERT_TRUE(same_bits(greatest, high)) << elements.size();
    };
    this->on_each_input([&](std::vector<E> elements, unsigned shape, size_t offset) {
        expect_extremes(elements, offset);
        if constexpr (std::is_floating_point_v<E>) {
            // Zeros of both signs as the extreme, and a not-a-number somewhere, or in front.
            for (E &element : elements)
                element = this->random() % 3 == 0
                              ? static_cast<E>(this->random() % 9 + 1) * (shape % 2 == 0 ? 1 : -1)
                              : (this->random() % 2 == 0 ? E(0) : -E(0));
            expect_extremes(elements, offset);
            if (!elements.empty())
                elements[shape < 4 ? this->random() % elements.size() : 0] =
                    -std::numeric_limits<E>::quiet_NaN();
            expect_extremes(elements, offset);
        }
    });
}

TYPED_TEST(Kernels, see_one_difference_at_every_place)
{
    using E = TypeParam;
    this->on_each_input([&](const std::vector<E> &left, unsigned shape, size_t offset) {
        std::vector<E> right = left;
        for (size_t turn = 0; turn <= std::min<size_t>(left.size(), 9); ++turn) {
            Walled<E> walled(right, offset);
            const std::span<const E> span(left);
            ASSERT_EQ(engine::same_memory<E>(span, walled.span()), same_bits(left, right));
            ASSERT_EQ(engine::same_values<E>(span, walled.span()), left == right);
            ASSERT_EQ(engine::same_values<E>(span, walled.span(), std::equal_to<>()), left == right);
            right = left;
            if (!left.empty())
                right[this->random() % left.size()] = this->value_of({}, shape);
        }
        right.push_back(E{});
        ASSERT_FALSE(engine::same_memory<E>(std::span(left), right) ||
                     engine::same_values<E>(std::span(left), right));
    });
}

TYPED_TEST(Kernels, reverse_and_fill)
{
    using E = TypeParam;
    const auto reverse = [&](const std::vector<E> &elements, unsigned, size_t offset) {
        this->hold(
            elements, offset, [](auto span) { return engine::reverse(span), 0; },
            [](auto &all) { return reference::reverse(all), 0; });
    };
    const auto fill = [&](const std::vector<E> &elements, unsigned shape, size_t offset) {
        const E value = this->value_of(elements, shape);
        const size_t start = this->random() % (elements.size() + 2);
        const size_t end = shape % 3 == 0 ? UINT32_MAX : start + this->random() % (elements.size() + 1);
        const ZEB_Index_Range range{static_cast<uint32_t>(start), static_cast<uint32_t>(end)};
        this->hold(
            elements, offset, [&](auto span) { return engine::fill_range(span, range, value), 0; },
            [&](auto &all) {
                for (size_t i = start; i <= end && i < all.size(); ++i)
                    all[i] = value;
                return 0;
            });
        this->hold(
            elements, offset,
            [&](auto span) {
                engine::fill_range(span, {1, 0}, E{});
                return engine::fill(span, value), 0;
            },
            [&](auto &all) { return all.assign(all.size(), value), 0; });
    };
    this->on_each_input(reverse);
    this->on_each_input(fill);
    // Past the size from which stores go round the caches.
    on_each_target([&] { fill(this->draw((size_t{17} << 20) / sizeof(E), 0), 0, 3); });
}

TYPED_TEST(Kernels, remove_and_replace)
{
    using E = TypeParam;
    this->on_each_input([&](std::vector<E> elements, unsigned shape, size_t offset) {
        const E value = this->value_of(elements, shape), other = this->value_of({}, 0);
        static constexpr unsigned rarity[] = {1, 2, 3, 20, 1000};
        for (E &element : elements)
            if (this->random() % rarity[shape % 5] == 0)
                element = value;
        const auto removed = [&](auto &all) { return reference::remove_equal(all, value); };
        const auto replaced = [&](auto &all) { return reference::replace_equal(all, value, other); };
        const std::equal_to<> asked; // no kernel knows it
        this->hold(
            elements, offset, [&](auto span) { return engine::remove_equal(span, value); }, removed);
        this->hold(
            elements, offset, [&](auto span) { return engine::remove_equal(span, value, asked); }, removed);
        this->hold(
            elements, offset, [&](auto span) { return engine::replace_equal(span, value, other); }, replaced);
        this->hold(
            elements, offset, [&](auto span) { return engine::replace_equal(span, value, other, asked); },
            replaced);
    });
}

/// A link may view memory that cannot be written: all is well as long as no element there matches.
TYPED_TEST(Kernels, do_not_write_elements_that_do_not_match)
{
    using E = TypeParam;
    constexpr size_t bytes = 65536, count = bytes / sizeof(E);
    void *const block = mmap(nullptr, 2 * bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(block, MAP_FAILED);
    E *const elements = static_cast<E *>(block);
    const E value = this->lone(1, 0)[0];
    size_t written = 0;
    for (size_t i = 0; i < count; ++i) {
        elements[i] = this->random() % 5 == 0 ? value : E{};
        written += elements[i] == value;
    }
    ASSERT_EQ(mprotect(static_cast<char *>(block) + bytes, bytes, PROT_READ), 0);
    on_each_target([&] {
        for (size_t i = 0; i < 3; ++i) {
            const uint32_t found =
                engine::replace_equal(std::span<E>(elements + i, 2 * count - i), value, value);
            EXPECT_TRUE(found <= written && found + i >= written);
        }
        EXPECT_EQ(engine::replace_equal(std::span<E>(elements + count, count), value, value), 0u);
        EXPECT_EQ(engine::remove_equal(std::span<E>(elements + count, count), value), count);
    });
    munmap(block, 2 * bytes);
}

TYPED_TEST(Kernels, sort_with_memory_and_without)
{
    using E = TypeParam;
    this->on_each_input([&](std::vector<E> elements, unsigned shape, size_t offset) {
        this->expect_sorted(elements, offset, 7);
        if (elements.size() > 1100)
            return;
        support::memory.is_out = true;
        this->expect_sorted(elements, offset, 1);
        support::memory.is_out = false;
        if constexpr (std::is_floating_point_v<E>) {
            // Numbers that differ in their last bits only, beside one that is far away.
            for (uint32_t i = 0; i < elements.size(); ++i)
                elements[i] = 1 + static_cast<E>(i / (shape + 1)) * std::numeric_limits<E>::epsilon();
            std::shuffle(elements.begin(), elements.end(), this->random);
            if (!elements.empty())
                elements[0] = std::numeric_limits<E>::max();
            this->expect_sorted(elements, offset, 3);
        }
    });
}

TYPED_TEST(Kernels, say_when_there_is_no_memory_to_rearrange_in)
{
    using E = TypeParam;
    const std::vector<E> elements = this->draw(6, 0);
    const std::vector<uint32_t> permutation{5, 4, 3, 2, 1, 0};
    std::vector<E> ours = elements;
    support::memory.is_out = true;
    EXPECT_FALSE(engine::rearrange<E>(ours, permutation, engine::Permutation_Direction::forward) ||
                 engine::rearrange<E>(ours, permutation, engine::Permutation_Direction::inverse) ||
                 engine::transpose<E>(ours, 2, 3));
    support::memory.is_out = false;
    EXPECT_TRUE(same_bits(ours, elements));
}

/// Counts that do not fit in a signed 32-bit number are left alone; the block is never looked at.
TEST(Sorting_Too_Many, changes_nothing)
{
    EXPECT_FALSE(engine::sort_detail::sorts(size_t{1} << 31));
    EXPECT_TRUE(engine::sort_detail::sorts((size_t{1} << 31) - 1));
    EXPECT_FALSE(engine::sort_detail::sorts(1));
}
