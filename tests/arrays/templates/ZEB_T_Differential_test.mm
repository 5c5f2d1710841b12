/// Every operation of TT_PHRASE, on owners and links, by the own order and by a caller's comparison, in every
/// mode of ownership, against its plainest form; and again with each allocation failing in turn.
#include "tests/arrays/ZEB_T_Samples.hpp"
#include "tests/arrays/differential.hpp"
#include "tests/support/captured.hpp"
#include "tests/support/memory.hpp"

#include <gtest/gtest.h>

using namespace differential;

namespace
{

const Samples &facts()
{
    static const Samples all{
        static_cast<uint32_t>(samples().size()),
        [](uint32_t left, uint32_t right) { return support::are_same(samples()[left], samples()[right]); },
        [](uint32_t left, uint32_t right) {
            return support::precedes<Element>(samples()[left], samples()[right]);
        },
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
    return comparison->answer({position_of(key, first, count), position_of(element, first, count)},
                              facts().compare(number_of(*key), number_of(*element)));
}

enum class Place { array, vector, link_to_array, link_of_vector };

/// Samples that stand around what a link views.
const Numbers before_link = {0, 1}, after_link = {2, 3};

/// The modes of ownership that the family knows, and an array's.
constexpr std::initializer_list<uint32_t> modes = {ZEB_OWNERSHIP_RETAINS, ZEB_OWNERSHIP_BORROWS,
                                                   ZEB_OWNERSHIP_ADOPTS};
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
    Ours(const Input &input, Place place, uint32_t mode)
        : in(input), mode(mode), is_link(place >= Place::link_to_array)
    {
        [ZEB_T_Array set_growth_seed:in.seed];
        owner = [ZEB_T_Array array_with_capacity:is_link ? 0 : in.room];
        support::set_mode(owner, mode);
        if (is_link)
            append(before_link);
        append(in.elements);
        append(is_link ? after_link : Numbers(in.dropped));
        const auto length = static_cast<uint32_t>(in.elements.size());
        const ZEB_Index_Range viewed{2, length + 1};
        if (!is_link)
            [owner set_count:length];
        if (place == Place::array)
            vector = array = owner;
        else if (place == Place::vector)
            vector = [[[ZEB_T_Vector alloc] init_as_copy_of_TT_word_vector:owner] autorelease];
        else if (place == Place::link_to_array)
            vector = array = [[[ZEB_T_Array alloc] init_as_link_to_TT_word_vector:owner
                                                                            range:viewed] autorelease];
        else
            vector = [[[ZEB_T_Vector alloc] init_as_link_to_TT_word_vector:owner range:viewed] autorelease];
        key = in.key_is_own ? [vector TT_word_at_index:in.own_from] : samples()[in.key];
        own = [ZEB_T_Array link_to_TT_words:[vector TT_word_data] + in.own_from
                                      count:in.own_to - in.own_from];
    }

    /// The element as this mode wants it to be given: with a reference to be taken over in mode 1.
    Element give(Element element)
    {
        if (mode == ZEB_OWNERSHIP_ADOPTS) {
            given.push_back(number_of(element));
            support::take(element);
        }
        return element;
    }

    Element const *give_run()
    {
        for (const Element &element : zeb::elements(run))
            give(element);
        return [run TT_word_data];
    }

    /// What a link's owner holds outside of the link; plain elements stay where they were dropped.
    Numbers beyond() const
    {
        Numbers all = numbers_of(owner);
        const auto end =
            all.begin() + 2 + (support::is_object<Element> ? in.elements.size() : [vector count]);
        all.erase(all.begin() + 2, end);
        return all;
    }

    const Input &in;
    uint32_t mode;
    bool is_link;
    Element other = samples()[in.other], key;
    ZEB_Index_Range range{in.from, in.to};
    ZEB_UInt_Array *indexes = support::indexes_of(in.indexes);
    ZEB_T_Array *run = array_of(in.run), *replacement = array_of(in.replacement), *own = nil;
    uint32_t run_count = static_cast<uint32_t>(in.run.size());
    const Numbers counted = references();
    Numbers given;
    ZEB_T_Vector *vector = nil;
    ZEB_T_Array *array = nil;
    ZEB_T_Array *owner = nil;

private:
    void append(const Numbers &numbers)
    {
        for (const uint32_t number : numbers)
            [owner append_TT_word:give(samples()[number])];
        given.clear();
    }
};

using Ours_Does = uint64_t (*)(Ours &);
using Plain_Does = uint64_t (*)(Plain &);

/// What a side does answers, 0 where the operation has no answer.
template <bool has_answer, class Does, class Side>
uint64_t answer_of(Side &side)
{
    if constexpr (has_answer)
        return Does()(side);
    Does()(side);
    return 0;
}

template <class Operation>
constexpr bool has_answer = !std::is_void_v<decltype(Operation()(std::declval<Ours &>()))>;

enum Memory_Use { grows, works_without_memory };

/// Holds operations against their plain forms, and sees that each report was a line.
class Differential
{
public:
    explicit Differential(Memory_Use use = grows) : use(use) {}
    ~Differential()
    {
        [ZEB_T_Array set_growth_seed:16];
        const std::string told = captured.text();
        EXPECT_EQ(static_cast<uint32_t>(std::count(told.begin(), told.end(), '\n')), reports);
        size_t failed = 0;
        for (size_t at = 0; (at = told.find("Runtime error in ", at)) != told.npos; ++at)
            ++failed;
        EXPECT_EQ(failed, failures);
    }

