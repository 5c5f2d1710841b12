/// What the kernels do with long vectors, on each vector instruction set of this machine. What they do with
/// shorter ones is held by the classes' tests.
#include "arrays/engine/algorithms/extrema.hpp"
#include "arrays/engine/algorithms/fill.hpp"
#include "arrays/engine/algorithms/ordered_search.hpp"
#include "arrays/engine/algorithms/replacement.hpp"
#include "arrays/engine/algorithms/search.hpp"
#include "arrays/engine/algorithms/sort.hpp"
#include "arrays/engine/storage/removal.hpp"

#include "core/engine/namespace.hpp"
#include "tests/support/memory.hpp"
#include "tests/support/vector_targets.hpp"

#include <algorithm>
#include <cstring>
#include <random>
#include <sys/mman.h>

using namespace zeb_test;

// Every 64-bit ARM processor has vectors; it is they that are tested.
#if ZEB_HAS_HIGHWAY && defined(__aarch64__)
static_assert(HWY_STATIC_TARGET == HWY_NEON);
#endif

using Element_Types = testing::Types<uint8_t, char, int32_t, uint32_t, int64_t, float, double>;

template <class E>
class Kernels : public testing::Test
{
protected:
    /// Elements of one value, but for a lone other.
    static std::vector<E> lone(size_t length, size_t at)
    {
        std::vector<E> all(length);
        all[at] = other;
        return all;
    }

    /// With memory and without.
    static void expect_found(const std::vector<E> &all, const std::vector<E> &run)
    {
        const auto found = std::search(all.begin(), all.end(), run.begin(), run.end());
        on_each_target([&] {
            for (const bool is_out : {false, true}) {
                support::memory.is_out = is_out;
                EXPECT_EQ(engine::find_occurrence<E>(all, run),
                          found == all.end() ? ZEB_NOT_FOUND : static_cast<uint32_t>(found - all.begin()));
            }
            support::memory.is_out = false;
        });
    }

    static constexpr E other = 66;
};
TYPED_TEST_SUITE(Kernels, Element_Types);

TYPED_TEST(Kernels, fill_more_than_the_caches_hold)
{
    std::vector<TypeParam> all((size_t{17} << 20) / sizeof(TypeParam));
    on_each_target([&] {
        std::memset(all.data(), 0, all.size() * sizeof all[0]);
        engine::fill(std::span(all).subspan(5), this->other);
        EXPECT_TRUE(all[4] == TypeParam() && all[5] == this->other);
        // Each is the same as the next.
        EXPECT_EQ(std::memcmp(&all[5], &all[6], (all.size() - 6) * sizeof all[0]), 0);
    });
}

TYPED_TEST(Kernels, find_what_is_rare)
{
    using E = TypeParam;
    for (const size_t length : {1, 15, 64, 130, 299, 600})
        for (size_t at = 0; at < length; ++at) {
            const std::vector<E> all = this->lone(length, at);
            on_each_target([&] {
                ASSERT_EQ(engine::first_index_of<E>(all, this->other), at);
                ASSERT_EQ(engine::last_index_of<E>(all, this->other), at);
                ASSERT_EQ(engine::maximum<E>(all), this->other);
                ASSERT_EQ(engine::minimum_and_maximum<E>(all).maximum, this->other);
            });
        }
    // Runs that nearly match everywhere make the vectors give up, for a table that there may be no memory
    // for.
    for (const size_t broken_at : {0, 1, 31, 62, 63})
        for (const size_t lone_at : {5001, 8001, 8999})
            this->expect_found(this->lone(9000, lone_at), this->lone(64, broken_at));
    // A long text is sampled on the way: the first occurrence is found before, across and behind that place.
    constexpr size_t sampled_at = 65536;
    std::mt19937 random(1);
    std::vector<E> all(3 * sampled_at);
    std::ranges::generate(all, [&] { return static_cast<E>(random() % 5); });
    for (const size_t length : {2, 3, 4, 20, 300, 70000})
        for (const size_t start :
             {size_t{7}, sampled_at - length / 2, sampled_at + 1, 3 * sampled_at - length - 1})
            this->expect_found(all, {all.data() + start, all.data() + start + length});
}

/// A link may view memory that cannot be written: all is well as long as no element there matches.
TYPED_TEST(Kernels, do_not_write_elements_that_do_not_match)
{
    constexpr size_t bytes = 65536, count = bytes / sizeof(TypeParam);
    void *const block = mmap(nullptr, 2 * bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    const std::span all(static_cast<TypeParam *>(block), 2 * count);
    for (size_t i = 2; i < count; i += 5)
        all[i] = this->other;
    mprotect(&all[count], bytes, PROT_READ);
    on_each_target([&] {
        EXPECT_EQ(engine::replace_equal(all.subspan(2), this->other, this->other), (count + 2) / 5);
        EXPECT_EQ(engine::replace_equal(all.subspan(count), this->other, this->other), 0u);
        EXPECT_EQ(engine::remove_equal(all.subspan(count), this->other), count);
    });
    munmap(block, 2 * bytes);
}

/// The next probes are prefetched.
TEST(Ordered_Search, finds_its_way_among_more_than_the_caches_hold)
{
    std::vector<int32_t> all(300000);
    for (int32_t i = 0; i < 300000; ++i)
        all[static_cast<size_t>(i)] = 2 * i;
    for (int32_t key = -1; key <= 600000; key += 7) {
        const auto place = static_cast<uint32_t>(std::ranges::lower_bound(all, key) - all.begin());
        const bool is_there = key % 2 == 0 && key < 600000;
        ASSERT_EQ(engine::ordered_find<int32_t>(all, key).index, is_there ? place : ZEB_NOT_FOUND);
        ASSERT_EQ(engine::ordered_insert_position<int32_t>(all, key).index, place);
        ASSERT_LE(place - engine::ordered_find_nearest<int32_t>(all, key).index, 1u);
    }
}

/// Counts that do not fit in a signed 32-bit number are left alone; the block is never looked at.
TEST(Sorting_Too_Many, changes_nothing)
{
    EXPECT_FALSE(engine::sort_detail::sorts(size_t{1} << 31));
    EXPECT_TRUE(engine::sort_detail::sorts((size_t{1} << 31) - 1));
    EXPECT_FALSE(engine::sort_detail::sorts(1));
}
