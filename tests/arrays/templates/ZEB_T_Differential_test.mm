/// Every algorithm of TT_PHRASE, on owners and links, by the own order and by a caller's comparison, against
/// its plainest form.
#include "tests/arrays/ZEB_T_Samples.hpp"
#include "tests/arrays/differential.hpp"
#include "tests/support/captured.hpp"

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

/// What an operation is done to, with the owner of what a link views.
struct Ours {
    Ours(const Input &input, Place place) : in(input), is_link(place >= Place::link_to_array)
    {
        Numbers all = in.elements;
        if (is_link) {
            all.insert(all.begin(), before_link.begin(), before_link.end());
            all.insert(all.end(), after_link.begin(), after_link.end());
        }
        owner = array_of(all);
        const ZEB_Index_Range viewed{2, static_cast<uint32_t>(in.elements.size()) + 1};
        if (place == Place::array)
            vector = array = owner;
        else if (place == Place::vector)
            vector = [[[ZEB_T_Vector alloc] init_as_copy_of_TT_word_vector:owner] autorelease];
        else if (place == Place::link_to_array)
            vector = array = [[[ZEB_T_Array alloc] init_as_link_to_TT_word_vector:owner
                                                                            range:viewed] autorelease];
        else
            vector = [[[ZEB_T_Vector alloc] init_as_link_to_TT_word_vector:owner range:viewed] autorelease];
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
    bool is_link;
    Element key = samples()[in.key], other = samples()[in.other];
    ZEB_Index_Range range{in.from, in.to};
    ZEB_UInt_Array *indexes = indexes_of(in.indexes);
    ZEB_T_Vector *vector = nil;
    ZEB_T_Array *array = nil;
    ZEB_T_Array *owner = nil;
};

using Ours_Does = uint64_t (*)(Ours &);
using Plain_Does = uint64_t (*)(Plain &);

/// An operation's answer, 0 for one that has none.
template <class Operation, class Side>
uint64_t answer_of(Side &side)
{
    if constexpr (std::is_void_v<decltype(Operation()(side))>) {
        Operation()(side);
        return 0;
    } else {
        return Operation()(side);
    }
}

/// Holds operations against their plain forms, and sees that each report was a line.
class Differential
{
public:
    ~Differential()
    {
        const std::string told = captured.text();
        EXPECT_EQ(static_cast<uint32_t>(std::count(told.begin(), told.end(), '\n')), reports);
    }

    /// An operation of vectors.
    template <class Operation, class Reference>
    void operator()(Needs needs, Operation, Reference)
    {
        for (const Place place : {Place::array, Place::vector, Place::link_to_array, Place::link_of_vector})
            hold_at(place, needs, answer_of<Operation, Ours>, answer_of<Reference, Plain>);
    }

    /// An operation of growable arrays.
    template <class Operation, class Reference>
    void arrays(Needs needs, Operation, Reference)
    {
        for (const Place place : {Place::array, Place::link_to_array})
            hold_at(place, needs, answer_of<Operation, Ours>, answer_of<Reference, Plain>);
    }

private:
    void hold_at(Place place, Needs needs, Ours_Does operation, Plain_Does reference)
    {
        for (int turn = 0; turn < 60 && !testing::Test::HasFatalFailure(); ++turn)
            hold_once(inputs.draw(needs), place, operation, reference);
    }

    void hold_once(const Input &in, Place place, Ours_Does operation, Plain_Does reference)
    {
        NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
        Ours ours(in, place);
        Plain plain{facts(), in, ours.is_link};
        Comparison asked = in.comparison;
        comparison = &asked;
        compared = ours.vector;
        const uint32_t before = [[ZEB_Error_Stream shared_error_stream] warning_count];
        const uint64_t answer = operation(ours);
        const uint32_t reported = [[ZEB_Error_Stream shared_error_stream] warning_count] - before;
        ASSERT_EQ(answer, reference(plain));
        ASSERT_EQ(reported, plain.reports);
        ASSERT_TRUE(asked.asked == plain.comparison.asked);
        expect_same_elements(ours, plain);
        reports += reported;
        [pool drain];
    }

