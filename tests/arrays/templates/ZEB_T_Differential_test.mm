/// Every operation of TT_PHRASE, on owners and links, by the own order and by a caller's comparison, in every
/// mode of ownership, with each vector instruction set of this machine, against its plainest form, with what
/// it reports; and again with each allocation failing in turn.
#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include "tests/arrays/ZEB_T_Samples.hpp"
#include "tests/arrays/differential.hpp"
#include "tests/support/class_test.hpp"
#include "tests/support/memory.hpp"
#include "tests/support/vector_targets.hpp"

using namespace differential;

namespace
{

const Samples &facts()
{
    static const auto count = static_cast<uint32_t>(samples().size());
    static const Samples all{
        count,
        tabulated(count, [](uint32_t i, uint32_t j) { return support::are_same(samples()[i], samples()[j]); }),
        tabulated(count, [](uint32_t i, uint32_t j) { return support::precedes(samples()[i], samples()[j]); }),
        number_of(Element())};
    return all;
}

// A comparison function has no context of its own.
Comparison *comparison = nullptr;
ZEB_T_Vector *compared = nil;

ZEB_Comparison compare(Element const *key, Element const *element)
{
    Element const *const first = [compared TT_word_data];
    const uint32_t count = [compared count];
    return comparison->answer(position_of(key, first, count), position_of(element, first, count),
                              reference::compare(number_of(*key), number_of(*element), facts().precedes));
}

/// What is made of objects cannot be made either when an allocation is to fail.
id alloc_or_fail(Class named, SEL)
{
    if (support::memory.fails())
        [NSException raise:NSMallocException format:@"no memory"];
    return NSAllocateObject(named, 0, NULL);
}

enum Place { an_array, a_vector, a_link, a_vector_link };
using Places = std::initializer_list<Place>;
constexpr Places vectors = {an_array, a_vector, a_link, a_vector_link}, arrays = {an_array, a_link};

/// Samples that stand around what a link views.
const Numbers before_link = {0, 1}, after_link = {2, 3};

constexpr bool counts_references = std::is_same_v<Element, id>;

/// How many references there are to each sample.
Numbers references()
{
    Numbers counts;
    for (const Element &element : samples())
        counts.push_back(support::references_to(element));
    return counts;
}

/// What an operation is done to, with the owner of what a link views.
struct Ours {
    Ours(const Input &input, Place place, uint32_t mode) : in(input), mode(mode), is_link(place >= a_link)
    {
        const auto length = static_cast<uint32_t>(in.elements.size());
        [ZEB_T_Array set_growth_seed:in.seed];
        owner = [ZEB_T_Array array_with_capacity:is_link ? 0 : in.room];
        support::set_mode(owner, mode);
        for (const Numbers &part :
             {is_link ? before_link : Numbers(), in.elements, is_link ? after_link : in.left_behind})
            for (const uint32_t number : part)
                [owner append_TT_word:give(samples()[number])];
        given.clear();
        const uint32_t block = [owner count] - (is_link ? 2 : 0);
        if (!is_link)
            [owner set_count:length];
        const ZEB_Index_Range viewed{2, length + 1};
        if (place == an_array)
            vector = array = owner;
        else if (place == a_vector)
            vector = [[[ZEB_T_Vector alloc] init_as_copy_of_TT_word_vector:owner] autorelease];
        else if (place == a_link)
            vector = array = [[[ZEB_T_Array alloc] init_as_link_to_TT_word_vector:owner
                                                                            range:viewed] autorelease];
        else
            vector = [[[ZEB_T_Vector alloc] init_as_link_to_TT_word_vector:owner range:viewed] autorelease];
        // A string that a pool holds is a link as well.
        if (is_link && in.inserts)
            [vector set_link_marker:10001];
        key = in.key_at < length ? [vector TT_word_at_index:in.key_at] : samples()[in.key];
        const uint32_t from = std::min(in.own_from, block), to = std::min(in.own_to, block);
        if (array != nil && block != 0)
            own = [ZEB_T_Array link_to_TT_words:[array TT_word_data] + from count:to - from];
    }