    /// An operation of vectors.
    template <class Operation, class Reference>
    void operator()(Needs needs, Operation, Reference)
    {
        for (const Place place : {Place::array, Place::vector, Place::link_to_array, Place::link_of_vector})
            hold_at(place, needs, answer_of<has_answer<Operation>, Operation, Ours>,
                    answer_of<has_answer<Operation>, Reference, Plain>);
    }

    /// An operation of growable arrays.
    template <class Operation, class Reference>
    void arrays(Needs needs, Operation, Reference)
    {
        for (const Place place : {Place::array, Place::link_to_array})
            hold_at(place, needs, answer_of<has_answer<Operation>, Operation, Ours>,
                    answer_of<has_answer<Operation>, Reference, Plain>);
    }

    size_t failed_allocations() const { return failures; }

private:
    void hold_at(Place place, Needs needs, Ours_Does operation, Plain_Does reference)
    {
        for (const uint32_t mode : modes) {
            for (int turn = 0; turn < 60 && !testing::Test::HasFatalFailure(); ++turn) {
                const Input in = inputs.draw(needs);
                hold_once(in, place, mode, operation, reference, -1);
                for (int calls = 0; turn % 4 == 0; ++calls)
                    if (!hold_once(in, place, mode, operation, reference, calls))
                        break;
            }
            if (!counts_references)
                return;
        }
    }

    /// Whether an allocation failed, the one after so many.
    bool hold_once(const Input &in, Place place, uint32_t mode, Ours_Does operation, Plain_Does reference,
                   int calls)
    {
        const long blocks = support::memory.blocks;
        NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
        Ours ours(in, place, mode);
        Plain before{facts(), in, ours.is_link, [ours.array capacity], !support::is_object<Element>};
        Plain plain = before, *held = &plain;
        Comparison asked = in.comparison;
        comparison = &asked;
        compared = ours.vector;
        const uint32_t warnings = [[ZEB_Error_Stream shared_error_stream] warning_count];
        NSAutoreleasePool *const inner = [[NSAutoreleasePool alloc] init];
        support::memory.calls_until_failure = calls;
        const uint64_t answer = operation(ours);
        const bool failed = calls >= 0 && support::memory.calls_until_failure < 0;
        support::memory.calls_until_failure = -1;
        [inner drain];
        const uint32_t reported = [[ZEB_Error_Stream shared_error_stream] warning_count] - warnings;
        reports += reported;
        const uint64_t expected = reference(plain);
        if (failed && use == grows && reported == plain.reports + 1) {
            ++failures;
            // An object that could not be made leaves the block that had grown for it.
            held = &before;
            if (support::is_held<Element>)
                before.capacity = std::max(before.capacity, [ours.array capacity]);
        } else {
            expect_same(answer == expected && reported == plain.reports &&
                        asked.asked == plain.comparison.asked);
        }
        EXPECT_EQ([ours.array capacity], ours.array == nil ? 0 : held->capacity);
        expect_same_elements(ours, *held);
        if (counts_references)
            expect_references(ours, held->stores);
        [pool drain];
        EXPECT_EQ(support::memory.blocks, blocks);
        return failed && !testing::Test::HasFailure();
    }

