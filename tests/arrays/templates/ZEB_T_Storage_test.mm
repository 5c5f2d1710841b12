/// What TT_PHRASE report, word for word, and what their initialisers, links and foreign storage promise.
#include "tests/arrays/ZEB_T_Samples.hpp"
#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <string>

using support::diagnostic;
using support::fix_line;
using support::standard_error_of;

namespace
{

Element sample(uint32_t i) { return samples()[i]; }

ZEB_T_Array *first_samples(uint32_t count)
{
    ZEB_T_Array *const made = [ZEB_T_Array array_with_capacity:0];
    for (uint32_t i = 0; i < count; ++i)
        [made append_TT_word:sample(i % 10)];
    return made;
}

ZEB_T_Vector *new_vector() { return [[[ZEB_T_Vector alloc] init] autorelease]; }

ZEB_Comparison answer_nothing(Element const *, Element const *) { return 0; }

/// What an operation reports, and the operation, which leaves its array as it was.
struct Report {
    const char *selector, *note;
    std::function<void()> work;
};

void expect_reports(ZEB_T_Array *array, const std::vector<Report> &reports)
{
    const Numbers before = numbers_of(array);
    for (const Report &report : reports) {
        Element *const data = [array TT_word_data];
        const uint32_t capacity = [array capacity];
        EXPECT_EQ(standard_error_of(report.work), fix_line(report.selector, "ZEB_T_Array", report.note));
        EXPECT_TRUE([array TT_word_data] == data && [array capacity] == capacity) << report.selector;
        EXPECT_EQ(numbers_of(array), before) << report.selector;
    }
}

} // namespace

TEST(ZEB_T_Storage, initialisers_give_the_counts_and_capacities_they_promise)
{
    const uint32_t capacity_of_length[][2] = {{0, 16}, {15, 16}, {16, 32}, {17, 32}, {100, 128}};
    for (const auto &row : capacity_of_length) {
        ZEB_T_Array *const made = [[[ZEB_T_Array alloc] init_with_length:row[0]] autorelease];
        EXPECT_EQ([made count], row[0]);
        EXPECT_EQ([made capacity], row[1]);
    }
    EXPECT_EQ([first_samples(0) capacity], 0u);
    EXPECT_EQ([first_samples(0) TT_word_data], nullptr);
    EXPECT_EQ([[ZEB_T_Array array_with_capacity:5] capacity], 5u);
    ZEB_T_Array *const model = first_samples(5);
    ZEB_T_Array *const copied = [[[ZEB_T_Array alloc] init_as_copy_of_TT_word_vector:model] autorelease];
    ZEB_T_Array *const of_run = [[[ZEB_T_Array alloc] init_as_copy_of_TT_words:[model TT_word_data]
                                                                         count:5] autorelease];
    ZEB_T_Array *const link = [ZEB_T_Array link_to_TT_words:[model TT_word_data] count:5];
    EXPECT_EQ([link link_marker], 10000u);
    const std::pair<ZEB_T_Array *, uint32_t> made[] = {
        {model, 16}, {copied, 5}, {[link duplicate], 16}, {of_run, 16}, {link, 4294967295u}};
    for (const auto &[array, capacity] : made) {
        EXPECT_EQ([array capacity], capacity);
        EXPECT_EQ(numbers_of(array), (Numbers{0, 1, 2, 3, 4}));
    }
}

TEST(ZEB_T_Storage, seed_and_default_length_are_the_family_s_own)
{
    EXPECT_EQ([new_vector() count], 16u);
    [ZEB_T_Array set_growth_seed:3];
    [ZEB_T_Vector set_default_length:2];
    EXPECT_EQ([first_samples(4) capacity], 6u);
    EXPECT_EQ([first_samples(4) proper_capacity], 6u);
    EXPECT_EQ([new_vector() count], 2u);
    [ZEB_T_Array set_growth_seed:16];
    [ZEB_T_Vector set_default_length:16];
}

TEST(ZEB_T_Storage, a_link_that_is_moved_views_other_elements)
{
    ZEB_T_Array *const owner = first_samples(5);
    ZEB_T_Array *const link =
        [[[ZEB_T_Array alloc] init_as_link_to_TT_word_vector:owner range:ZEB_Index_Range{1, 3}] autorelease];
    EXPECT_EQ(numbers_of(link), (Numbers{1, 2, 3}));
    [link relink_to_vector:owner range:ZEB_Index_Range{3, 4}];
    EXPECT_EQ(numbers_of(link), (Numbers{3, 4}));
    EXPECT_EQ([link link_marker], 10000u);
}