    /// The element as this mode wants it to be given: with a reference to be taken over in mode 1.
    Element give(Element element)
    {
        if (mode == ZEB_OWNERSHIP_ADOPTS) {
            given.push_back(number_of(element));
            support::change_references(element, 1);
        }
        return element;
    }

    Element const *give_run()
    {
        for (const Element &element : zeb::elements(run))
            give(element);
        return [run TT_word_data];
    }

    const Input &in;
    uint32_t mode;
    bool is_link;
    Element key;
    ZEB_Index_Range range{in.from, in.to};
    ZEB_UInt_Array *indexes = support::indexes_of(in.indexes);
    ZEB_T_Array *run = array_of(in.run), *replacement = array_of(in.replacement), *own = array_of({});
    uint32_t run_count = static_cast<uint32_t>(in.run.size());
    const Numbers counted = references();
    Numbers given;
    ZEB_T_Vector *vector = nil;
    ZEB_T_Array *array = nil, *owner = nil;
};

/// An operation that is held against its plain form.
struct Row {
    const char *text;
    std::optional<uint64_t> (*ours)(Ours &), (*plain)(Plain &);
};

/// Holds operations against their plain forms, and sees that each report was its line. `failure` is the word
/// for an allocation that failed; an operation without one works without memory.
class Differential
{
public:
    explicit Differential(const char *failure = nullptr) : failure(failure)
    {
        support::replace_alloc(samples()[0], alloc_or_fail);
    }
    ~Differential()
    {
        [ZEB_T_Array set_growth_seed:16];
        const std::string told = captured.text();
        const auto [ours, plain] = std::mismatch(told.begin(), told.end(), lines.begin(), lines.end());
        EXPECT_TRUE(told == lines) << std::string(ours, told.end()).substr(0, 200) << " instead of "
                                   << std::string(plain, lines.end()).substr(0, 200);
    }

    void operator()(Places places, Needs needs, const Row &row)
    {
        SCOPED_TRACE(row.text);
        selector = selector_of(row.text);
        for (const Place place : places)
            for (const uint32_t mode : {ZEB_OWNERSHIP_RETAINS, ZEB_OWNERSHIP_BORROWS, ZEB_OWNERSHIP_ADOPTS})
                for (int turn = 0;
                     turn < turns_of_each && (counts_references || mode == ZEB_OWNERSHIP_RETAINS); ++turn) {
                    const auto targets = static_cast<uint32_t>(zeb_test::target_count());
                    const uint32_t target = turns % targets, round = turns++ / targets;
                    const bool fails = (target + round) % 4 == 0;
                    const Input in = inputs.draw(needs, length_in(round, fails));
                    zeb_test::on_target(target, [&] {
                        hold_once(row, in, place, mode, -1);
                        for (int calls = 0; fails && hold_once(row, in, place, mode, calls);)
                            ++calls;
                    });
                    if (testing::Test::HasFailure())
                        return;
                }
    }

private:
    /// Every length below 71 on each target in turn, and some longer ones. Objects are made one by one: with
    /// many of them, too many allocations would fail.
    static uint32_t length_in(uint32_t round, bool fails)
    {
        const uint32_t length = round * 29 % (support::is_object<Element> && fails ? 8 : 75);
        return length < 71 ? length : std::array{129u, 257u, 1031u, 4099u}[length - 71];
    }