    static void expect_same(bool is_same) { ASSERT_TRUE(is_same); }

    static void expect_same_elements(const Ours &ours, const Plain &plain)
    {
        const auto known = plain.all.begin() + std::min(plain.known, plain.count);
        ASSERT_EQ([ours.vector count], plain.count);
        Numbers found = numbers_of(ours.vector);
        if (counts_references) {
            const auto gained = found.begin() + (known - plain.all.begin());
            ASSERT_EQ(std::count(gained, found.end(), facts().nothing), found.end() - gained);
        }
        found.resize(static_cast<size_t>(known - plain.all.begin()));
        ASSERT_EQ(found, Numbers(plain.all.begin(), known));
        const std::span<const uint32_t> went = zeb::elements(ours.indexes);
        ASSERT_EQ(Numbers(went.begin(), went.end()), plain.indexes);
        if (!ours.is_link)
            return;
        Numbers beyond = before_link;
        if (!plain.is_link) {
            beyond.insert(beyond.end(), ours.in.elements.begin(), ours.in.elements.end());
            beyond.insert(beyond.end(), after_link.begin(), after_link.end());
            ASSERT_EQ([ours.vector link_marker], 0u);
            ASSERT_EQ(numbers_of(ours.owner), beyond);
            return;
        }
        const auto end = plain.all.begin() + std::min<size_t>(plain.count, plain.all.size());
        if (!support::is_object<Element>)
            beyond.insert(beyond.end(), end, plain.all.end());
        beyond.insert(beyond.end(), after_link.begin(), after_link.end());
        ASSERT_EQ(ours.beyond(), beyond);
    }

    /// Each reference that an array holds, and each that it was given and has not taken over, is one.
    static void expect_references(const Ours &ours, bool stored)
    {
        Numbers expected = ours.counted;
        const bool copied = ours.vector != ours.owner && [ours.vector link_marker] == 0;
        for (ZEB_T_Vector *holder = ours.owner; holder != nil;
             holder = copied && holder == ours.owner ? ours.vector : static_cast<ZEB_T_Vector *>(nil))
            for (const uint32_t number : numbers_of(holder))
                expected[number] += ours.mode != ZEB_OWNERSHIP_BORROWS && number != facts().nothing;
        for (const uint32_t number : stored ? Numbers() : ours.given)
            expected[number] += number != facts().nothing;
        ASSERT_EQ(references(), expected);
        for (const uint32_t number : stored ? Numbers() : ours.given)
            support::let_go(samples()[number]);
    }

    Inputs inputs{facts()};
    Memory_Use use;
    uint32_t reports = 0;
    size_t failures = 0;
    support::Captured_Output captured{stderr};
};

uint64_t extremes_of(ZEB_T_Vector *vector)
{
    Element low = Element(), high = Element();
    [vector get_minimum_TT_word:&low maximum:&high];
    return uint64_t{number_of(low)} << 32 | number_of(high);
}

} // namespace

// A row: what the operation needs of its input, the operation on `o`, and its plain form on `p`.
#define HOLD(needs, ours, plain)                                                                             \
    hold(                                                                                                    \
        needs, [](Ours &o) { return ours; }, [](Plain &p) { return plain; })
#define HOLD_ARRAYS(needs, ours, plain)                                                                      \
    hold.arrays(                                                                                             \
        needs, [](Ours &o) { return ours; }, [](Plain &p) { return plain; })

TEST(ZEB_T_Differential, searches_find_what_the_plain_scan_finds)
{
    Differential hold(works_without_memory);
    HOLD(anything, [o.vector index_of_TT_word:o.key],
         reference::first_index_of(p.all, p.in.key, p.samples.equal));
    HOLD(anything, [o.vector last_index_of_TT_word:o.key],
         reference::last_index_of(p.all, p.in.key, p.samples.equal));
    HOLD(anything, [o.vector index_of_TT_words:[o.run TT_word_data] count:o.run_count],
         reference::first_index_of_subsequence(p.all, p.in.run, p.samples.equal));
    HOLD(anything, number_of([o.vector minimum_TT_word]), p.least());
    HOLD(anything, number_of([o.vector maximum_TT_word]), p.greatest());
    HOLD(anything, extremes_of(o.vector), uint64_t{p.least()} << 32 | p.greatest());
    HOLD(a_likeness, [o.vector is_equal_to_vector:o.run], p.all == p.in.run);
    HOLD(a_likeness, [o.vector is_equal_to_collection:o.run],
         reference::same_values(p.all, p.in.run, p.samples.equal));
}