TEST(ZEB_T_Storage, a_link_refuses_whatever_would_change_its_block_or_count)
{
    ZEB_T_Array *const owner = first_samples(3);
    ZEB_T_Array *const two = first_samples(2);
    ZEB_T_Array *const link = [ZEB_T_Array link_to_TT_words:[owner TT_word_data] count:3];
    const char *const trim = "Cannot trim allocation through link, no adjustment made.";
    const char *const room = "Cannot update capacity through link, no adjustment made.";
    const char *const append = "Cannot append array through link, no append made.";
    const char *const insert = "Cannot insert element through link, no insertion made.";
    const char *const replace = "Cannot replace element with array through link, no replacement made.";
    const std::vector<Report> reports = {
        {"trim_allocation", trim, [&] { [link trim_allocation]; }},
        {"set_length:", "Cannot update length through link, no adjustment made.",
         [&] { [link set_length:1]; }},
        {"extend_length_by:", room, [&] { [link extend_length_by:1]; }},
        {"ensure_capacity_greater_than:", "Cannot modify capacity through link, no adjustment made.",
         [&] { [link ensure_capacity_greater_than:1]; }},
        {"ensure_room_for:", room, [&] { [link ensure_room_for:1]; }},
        {"copy_TT_word:", "Cannot copy element through link, no copy made.",
         [&] { [link copy_TT_word:sample(0)]; }},
        {"append_TT_word:", "Cannot append element through link, no append made.",
         [&] { [link append_TT_word:sample(0)]; }},
        {"append_array:", append, [&] { [link append_array:two]; }},
        {"append_TT_words:count:", append, [&] { [link append_TT_words:[two TT_word_data] count:2]; }},
        {"insert_TT_word:at_index:", insert, [&] { [link insert_TT_word:sample(0) at_index:0]; }},
        {"insert_array:at_index:", "Cannot insert array through link, no insertion made.",
         [&] { [link insert_array:two at_index:0]; }},
        {"replace_element_at_index:with_array:", replace,
         [&] { [link replace_element_at_index:0 with_array:two]; }},
        {"replace_element_at_index:with_TT_words:count:", replace,
         [&] { [link replace_element_at_index:0 with_TT_words:[two TT_word_data] count:2]; }},
        {"ordered_insert_TT_word:inserts:", insert,
         [&] { [link ordered_insert_TT_word:sample(9) inserts:1]; }},
        {"replace_occurrences:replacement:", "Can not replace occurences through a link",
         [&] { [link replace_occurrences:first_samples(0) replacement:two]; }}};
    expect_reports(link, reports);
    // A string that a pool holds is a link as well.
    [link set_link_marker:10001];
    expect_reports(link, {reports[0]});
}

TEST(ZEB_T_Storage, what_cannot_be_allocated_is_told_and_changes_nothing)
{
    const char *const allocate = "Runtime error in allocate macro";
    const char *const reallocate = "Runtime error in reallocate macro";
    const uint32_t most = 4294967295u;
    ZEB_T_Array *const array = first_samples(3);
    Element *const data = [array TT_word_data];
    ZEB_T_Array *made = nil;
    expect_reports(
        array,
        {{"set_length:", allocate, [&] { [array set_length:most]; }},
         {"ensure_capacity_greater_than:", allocate, [&] { [array ensure_capacity_greater_than:most]; }},
         {"extend_length_by:", reallocate, [&] { [array extend_length_by:most]; }},
         {"ensure_room_for:", reallocate, [&] { [array ensure_room_for:most]; }},
         {"set_TT_words:count:", allocate, [&] { [array set_TT_words:data count:most]; }},
         {"append_TT_words:count:", reallocate, [&] { [array append_TT_words:data count:most]; }},
         {"init_with_length:", allocate, [&] { made = [[ZEB_T_Array alloc] init_with_length:most]; }}});
    EXPECT_TRUE([made TT_word_data] == nullptr && [made count] == 0 && [made capacity] == 0);
    [made append_TT_word:sample(0)];
    EXPECT_EQ(numbers_of(made), Numbers{0});
    [made release];
}