    /// Whether an allocation failed, the one after so many.
    bool hold_once(const Row &row, const Input &in, Place place, uint32_t mode, int calls)
    {
        const long blocks = support::memory.blocks;
        NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
        Ours ours(in, place, mode);
        const uint32_t capacity = [ours.array capacity];
        Plain before{facts(), in, numbers_of(ours.own), ours.is_link, capacity, !support::is_object<Element>};
        Plain plain = before, *held = &plain;
        Comparison asked = in.comparison;
        comparison = &asked;
        compared = ours.vector;
        const uint32_t warnings = [[ZEB_Error_Stream shared_error_stream] warning_count];
        NSAutoreleasePool *const inner = [[NSAutoreleasePool alloc] init];
        support::memory.calls_until_failure = calls;
        const auto answer = row.ours(ours);
        const bool failed = calls >= 0 && support::memory.calls_until_failure < 0;
        support::memory.calls_until_failure = -1;
        [inner drain];
        const uint32_t reported = [[ZEB_Error_Stream shared_error_stream] warning_count] - warnings;
        const auto expected = row.plain(plain);
        if (failed && failure != nullptr && reported == plain.notes.size() + 1) {
            plain.notes.push_back(failure);
            // An object that could not be made leaves the block that had grown for it.
            held = &before;
            if (support::is_held<Element>)
                before.capacity = std::max(before.capacity, [ours.array capacity]);
        } else {
            EXPECT_TRUE(!answer || answer == expected);
            EXPECT_EQ(asked.asked, plain.comparison.asked);
        }
        const char *const named = ours.array == nil ? "ZEB_T_Vector" : "ZEB_T_Array";
        for (const char *const note : plain.notes)
            lines += support::fix_line(selector, named, note);
        EXPECT_EQ([ours.array capacity], ours.array == nil ? 0 : held->capacity);
        expect_same_elements(ours, *held);
        if (counts_references)
            expect_references(ours, held->stores);
        [pool drain];
        EXPECT_EQ(support::memory.blocks, blocks);
        return failed && !testing::Test::HasFailure();
    }

    static void expect_same_elements(const Ours &ours, const Plain &plain)
    {
        const uint32_t known = std::min(plain.known, plain.count);
        Numbers found = numbers_of(ours.vector), expected(plain.all.begin(), plain.all.begin() + known);
        ASSERT_EQ(found.size(), plain.count);
        found.resize(counts_references ? plain.count : known);
        expected.resize(found.size(), facts().nothing);
        EXPECT_EQ(found, expected);
        EXPECT_EQ([ours.vector link_marker] != 0, plain.is_link);
        if (ours.vector != ours.owner)
            expect_owner(ours, plain.is_link ? plain.all : ours.in.elements,
                         plain.is_link && support::is_object<Element> ? plain.count : UINT32_MAX);
        found.assign([ours.indexes uint_data], [ours.indexes uint_data] + [ours.indexes count]);
        EXPECT_EQ(found, plain.indexes);
    }

    /// The owner holds what was done through a link; which objects it holds behind a link's count is open.
    static void expect_owner(const Ours &ours, Numbers expected, uint32_t known)
    {
        Numbers found = numbers_of(ours.owner);
        if (ours.is_link) {
            expected.insert(expected.begin(), before_link.begin(), before_link.end());
            expected.insert(expected.end(), after_link.begin(), after_link.end());
        }
        ASSERT_EQ(found.size(), expected.size());
        for (size_t i = 2 + size_t{known}; i + 2 < expected.size(); ++i)
            found[i] = expected[i];
        EXPECT_EQ(found, expected);
    }

    /// Each reference that an array holds, and each that it was given and has not taken over, is one.
    static void expect_references(const Ours &ours, bool stored)
    {
        const bool copied = ours.vector != ours.owner && [ours.vector link_marker] == 0;
        const Numbers left = stored ? Numbers() : ours.given;
        Numbers expected = ours.counted;
        for (const Numbers &held :
             {numbers_of(ours.owner), copied ? numbers_of(ours.vector) : Numbers(), left})
            for (const uint32_t number : held)
                expected[number] += ours.mode != ZEB_OWNERSHIP_BORROWS && number != facts().nothing;
        EXPECT_EQ(references(), expected);
        for (const uint32_t number : left)
            support::change_references(samples()[number], -1);
    }