    static void expect_same_elements(const Ours &ours, const Plain &plain)
    {
        const auto end = plain.all.begin() + plain.count;
        ASSERT_EQ(numbers_of(ours.vector), Numbers(plain.all.begin(), end));
        const std::span<const uint32_t> went = zeb::elements(ours.indexes);
        ASSERT_EQ(Numbers(went.begin(), went.end()), plain.indexes);
        if (!ours.is_link)
            return;
        Numbers beyond = before_link;
        if (!support::is_object<Element>)
            beyond.insert(beyond.end(), end, plain.all.end());
        beyond.insert(beyond.end(), after_link.begin(), after_link.end());
        ASSERT_EQ(ours.beyond(), beyond);
    }

    Inputs inputs{facts()};
    uint32_t reports = 0;
    support::Captured_Output captured{stderr};
};

} // namespace

TEST(ZEB_T_Differential, searches_find_what_the_plain_scan_finds)
{
    Differential hold;
    hold(
        anything, [](Ours &o) { return [o.vector index_of_TT_word:o.key]; },
        [](Plain &p) { return reference::first_index_of(p.all, p.in.key, p.samples.equal); });
    hold(
        anything, [](Ours &o) { return [o.vector last_index_of_TT_word:o.key]; },
        [](Plain &p) { return reference::last_index_of(p.all, p.in.key, p.samples.equal); });
    hold(
        anything,
        [](Ours &o) {
            return [o.vector index_of_TT_words:[array_of(o.in.run) TT_word_data]
                                         count:static_cast<uint32_t>(o.in.run.size())];
        },
        [](Plain &p) { return reference::first_index_of_subsequence(p.all, p.in.run, p.samples.equal); });
    const auto least = [](Plain &p) {
        return p.count == 0 ? p.samples.nothing : reference::minimum(p.all, p.samples.precedes);
    };
    const auto greatest = [](Plain &p) {
        return p.count == 0 ? p.samples.nothing : reference::maximum(p.all, p.samples.precedes);
    };
    hold(
        anything, [](Ours &o) { return number_of([o.vector minimum_TT_word]); }, least);
    hold(
        anything, [](Ours &o) { return number_of([o.vector maximum_TT_word]); }, greatest);
    hold(
        anything,
        [](Ours &o) {
            Element low = Element(), high = Element();
            [o.vector get_minimum_TT_word:&low maximum:&high];
            return uint64_t{number_of(low)} << 32 | number_of(high);
        },
        [](Plain &p) { return uint64_t{decltype(least)()(p)} << 32 | decltype(greatest)()(p); });
    hold(
        a_likeness, [](Ours &o) { return [o.vector is_equal_to_vector:array_of(o.in.run)]; },
        [](Plain &p) { return p.all == p.in.run; });
    hold(
        a_likeness, [](Ours &o) { return [o.vector is_equal_to_collection:array_of(o.in.run)]; },
        [](Plain &p) { return reference::same_values(p.all, p.in.run, p.samples.equal); });
}

TEST(ZEB_T_Differential, ordered_operations_ask_and_end_as_told)
{
    Differential hold;
    hold(
        order, [](Ours &o) { return [o.vector ordered_index_of_TT_word:o.key]; },
        [](Plain &p) { return p.told(reference::ordered_find(p.all, p.in.key, p.own())); });
    hold(
        order, [](Ours &o) { return [o.vector ordered_index_of_TT_word:o.key comparison:compare]; },
        [](Plain &p) { return p.told(reference::ordered_find(p.all, p.in.key, p.asked())); });
    hold(
        order, [](Ours &o) { return [o.vector nearest_ordered_index_of_TT_word:o.key]; },
        [](Plain &p) { return p.told(reference::ordered_find_nearest(p.all, p.in.key, p.own())); });
    hold(
        order, [](Ours &o) { return [o.vector nearest_ordered_index_of_TT_word:o.key comparison:compare]; },
        [](Plain &p) { return p.told(reference::ordered_find_nearest(p.all, p.in.key, p.asked())); });
    hold.arrays(
        order, [](Ours &o) { return [o.array ordered_insert_TT_word:o.key inserts:o.in.inserts]; },
        [](Plain &p) { return p.insert(p.own()); });
    hold.arrays(
        order,
        [](Ours &o) {
            return [o.array ordered_insert_TT_word:o.key comparison:compare inserts:o.in.inserts];
        },
        [](Plain &p) { return p.insert(p.asked()); });
}

