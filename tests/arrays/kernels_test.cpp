/// Every algorithm that has kernels, on each vector instruction set of this machine, between walls, with
/// memory and without, against its plainest form. What is the same for all of these is held by the classes'
/// tests.
#include "arrays/engine/algorithms/equality.hpp"
#include "arrays/engine/algorithms/extrema.hpp"
#include "arrays/engine/algorithms/fill.hpp"
#include "arrays/engine/algorithms/ordered_search.hpp"
#include "arrays/engine/algorithms/reorder.hpp"
#include "arrays/engine/algorithms/replacement.hpp"
#include "arrays/engine/algorithms/search.hpp"
#include "arrays/engine/algorithms/sort.hpp"
#include "arrays/engine/storage/removal.hpp"

#include "core/engine/namespace.hpp"
#include "tests/arrays/random_elements.hpp"
#include "tests/reference/vector_algorithms.hpp"
#include "tests/support/memory.hpp"
#include "tests/support/operation.hpp"
#include "tests/support/vector_targets.hpp"

using namespace zeb_test;

namespace
{

template <class E>
struct Input {
    std::vector<E> elements;
    E value{}, other{};
    std::vector<E> run = {}, like = {}; ///< a part of the elements, and all, perhaps with a difference
    ZEB_Index_Range range = {};
    std::vector<uint32_t> marks = {};
};

/// What an operation works on; in the plain form with elements of its own.
template <class E>
struct Ours {
    const Input<E> &in;
    std::span<E> all;
    std::span<uint32_t> marks;
};

template <class E>
ZEB_Comparison compare(const E *key, const E *element)
{
    return reference::compare(*key, *element);
}

template <class E>
struct Plain {
    const Input<E> &in;
    std::vector<E> all = in.elements;
    std::vector<uint32_t> marks = in.marks;

    reference::Ordered place() const { return reference::ordered(all, in.value, compare<E>); }

    void fill_range()
    {
        for (size_t i = in.range.start; i <= in.range.end && i < all.size(); ++i)
            all[i] = in.value;
    }

    void sort(std::vector<uint32_t> *moved)
    {
        reference::sort(all, moved, [](const E *later, const E *earlier) {
            return compare(later, earlier) == ZEB_COMPARED_LESS;
        });
    }
};

template <class E>
using Row = support::Operation<Ours<E>, Plain<E>>;
template <class E>
using Rows = std::vector<Row<E>>;

// The operation on `o`, and its plain form on `p`.
#define ROW(ours, plain)                                                                                     \
    Row<E>(                                                                                                  \
        #ours, [](Ours<E> &o) { return ours; }, [](Plain<E> &p) { return plain; })

template <class E>
const Rows<E> find_equal = {
    ROW(engine::first_index_of<E>(o.all, o.in.value), reference::first_index_of(p.all, p.in.value)),
    ROW(engine::last_index_of<E>(o.all, o.in.value), reference::last_index_of(p.all, p.in.value))};

template <class E>
const Rows<E> find_run = {
    ROW(engine::first_index_of_subsequence<E>(o.all, o.in.run),
        reference::first_index_of_subsequence(p.all, p.in.run)),
    ROW(engine::find_occurrence<E>(o.all, o.in.run), reference::find_occurrence(p.all, p.in.run))};

template <class E>
const Rows<E> find_in_order = {
    ROW(engine::ordered_find<E>(o.all, o.in.value).index, p.place().equal),
    ROW(engine::ordered_find<E>(o.all, o.in.value, compare<E>).index, p.place().equal),
    ROW(engine::ordered_find_nearest<E>(o.all, o.in.value).index, p.place().nearest),
    ROW(engine::ordered_insert_position<E>(o.all, o.in.value).index, p.place().place)};

template <class E>
const Rows<E> fill = {ROW(engine::fill(o.all, o.in.value), p.all.assign(p.all.size(), p.in.value)),
                      ROW(engine::fill_range(o.all, o.in.range, o.in.value), p.fill_range())};

template <class E>
const Rows<E> give_and_change = {
    ROW(engine::minimum<E>(o.all), reference::minimum(p.all)),
    ROW(engine::maximum<E>(o.all), reference::maximum(p.all)),
    ROW(engine::minimum_and_maximum<E>(o.all).minimum, reference::minimum(p.all)),
    ROW(engine::minimum_and_maximum<E>(o.all).maximum, reference::maximum(p.all)),
    ROW(engine::same_memory<E>(o.all, o.in.like), same_bits<E>(p.all, p.in.like)),
    ROW(engine::same_values<E>(o.all, o.in.like), p.all == p.in.like),
    ROW(engine::reverse(o.all), reference::reverse(p.all)),
    ROW(engine::remove_equal(o.all, o.in.value), reference::remove_equal(p.all, p.in.value)),
    ROW(engine::replace_equal(o.all, o.in.value, o.in.other),
        reference::replace_equal(p.all, p.in.value, p.in.other)),
    ROW(engine::sort(o.all), p.sort(nullptr)),
    ROW((void)engine::sort_with_permutation(o.all, o.marks), p.sort(&p.marks))};

} // namespace

template <class E>
class Kernels : public testing::Test
{
protected:
    using Elements = std::vector<E>;