    /// Plain elements go through vectors, at every length.
    static constexpr int turns_of_each = (support::is_object<Element> ? 1 : 3) * ZEB_TURNS;

    Inputs inputs{facts()};
    uint32_t turns = 0;
    const char *failure;
    std::string selector, lines;
    support::Redirection captured{stderr};
};

uint64_t extremes_of(ZEB_T_Vector *vector)
{
    Element low = Element(), high = Element();
    [vector get_minimum_TT_word:&low maximum:&high];
    EXPECT_TRUE(support::are_identical(low, [vector minimum_TT_word]));
    EXPECT_TRUE(support::are_identical(high, [vector maximum_TT_word]));
    return uint64_t{number_of(low)} << 32 | number_of(high);
}

constexpr auto allocates = "Runtime error in allocate macro",
               reallocates = "Runtime error in reallocate macro";

} // namespace

// A row: what the operation is of and needs of its input, the operation on `o`, and its plain form on `p`.
#define HOLD(places, needs, ours, plain)                                                                     \
    hold(places, needs,                                                                                      \
         {#ours, [](Ours &o) { return answer_of([&] { return ours; }); },                                    \
          [](Plain &p) { return answer_of([&] { return plain; }); }})

TEST(ZEB_T_Differential, what_needs_no_memory)
{
    Differential hold;
    HOLD(vectors, anything, [o.vector index_of_TT_word:o.key],
         reference::first_index_of(p.all, p.in.key, p.samples.equal));
    HOLD(vectors, anything, [o.vector last_index_of_TT_word:o.key],
         reference::last_index_of(p.all, p.in.key, p.samples.equal));
    HOLD(vectors, anything, [o.vector index_of_TT_words:[o.run TT_word_data] count:o.run_count],
         reference::first_index_of_subsequence(p.all, p.in.run, p.samples.equal));
    HOLD(vectors, an_element, number_of([o.vector TT_word_at_index_from_end:o.in.from]),
         p.all[p.count - 1 - p.in.from]);
    HOLD(vectors, anything, number_of([o.vector checked_TT_word_at_index:o.in.to]), p.checked(p.in.to));
    HOLD(vectors, anything, number_of([o.vector checked_TT_word_at_index_from_end:o.in.to]),
         p.checked(p.from_end(p.in.to)));
    HOLD(vectors, anything, [o.vector checked_pointer_to_TT_word_at_index:o.in.to] != nullptr,
         (p.checked(p.in.to), p.in.to < p.count));
    HOLD(vectors, anything, [o.vector checked_pointer_to_TT_word_at_index_from_end:o.in.to] != nullptr,
         (p.checked(p.from_end(p.in.to)), p.in.to < p.count));
#if ZEB_CHECK_INDEXES
    HOLD(vectors, anything, number_of([o.vector TT_word_at_index:o.in.to]), p.checked(p.in.to));
    HOLD(vectors, anything, number_of([o.vector ZEB_T_element_at_index:o.in.to]), p.checked(p.in.to));
    HOLD(vectors, anything, number_of([o.vector TT_word_at_index_from_end:o.in.to]),
         p.checked(p.from_end(p.in.to)));
#endif
    HOLD(vectors, an_element, number_of([o.vector first_TT_word]), p.all[0]);
    HOLD(vectors, an_element, number_of([o.vector last_TT_word]), p.all.back());
    HOLD(vectors, anything, [o.vector is_not_empty], p.count != 0);
    HOLD(vectors, anything, extremes_of(o.vector), p.extremes());
    HOLD(vectors, a_likeness, [o.vector is_equal_to_vector:o.run], p.all == p.in.run);
    HOLD(vectors, a_likeness, [o.vector is_equal_to_collection:o.run],
         std::ranges::equal(p.all, p.in.run, p.samples.equal));
    HOLD(vectors, anything, [o.vector sort], p.sort(p.by_order()));
    HOLD(vectors, anything, [o.vector sort_TT_words_with_comparison:compare], p.sort(p.as_told()));
    HOLD(vectors, anything, [o.vector sort_with_permutation:o.indexes], p.sort(p.by_order(), &p.indexes));
    HOLD(vectors, anything, [o.vector sort_TT_words_with_comparison:compare permutation:o.indexes],
         p.sort(p.as_told(), &p.indexes));
}