TEST(ZEB_T_Storage, odd_answers_ranges_and_permutations_are_told)
{
    ZEB_T_Array *const one = array_of({5});
    const char *const find = "Warning: Ordered find stopped on unknown comparison.";
    const auto unknown = answer_nothing;
    expect_reports(one, {{"ordered_index_of_TT_word:comparison:", find,
                          [&] { [one ordered_index_of_TT_word:sample(5) comparison:unknown]; }},
                         {"nearest_ordered_index_of_TT_word:comparison:", find,
                          [&] { [one nearest_ordered_index_of_TT_word:sample(5) comparison:unknown]; }},
                         {"ordered_insert_TT_word:comparison:inserts:",
                          "Warning: Ordered insert stopped on unknown comparison.",
                          [&] { [one ordered_insert_TT_word:sample(5) comparison:unknown inserts:1]; }}});
    ZEB_T_Array *const array = first_samples(3);
    const ZEB_Index_Range reversed{2, 1};
    const char *const less = "End index is less than start index in removal.";
    expect_reports(
        array,
        {{"remove_range:", less, [&] { [array remove_range:reversed]; }},
         {"replace_range:with_TT_word:", less,
          [&] { [array replace_range:reversed with_TT_word:sample(1)]; }},
         {"apply_permutation:", "Permutation names an element outside the array, no change made.", [&] {
              [array apply_permutation:support::indexes_of({0, 3, 1})];
          }}});
}

TEST(ZEB_T_Storage, what_is_left_to_subclasses_says_so)
{
    ZEB_T_Array *const array = first_samples(1);
    ZEB_T_Vector *const vector = [[[ZEB_T_Vector alloc] init_with_capacity:0] autorelease];
    ZEB_T_Collection *const collection = [[[ZEB_T_Collection alloc] init] autorelease];
    const auto implement = [](const char *selector, const char *named, const char *note) {
        return diagnostic("Need to implement selector: ", selector, named, note);
    };
    EXPECT_EQ(standard_error_of([&] { [array receive_from_stream:nil]; }),
              implement("receive_from_stream:", "ZEB_T_Array", "Not implemented"));
    EXPECT_EQ(standard_error_of([&] { [vector set_length:1]; }),
              implement("set_length:", "ZEB_T_Vector", "Need to implement"));
    EXPECT_EQ(standard_error_of([&] { [vector ensure_room_for:1]; }),
              implement("ensure_room_for:", "ZEB_T_Vector", "Need to implement"));
    EXPECT_EQ(standard_error_of([&] { [vector append_array:array]; }),
              implement("append_array:", "ZEB_T_Vector", "Need to implement"));
    EXPECT_EQ(standard_error_of([&] { [collection ZEB_T_element_at_index:0]; }),
              diagnostic("Need to overload selector: ", "ZEB_T_element_at_index:", "ZEB_T_Collection",
                         "ZEB_T_element_at_index: needs subclassing"));
}

TEST(ZEB_T_Storage, elements_are_reached_from_both_ends)
{
    ZEB_T_Array *const array = first_samples(4);
    EXPECT_TRUE([array pointer_to_TT_word_at_index_from_end:0] == [array pointer_to_TT_word_at_index:3]);
    [array set_TT_word:sample(9) at_index_from_end:1];
    EXPECT_EQ(numbers_of(array), (Numbers{0, 1, 9, 3}));
    EXPECT_TRUE([array first_TT_word] == [array TT_word_at_index:0]);
    EXPECT_TRUE([array last_TT_word] == [array TT_word_at_index_from_end:0]);
    [array decrement_count];
    [array decrease_count:9];
    EXPECT_EQ([array is_not_empty], 0);
    EXPECT_TRUE([array first_TT_word] == Element());
}

namespace
{

/// The elements of a vector as they are now; objects that it holds may be overwritten later.
std::vector<Element> snapshot(ZEB_T_Vector *vector)
{
    std::vector<Element> elements([vector TT_word_data], [vector TT_word_data] + [vector count]);
    for (Element &element : elements)
        element = support::as_it_is(element);
    return elements;
}

struct Stale_Link {
    ZEB_Index_Range range;
    uint32_t count;
};

} // namespace