    void hold(const Rows<E> &operations, const Input<E> &in, size_t offset = 0)
    {
        for (const auto &operation : operations) {
            Plain<E> plain{in};
            const uint64_t expected = operation.plain(plain);
            on_each_target([&] {
                SCOPED_TRACE(testing::Message() << operation.text << " of " << in.elements.size());
                Ours<E> ours{in, room.put(in.elements, offset), room_of_marks.put(in.marks, offset + 1)};
                support::memory.is_out = random() % 2 == 0;
                const uint64_t answer = operation.ours(ours);
                support::memory.is_out = false;
                ASSERT_EQ(answer, expected);
                // All of the block, since a link's owner sees what lies beyond a new count.
                ASSERT_TRUE(same_bits<E>(ours.all, plain.all) &&
                            same_bits<uint32_t>(ours.marks, plain.marks));
                ASSERT_TRUE(room.walls_stand() && room_of_marks.walls_stand());
            });
        }
    }

    static constexpr unsigned shapes = std::is_floating_point_v<E> ? 12 : 8;

    /// Elements of any value or, in every second shape, of few.
    Elements draw(size_t length, unsigned shape)
    {
        Elements all(length);
        std::generate(all.begin(), all.end(), [&] {
            return shape >= 6 && random() % 8 == 0 ? odd_value<E>(random)
                                                   : draw_element<E>(random, shape % 2 == 1 || shape >= 8);
        });
        if (shape == 2 || shape == 3)
            std::sort(all.begin(), all.end(), reference::Less());
        if (shape == 3)
            std::reverse(all.begin(), all.end());
        if (shape == 4)
            std::fill(all.begin(), all.end(), draw_element<E>(random, false));
        for (size_t i = 3; shape == 5 && i < length; ++i)
            all[i] = all[i % 3];
        if constexpr (std::is_floating_point_v<E>)
            if (shape >= 8 && length != 0)
                shape < 10 ? keep_sign(all, shape == 8 ? 1 : -1) : spread_little(all, shape - 9);
        return all;
    }

    /// Zeros of both signs become the least or the greatest.
    void keep_sign(Elements &all, int sign)
    {
        for (E &element : all)
            element = element * sign < 0 ? -element : element;
    }

    /// Numbers that differ in their last bits only, beside one that is far away.
    void spread_little(Elements &all, unsigned times)
    {
        for (uint32_t i = 0; i < all.size(); ++i)
            all[i] = 1 + static_cast<E>(i / times) * std::numeric_limits<E>::epsilon();
        std::shuffle(all.begin(), all.end(), random);
        all[0] = std::numeric_limits<E>::max();
    }

    Input<E> input(Elements elements, unsigned shape)
    {
        static constexpr unsigned rarity[] = {1, 2, 3, 20, 1000};
        const auto length = static_cast<uint32_t>(elements.size());
        const auto below = [&](uint32_t end) { return static_cast<uint32_t>(random() % end); };
        const auto any = [&] { return draw(1, shape % 2 + 6)[0]; };
        Input<E> in{elements, length == 0 || below(3) == 0 ? any() : elements[below(length)], any()};
        for (E &element : in.elements)
            if (shape == 0 && below(rarity[length % 5]) == 0)
                element = in.value;
        const auto from = in.elements.begin() + below(length + 1);
        const auto rest = static_cast<uint32_t>(in.elements.end() - from);
        in.run.assign(from, from + std::min(rest, below(length % 2 == 0 ? 6 : rest + 1)));
        in.like = in.elements;
        for (Elements *changed : {&in.run, &in.like})
            if (!changed->empty() && below(2) == 0)
                (*changed)[random() % changed->size()] = any();
        if (below(8) == 0)
            in.like.push_back(E{});
        in.range = {below(length + 2), shape % 3 == 0 ? UINT32_MAX : below(length + 2)};
        for (uint32_t i = 0; i < length; ++i)
            in.marks.push_back(7 * i);
        return in;
    }