TEST(ZEB_T_Differential, what_grows)
{
    Differential hold(reallocates);
    HOLD(vectors, order, [o.vector ordered_index_of_TT_word:o.key], p.find(p.by_order()));
    HOLD(vectors, order, [o.vector ordered_index_of_TT_word:o.key comparison:compare], p.find(p.as_told()));
    HOLD(vectors, order, [o.vector nearest_ordered_index_of_TT_word:o.key], p.find(p.by_order(), true));
    HOLD(vectors, order, [o.vector nearest_ordered_index_of_TT_word:o.key comparison:compare],
         p.find(p.as_told(), true));
    HOLD(arrays, order, [o.array ordered_insert_TT_word:o.give(o.key) inserts:o.in.inserts],
         p.insert_in_order(p.by_order()));
    HOLD(arrays, order,
         [o.array ordered_insert_TT_word:o.give(o.key) comparison:compare inserts:o.in.inserts],
         p.insert_in_order(p.as_told()));
    HOLD(arrays, anything, [o.array append_TT_word:o.give(o.key)],
         p.insert_key(p.count, "Cannot append element through link, no append made."));
    HOLD(arrays, anything, [o.array insert_TT_word:o.give(o.key) at_index:o.in.to],
         p.insert_key(p.in.to, p.insert_note));
    HOLD(arrays, anything, [o.array copy_TT_word:o.give(o.key)],
         p.reports_if(p.is_link, "Cannot copy element through link, no copy made.")
             ? void()
             : p.take_over({p.key()}, false));
    HOLD(arrays, anything, [o.array append_array:o.run], p.append(p.in.run));
    HOLD(arrays, anything, [o.array append_array:o.own], p.append(p.own));
    HOLD(arrays, anything, [o.array append_TT_words:o.give_run() count:o.run_count], p.append(p.in.run));
    HOLD(arrays, anything, [o.array insert_array:o.run at_index:o.in.to], p.insert(p.in.to, p.in.run));
    HOLD(arrays, anything, [o.array insert_array:o.own at_index:o.in.to], p.insert(p.in.to, p.own));
    HOLD(arrays, anything, [o.array replace_element_at_index:o.in.from with_array:o.run],
         p.replace_element(p.in.run));
    HOLD(arrays, anything, [o.array replace_element_at_index:o.in.from with_array:o.own],
         p.replace_element(p.own));
    HOLD(arrays, anything,
         [o.array replace_element_at_index:o.in.from with_TT_words:o.give_run() count:o.run_count],
         p.replace_element(p.in.run));
    HOLD(arrays, anything, [o.array extend_length_by:o.in.room], p.resize(p.count + p.in.room, p.room_note));
    HOLD(arrays, anything, [o.array ensure_room_for:o.in.room], p.reserve(p.count + p.in.room, p.room_note));
    HOLD(arrays, anything, [o.array trim_allocation], p.trim());
}