TEST(ZEB_T_Storage, a_link_that_outlived_a_smaller_count_is_read_as_if_copied_first)
{
    // The block has 16 elements; some ways of putting elements in move it, and others overwrite what the link
    // views.
    for (const Stale_Link stale : {Stale_Link{{8, 15}, 6}, {{4, 13}, 6}, {{8, 15}, 12}, {{12, 14}, 12}}) {
        for (int way = 0; way < 4; ++way) {
            SCOPED_TRACE(testing::Message() << stale.range.start << " " << stale.count << " way " << way);
            ZEB_T_Array *const owner = first_samples(16);
            ZEB_T_Vector *const link =
                [[[ZEB_T_Vector alloc] init_as_link_to_TT_word_vector:owner range:stale.range] autorelease];
            [owner set_count:stale.count];
            const std::vector<Element> viewed = snapshot(link);
            std::vector<Element> expected = snapshot(owner);
            if (way == 0) {
                [owner append_array:link];
                expected.insert(expected.end(), viewed.begin(), viewed.end());
            } else if (way == 1) {
                [owner insert_array:link at_index:2];
                expected.insert(expected.begin() + 2, viewed.begin(), viewed.end());
            } else if (way == 2) {
                [owner replace_element_at_index:1 with_array:link];
                expected.erase(expected.begin() + 1);
                expected.insert(expected.begin() + 1, viewed.begin(), viewed.end());
            } else {
                [owner set_contents_of_array:link];
                expected = viewed;
            }
            ASSERT_EQ([owner count], expected.size());
            for (uint32_t i = 0; i < expected.size(); ++i) {
                EXPECT_TRUE(support::are_same([owner TT_word_at_index:i], expected[i])) << i;
            }
        }
    }
}

TEST(ZEB_T_Storage, storage_set_by_pointer_is_not_written_by_a_count)
{
    Element foreign[3] = {sample(0), sample(1), Element()};
    const std::vector<Element> before(foreign, foreign + 3);
    ZEB_T_Array *const array = [[ZEB_T_Array alloc] init];
    [array set_TT_word_data:foreign];
    for (const uint32_t count : {1u, 2u, 3u}) {
        [array set_count:count];
        [array set_TT_word_data:foreign];
        EXPECT_EQ([array count], count);
    }
    EXPECT_EQ(std::memcmp(foreign, before.data(), 2 * sizeof *foreign), 0);
    [array set_TT_word_data:nullptr];
    [array release];
}

TEST(ZEB_T_Storage, nil_and_what_is_no_collection_leave_a_link_as_it_is)
{
    ZEB_T_Array *const owner = first_samples(2);
    ZEB_T_Array *const link = [ZEB_T_Array link_to_TT_words:[owner TT_word_data] count:2];
    [link copy_settings_from:nil];
    [link copy_settings_from:(id) @"no collection"];
    EXPECT_EQ([link link_marker], 10000u);
    [link relink_to_vector:nil range:ZEB_Index_Range{1, 2}];
    EXPECT_EQ([link count], 0u);
    EXPECT_EQ([link TT_word_data], nullptr);
}

TEST(ZEB_T_Storage, equal_arrays_have_equal_hashes_and_descriptions)
{
    ZEB_T_Array *const array = array_of({1, 2});
    ZEB_T_Array *const same = array_of({1, 2});
    ZEB_T_Array *const other = array_of({1, 3});
    EXPECT_TRUE([array isEqual:same] && [array hash] == [same hash]);
    EXPECT_EQ([array is_equal_to_vector:same] + [array is_equal_to_collection:same], 2);
    EXPECT_FALSE([array isEqual:other]);
    EXPECT_EQ([array is_equal_to_vector:other] + [array is_equal_to_collection:other], 0);
    EXPECT_FALSE([array isEqual:nil] || [array isEqual:@"x"]);
    EXPECT_TRUE([array_of({}) isEqual:[[[ZEB_T_Vector alloc] init_with_capacity:9] autorelease]]);
    EXPECT_TRUE([[array description] isEqualToString:[same description]]);
    ZEB_T_Array *const copied = [[array copy] autorelease];
    EXPECT_TRUE([copied isEqual:array]);
}