TEST(ZEB_T_Differential, ordered_operations_ask_and_end_as_told)
{
    Differential hold;
    HOLD(order, [o.vector ordered_index_of_TT_word:o.key],
         p.told(reference::ordered_find(p.all, p.in.key, p.own())));
    HOLD(order, [o.vector ordered_index_of_TT_word:o.key comparison:compare],
         p.told(reference::ordered_find(p.all, p.in.key, p.asked())));
    HOLD(order, [o.vector nearest_ordered_index_of_TT_word:o.key],
         p.told(reference::ordered_find_nearest(p.all, p.in.key, p.own())));
    HOLD(order, [o.vector nearest_ordered_index_of_TT_word:o.key comparison:compare],
         p.told(reference::ordered_find_nearest(p.all, p.in.key, p.asked())));
    HOLD_ARRAYS(order, [o.array ordered_insert_TT_word:o.give(o.key) inserts:o.in.inserts],
                p.insert(p.own()));
    HOLD_ARRAYS(order, [o.array ordered_insert_TT_word:o.give(o.key) comparison:compare inserts:o.in.inserts],
                p.insert(p.asked()));
}

TEST(ZEB_T_Differential, elements_are_stored_and_replaced)
{
    Differential hold;
    HOLD(an_element, [o.vector set_TT_word:o.give(o.key) at_index:o.in.from], p.all[p.in.from] = p.key());
    HOLD(an_element, [o.vector set_TT_word:o.give(o.key) at_index_from_end:o.in.from],
         p.all[p.count - 1 - p.in.from] = p.key());
    HOLD(anything, [o.vector fill_with_TT_word:o.give(o.key)], p.fill(0, UINT32_MAX));
    HOLD(anything, [o.vector fill_range:o.range with_TT_word:o.give(o.key)], p.fill(p.in.from, p.in.to));
    HOLD(anything, [o.vector replace_every_TT_word:o.key with:o.give(o.other)], p.replace_every());
    HOLD_ARRAYS(anything, [o.array replace_occurrences:o.run replacement:o.replacement],
                p.replace_occurrences());
}

TEST(ZEB_T_Differential, elements_go_in)
{
    Differential hold;
    HOLD_ARRAYS(anything, [o.array append_TT_word:o.give(o.key)],
                p.is_link ? void(++p.reports) : p.insert_one(p.count));
    HOLD_ARRAYS(anything, [o.array insert_TT_word:o.give(o.key) at_index:o.in.to],
                p.is_link ? void(++p.reports) : p.insert_one(p.in.to));
    HOLD_ARRAYS(anything, [o.array copy_TT_word:o.give(o.key)],
                p.is_link ? void(++p.reports) : p.assign({p.key()}));
    HOLD_ARRAYS(anything, [o.array append_array:o.run], p.append(p.in.run));
    HOLD_ARRAYS(anything, [o.array append_array:o.own], p.append(p.own_run()));
    HOLD_ARRAYS(anything, [o.array append_TT_words:o.give_run() count:o.run_count], p.append(p.in.run));
    HOLD_ARRAYS(anything, [o.array insert_array:o.run at_index:o.in.to], p.insert(p.in.to, p.in.run));
    HOLD_ARRAYS(anything, [o.array insert_array:o.own at_index:o.in.to], p.insert(p.in.to, p.own_run()));
    HOLD_ARRAYS(anything, [o.array replace_element_at_index:o.in.from with_array:o.run],
                p.replace_element(p.in.run));
    HOLD_ARRAYS(anything, [o.array replace_element_at_index:o.in.from with_array:o.own],
                p.replace_element(p.own_run()));
    HOLD_ARRAYS(anything,
                [o.array replace_element_at_index:o.in.from with_TT_words:o.give_run() count:o.run_count],
                p.replace_element(p.in.run));
}