TEST(ZEB_T_Differential, what_takes_new_contents)
{
    Differential hold(allocates);
    HOLD(arrays, anything, [o.array set_contents_of_array:o.run], p.take_over(p.in.run, false));
    HOLD(arrays, anything, [o.array set_contents_of_array:o.own], p.take_over(p.own, false));
    HOLD(arrays, anything, [o.array set_TT_words:o.give_run() count:o.run_count],
         p.take_over(p.in.run, false));
    HOLD(arrays, anything, [o.array copy_vector:o.run capacity:o.in.room], p.take_over(p.in.run, true));
    HOLD(arrays, anything, [o.array copy_vector:o.own capacity:o.in.room], p.take_over(p.own, true));
    HOLD(arrays, anything, [o.array copy_TT_words:o.give_run() count:o.run_count capacity:o.in.room],
         p.take_over(p.in.run, true));
    HOLD(vectors, an_element, [o.vector set_TT_word:o.give(o.key) at_index:o.in.from],
         p.all[p.in.from] = p.key());
    HOLD(vectors, an_element, [o.vector set_TT_word:o.give(o.key) at_index_from_end:o.in.from],
         p.all[p.count - 1 - p.in.from] = p.key());
    HOLD(vectors, anything, [o.vector set_checked_TT_word:o.give(o.key) at_index:o.in.to],
         p.set_checked(p.in.to));
    HOLD(vectors, anything, [o.vector set_checked_TT_word:o.give(o.key) at_index_from_end:o.in.to],
         p.set_checked(p.from_end(p.in.to)));
#if ZEB_CHECK_INDEXES
    HOLD(vectors, anything, [o.vector set_TT_word:o.give(o.key) at_index_from_end:o.in.to],
         p.set_checked(p.from_end(p.in.to)));
#endif
    HOLD(vectors, anything, [o.vector fill_with_TT_word:o.give(o.key)], p.fill(0, UINT32_MAX));
    HOLD(vectors, anything, [o.vector fill_range:o.range with_TT_word:o.give(o.key)],
         p.fill(p.in.from, p.in.to));
    HOLD(vectors, anything, [o.vector replace_every_TT_word:o.key with:o.give(samples()[o.in.other])],
         p.replace_every());
    HOLD(arrays, anything, [o.array replace_occurrences:o.run replacement:o.replacement],
         p.replace_occurrences());
    HOLD(arrays, anything, [o.array set_length:o.in.from],
         p.resize(p.in.from, "Cannot update length through link, no adjustment made."));
    HOLD(arrays, anything, [o.array ensure_capacity_greater_than:o.in.room],
         p.reserve(p.in.room, "Cannot modify capacity through link, no adjustment made."));
    HOLD(vectors, an_element, [o.vector set_count:o.in.from], p.count = p.in.from);
    HOLD(vectors, anything, [o.vector decrease_count:o.in.from], p.count -= std::min(p.count, p.in.from));
    HOLD(vectors, anything, [o.vector clear], p.count = 0);
}

TEST(ZEB_T_Differential, what_rearranges_elements)
{
    Differential hold(allocates);
    HOLD(vectors, anything, [o.vector remove_every_TT_word:o.key],
         p.count = reference::remove_equal(p.all, p.in.key, p.samples.equal));
    HOLD(vectors, anything, [o.vector remove_element_at_index:o.in.from],
         p.in.from < p.count ? p.close_gap(p.in.from, p.in.from + 1) : void());
    HOLD(vectors, anything, [o.vector remove_range:o.range], p.change_range(false));
    HOLD(vectors, anything, [o.vector replace_range:o.range with_TT_word:o.give(o.key)],
         p.change_range(true));
    HOLD(vectors, anything, [o.vector swap_element_at_index:o.in.from with_index:o.in.to],
         p.both_inside() ? std::swap(p.all[p.in.from], p.all[p.in.to]) : void());
    HOLD(vectors, anything, [o.vector move_element_from_index:o.in.from to_index:o.in.to],
         p.both_inside() ? reference::move(p.all, p.in.from, p.in.to) : void());
    HOLD(vectors, anything, [o.vector reverse], reference::reverse(p.all));
    HOLD(vectors, anything, [o.vector reverse_elements], std::ranges::reverse(p.all));
    HOLD(vectors, a_shape, [o.vector transpose_rows:o.in.from columns:o.in.to],
         reference::transpose(p.all, p.in.from, p.in.to));
    HOLD(vectors, a_permutation, [o.vector apply_permutation:o.indexes], p.permute(false));
    HOLD(vectors, a_permutation, [o.vector apply_inverse_permutation:o.indexes], p.permute(true));
}