    /// All of one value, but for a lone other.
    static Elements lone(size_t length, size_t at)
    {
        Elements all(length, E{});
        if (at < length)
            std::memset(static_cast<void *>(&all[at]), 0x42, sizeof(E));
        return all;
    }

    std::mt19937 random{1};
    Walled_Room<E> room;
    Walled_Room<uint32_t> room_of_marks;
};
TYPED_TEST_SUITE(Kernels, Element_Types);

TYPED_TEST(Kernels, do_what_plain_loops_do)
{
    using E = TypeParam;
    static constexpr size_t longer[] = {95, 127, 128, 129, 200, 257, 515, 1031, 4099};
    for (size_t i = 0; i < 71 + std::size(longer); ++i) {
        for (unsigned shape = 0; shape < this->shapes && !this->HasFatalFailure(); ++shape) {
            const size_t length = i < 71 ? i : longer[i - 71];
            const Input<E> in = this->input(this->draw(length, shape), shape);
            for (const auto *rows :
                 {&find_equal<E>, &find_run<E>, &find_in_order<E>, &fill<E>, &give_and_change<E>})
                this->hold(*rows, in, length % 37 + shape);
        }
    }
}

TYPED_TEST(Kernels, work_on_more_than_the_caches_hold)
{
    // Stores go round the caches, and the next probes are prefetched.
    Input<TypeParam> in{this->lone((size_t{17} << 20) / sizeof(TypeParam), 0), this->lone(1, 0)[0]};
    in.range = {5, UINT32_MAX};
    this->hold(fill<TypeParam>, in);
    this->hold(find_in_order<TypeParam>,
               this->input(this->draw((size_t{2} << 20) / sizeof(TypeParam), 2), 2));
}

TYPED_TEST(Kernels, find_what_is_rare)
{
    using E = TypeParam;
    for (const size_t length : {1, 15, 64, 130, 299})
        for (size_t at = 0; at < length; ++at)
            this->hold(find_equal<E>, {this->lone(length, at), this->lone(1, 0)[0]}, at);
    // Runs that nearly match everywhere make the vectors give up, for a table that there may be no memory
    // for.
    for (const size_t broken_at : {0, 1, 31, 62, 63}) {
        for (const size_t lone_at : {5001, 8001, 9000}) {
            Input<E> in{this->lone(9000, lone_at)};
            in.run = this->lone(64, broken_at);
            this->hold(find_run<E>, in);
        }
    }
    // A long text is sampled on the way: the first occurrence is found before, across and behind that place.
    constexpr size_t sampled_at = 65536;
    Input<E> in{this->draw(3 * sampled_at, 1)};
    for (const size_t length : {2, 3, 4, 20, 300, 70000}) {
        for (const size_t start :
             {size_t{7}, sampled_at - length / 2, sampled_at + 1, 3 * sampled_at - length - 1}) {
            in.run.assign(in.elements.data() + start, in.elements.data() + start + length);
            this->hold(find_run<E>, in);
        }
    }
}

/// A link may view memory that cannot be written: all is well as long as no element there matches.
TYPED_TEST(Kernels, do_not_write_elements_that_do_not_match)
{
    using E = TypeParam;
    constexpr size_t bytes = 65536, count = bytes / sizeof(E);
    const E value = this->lone(1, 0)[0];
    std::vector<E> elements(2 * count);
    for (size_t i = 0; i < count; ++i)
        elements[i] = this->random() % 5 == 0 ? value : E{};
    const auto written = static_cast<uint32_t>(std::count(elements.begin() + 2, elements.end(), value));
    const std::span<E> all = this->room.put(elements, 1);
    this->room.seal(bytes);
    on_each_target([&] {
        EXPECT_EQ(engine::replace_equal(all.subspan(2), value, value), written);
        EXPECT_EQ(engine::replace_equal(all.subspan(count), value, value), 0u);
        EXPECT_EQ(engine::remove_equal(all.subspan(count), value), count);
    });
}

/// Counts that do not fit in a signed 32-bit number are left alone; the block is never looked at.
TEST(Sorting_Too_Many, changes_nothing)
{
    EXPECT_FALSE(engine::sort_detail::sorts(size_t{1} << 31));
    EXPECT_TRUE(engine::sort_detail::sorts((size_t{1} << 31) - 1));
    EXPECT_FALSE(engine::sort_detail::sorts(1));
}