TEST(ZEB_T_Differential, elements_are_stored_and_replaced)
{
    Differential hold;
    hold(
        an_element, [](Ours &o) { [o.vector set_TT_word:o.key at_index:o.in.from]; },
        [](Plain &p) { p.all[p.in.from] = p.in.key; });
    hold(
        an_element, [](Ours &o) { [o.vector set_TT_word:o.key at_index_from_end:o.in.from]; },
        [](Plain &p) { p.all[p.count - 1 - p.in.from] = p.in.key; });
    hold(
        anything, [](Ours &o) { [o.vector fill_with_TT_word:o.key]; },
        [](Plain &p) { p.all.assign(p.count, p.in.key); });
    hold(
        anything, [](Ours &o) { [o.vector fill_range:o.range with_TT_word:o.key]; },
        [](Plain &p) {
            for (uint32_t i = p.in.from; i <= p.in.to && i < p.count; ++i)
                p.all[i] = p.in.key;
        });
    hold(
        anything, [](Ours &o) { return [o.vector replace_every_TT_word:o.key with:o.other]; },
        [](Plain &p) { return reference::replace_equal(p.all, p.in.key, p.in.other, p.samples.equal); });
    hold.arrays(
        anything,
        [](Ours &o) {
            return [o.array replace_occurrences:array_of(o.in.run) replacement:array_of(o.in.replacement)];
        },
        [](Plain &p) { return p.replace_occurrences(); });
}

TEST(ZEB_T_Differential, elements_are_removed)
{
    Differential hold;
    hold(
        anything, [](Ours &o) { [o.vector remove_every_TT_word:o.key]; },
        [](Plain &p) { p.count = reference::remove_equal(p.all, p.in.key, p.samples.equal); });
    hold(
        anything, [](Ours &o) { [o.vector remove_element_at_index:o.in.from]; },
        [](Plain &p) {
            if (p.in.from < p.count)
                p.close_gap(p.in.from, p.in.from + 1);
        });
    hold(
        anything, [](Ours &o) { [o.vector remove_range:o.range]; }, [](Plain &p) { p.change_range(false); });
    hold(
        anything, [](Ours &o) { [o.vector replace_range:o.range with_TT_word:o.key]; },
        [](Plain &p) { p.change_range(true); });
}

TEST(ZEB_T_Differential, elements_change_places)
{
    Differential hold;
    hold(
        anything, [](Ours &o) { [o.vector swap_element_at_index:o.in.from with_index:o.in.to]; },
        [](Plain &p) {
            if (p.both_inside())
                reference::swap(p.all, p.in.from, p.in.to);
        });
    hold(
        anything, [](Ours &o) { [o.vector move_element_from_index:o.in.from to_index:o.in.to]; },
        [](Plain &p) {
            if (p.both_inside())
                reference::move(p.all, p.in.from, p.in.to);
        });
    hold(
        anything, [](Ours &o) { [o.vector reverse]; }, [](Plain &p) { reference::reverse(p.all); });
    hold(
        a_shape, [](Ours &o) { [o.vector transpose_rows:o.in.from columns:o.in.to]; },
        [](Plain &p) { reference::transpose(p.all, p.in.from, p.in.to); });
    hold(
        a_permutation, [](Ours &o) { [o.vector apply_permutation:o.indexes]; },
        [](Plain &p) {
            if (p.may_permute())
                reference::apply_permutation(p.all, p.indexes);
        });
    hold(
        a_permutation, [](Ours &o) { [o.vector apply_inverse_permutation:o.indexes]; },
        [](Plain &p) {
            if (p.may_permute())
                reference::apply_inverse_permutation(p.all, p.indexes);
        });
}

TEST(ZEB_T_Differential, sorts_move_elements_and_indexes_as_told)
{
    Differential hold;
    hold(
        anything, [](Ours &o) { [o.vector sort]; },
        [](Plain &p) { reference::sort(p.all, nullptr, p.precedes(p.own())); });
    hold(
        anything, [](Ours &o) { [o.vector sort_TT_words_with_comparison:compare]; },
        [](Plain &p) { reference::sort(p.all, nullptr, p.precedes(p.asked())); });
    hold(
        anything, [](Ours &o) { [o.vector sort_with_permutation:o.indexes]; },
        [](Plain &p) { reference::sort(p.all, &p.indexes, p.precedes(p.own())); });
    hold(
        anything, [](Ours &o) { [o.vector sort_TT_words_with_comparison:compare permutation:o.indexes]; },
        [](Plain &p) { reference::sort(p.all, &p.indexes, p.precedes(p.asked())); });
}