TEST(ZEB_T_Differential, contents_are_taken_over)
{
    Differential hold;
    HOLD_ARRAYS(anything, [o.array set_contents_of_array:o.run], p.assign(p.in.run));
    HOLD_ARRAYS(anything, [o.array set_contents_of_array:o.own], p.assign(p.own_run()));
    HOLD_ARRAYS(anything, [o.array set_TT_words:o.give_run() count:o.run_count], p.assign(p.in.run));
    HOLD_ARRAYS(anything, [o.array copy_vector:o.run capacity:o.in.room], p.copy(p.in.run));
    HOLD_ARRAYS(anything, [o.array copy_vector:o.own capacity:o.in.room], p.copy(p.own_run()));
    HOLD_ARRAYS(anything, [o.array copy_TT_words:o.give_run() count:o.run_count capacity:o.in.room],
                p.copy(p.in.run));
    EXPECT_GT(hold.failed_allocations(), 20u);
}

TEST(ZEB_T_Differential, lengths_and_capacities_change)
{
    Differential hold;
    HOLD_ARRAYS(anything, [o.array set_length:o.in.from], p.resize(p.in.from));
    HOLD_ARRAYS(anything, [o.array extend_length_by:o.in.room], p.resize(p.count + p.in.room));
    HOLD_ARRAYS(anything, [o.array ensure_room_for:o.in.room], p.make_room_unless_link(p.count + p.in.room));
    HOLD_ARRAYS(anything, [o.array ensure_capacity_greater_than:o.in.room],
                p.make_room_unless_link(p.in.room));
    HOLD_ARRAYS(anything, [o.array trim_allocation], p.trim());
    HOLD(an_element, [o.vector set_count:o.in.from], p.count = p.in.from);
    HOLD(anything, [o.vector decrease_count:o.in.from], p.count -= std::min(p.count, p.in.from));
    HOLD(anything, [o.vector clear], p.count = 0);
}

TEST(ZEB_T_Differential, elements_are_removed)
{
    Differential hold;
    HOLD(anything, [o.vector remove_every_TT_word:o.key],
         p.count = reference::remove_equal(p.all, p.in.key, p.samples.equal));
    HOLD(anything, [o.vector remove_element_at_index:o.in.from],
         p.in.from < p.count ? p.close_gap(p.in.from, p.in.from + 1) : void());
    HOLD(anything, [o.vector remove_range:o.range], p.change_range(false));
    HOLD(anything, [o.vector replace_range:o.range with_TT_word:o.give(o.key)], p.change_range(true));
}

TEST(ZEB_T_Differential, elements_change_places)
{
    Differential hold;
    HOLD(anything, [o.vector swap_element_at_index:o.in.from with_index:o.in.to],
         p.both_inside() ? reference::swap(p.all, p.in.from, p.in.to) : void());
    HOLD(anything, [o.vector move_element_from_index:o.in.from to_index:o.in.to],
         p.both_inside() ? reference::move(p.all, p.in.from, p.in.to) : void());
    HOLD(anything, [o.vector reverse], reference::reverse(p.all));
    HOLD(a_shape, [o.vector transpose_rows:o.in.from columns:o.in.to],
         reference::transpose(p.all, p.in.from, p.in.to));
    HOLD(a_permutation, [o.vector apply_permutation:o.indexes],
         p.may_permute() ? reference::apply_permutation(p.all, p.indexes) : void());
    HOLD(a_permutation, [o.vector apply_inverse_permutation:o.indexes],
         p.may_permute() ? reference::apply_inverse_permutation(p.all, p.indexes) : void());
}

TEST(ZEB_T_Differential, sorts_move_elements_and_indexes_as_told)
{
    Differential hold(works_without_memory);
    HOLD(anything, [o.vector sort], reference::sort(p.all, nullptr, p.precedes(p.own())));
    HOLD(anything, [o.vector sort_TT_words_with_comparison:compare],
         reference::sort(p.all, nullptr, p.precedes(p.asked())));
    HOLD(anything, [o.vector sort_with_permutation:o.indexes],
         reference::sort(p.all, &p.indexes, p.precedes(p.own())));
    HOLD(anything, [o.vector sort_TT_words_with_comparison:compare permutation:o.indexes],
         reference::sort(p.all, &p.indexes, p.precedes(p.asked())));
}
