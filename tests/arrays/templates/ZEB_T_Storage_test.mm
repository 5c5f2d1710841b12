#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"
#include "tests/support/samples.hpp"

#include <gtest/gtest.h>

#include <vector>

using support::are_same;
using support::diagnostic;
using support::fix_line;
using support::standard_error_of;

namespace
{

using Element = ZEB_T_Element;

Element sample(uint32_t i) { return support::Sample<Element>::at(i); }

ZEB_T_Vector *new_vector() { return [[[ZEB_T_Vector alloc] init] autorelease]; }

ZEB_T_Array *array_of(uint32_t count)
{
    ZEB_T_Array *const made = [ZEB_T_Array array_with_capacity:0];
    for (uint32_t i = 0; i < count; ++i)
        [made append_TT_word:sample(i)];
    return made;
}

void expect_samples(ZEB_T_Vector *vector, std::vector<uint32_t> numbers)
{
    ASSERT_EQ([vector count], numbers.size());
    for (uint32_t i = 0; i < numbers.size(); ++i) {
        EXPECT_TRUE(are_same([vector TT_word_at_index:i], sample(numbers[i]))) << i;
    }
}

/// Runs `work`, which is to report `note` once, and to leave the array as it is.
template <class Work>
void expect_refusal(ZEB_T_Array *array, const std::string &selector, const std::string &note, Work work)
{
    SCOPED_TRACE(selector);
    ZEB_Error_Stream *const stream = [ZEB_Error_Stream shared_error_stream];
    const uint32_t warnings = [stream warning_count];
    Element *const data = [array TT_word_data];
    const uint32_t count = [array count];
    const uint32_t capacity = [array capacity];
    EXPECT_EQ(standard_error_of(work), fix_line(selector, "ZEB_T_Array", note));
    EXPECT_EQ([stream warning_count], warnings + 1);
    EXPECT_EQ([array TT_word_data], data);
    EXPECT_EQ([array count], count);
    EXPECT_EQ([array capacity], capacity);
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
    EXPECT_EQ([array_of(0) capacity], 0u);
    EXPECT_EQ([array_of(0) TT_word_data], nullptr);
    EXPECT_EQ([array_of(1) capacity], 16u);
    EXPECT_EQ([array_of(16) capacity], 16u);
    EXPECT_EQ([array_of(17) capacity], 32u);
    EXPECT_EQ([[ZEB_T_Array array_with_capacity:5] capacity], 5u);
    EXPECT_EQ([new_vector() count], 16u);

    ZEB_T_Array *const model = array_of(5);
    ZEB_T_Array *const copied = [[[ZEB_T_Array alloc] init_as_copy_of_TT_word_vector:model] autorelease];
    EXPECT_EQ([copied capacity], 5u);
    expect_samples(copied, {0, 1, 2, 3, 4});
    EXPECT_EQ([[model duplicate] capacity], 16u);
    expect_samples([model duplicate], { 0, 1, 2, 3, 4 });
    ZEB_T_Array *const of_run = [[[ZEB_T_Array alloc] init_as_copy_of_TT_words:[model TT_word_data]
                                                                         count:5] autorelease];
    EXPECT_EQ([of_run capacity], 16u);
    expect_samples(of_run, {0, 1, 2, 3, 4});
}

TEST(ZEB_T_Storage, seed_and_default_length_are_the_family_s_own)
{
    [ZEB_T_Array set_growth_seed:3];
    [ZEB_T_Vector set_default_length:2];
    EXPECT_EQ([array_of(1) capacity], 3u);
    EXPECT_EQ([array_of(4) capacity], 6u);
    EXPECT_EQ([new_vector() count], 2u);
    [ZEB_T_Array set_growth_seed:0];
    EXPECT_EQ([array_of(3) capacity], 4u);
    [ZEB_T_Array set_growth_seed:16];
    [ZEB_T_Vector set_default_length:16];
}

TEST(ZEB_T_Storage, trims_to_the_proper_capacity)
{
    ZEB_T_Array *const array = array_of(5);
    [array ensure_capacity_greater_than:63];
    EXPECT_EQ([array capacity], 64u);
    [array trim_allocation];
    EXPECT_EQ([array capacity], 16u);
    expect_samples(array, {0, 1, 2, 3, 4});
    EXPECT_EQ([array proper_capacity], 16u);
    ZEB_T_Array *const full = array_of(16);
    [full ensure_room_for:0];
    EXPECT_EQ([full capacity], 32u);
    [full trim_allocation];
    EXPECT_EQ([full capacity], 16u);
}

TEST(ZEB_T_Storage, puts_elements_where_they_are_told_to)
{
    ZEB_T_Array *const array = array_of(3);
    [array insert_TT_word:sample(7) at_index:1];
    expect_samples(array, {0, 7, 1, 2});
    [array insert_array:array_of(2) at_index:99];
    expect_samples(array, {0, 7, 1, 2, 0, 1});
    [array replace_element_at_index:1 with_array:array];
    expect_samples(array, {0, 0, 7, 1, 2, 0, 1, 1, 2, 0, 1});
    [array replace_element_at_index:0 with_TT_words:nullptr count:0];
    [array set_count:3];
    expect_samples(array, {0, 7, 1});
    [array append_array:array];
    expect_samples(array, {0, 7, 1, 0, 7, 1});
    [array copy_TT_word:sample(9)];
    expect_samples(array, {9});
    [array set_contents_of_array:nil];
    EXPECT_EQ([array is_empty], 1);
}

TEST(ZEB_T_Storage, a_link_reads_and_writes_its_owner_s_elements)
{
    ZEB_T_Array *const owner = array_of(5);
    ZEB_T_Array *const link =
        [[[ZEB_T_Array alloc] init_as_link_to_TT_word_vector:owner range:ZEB_Index_Range{1, 3}] autorelease];
    EXPECT_EQ([link link_marker], 10000u);
    EXPECT_EQ([link capacity], 4294967295u);
    expect_samples(link, {1, 2, 3});
    [link set_TT_word:sample(8) at_index:0];
    expect_samples(owner, {0, 8, 2, 3, 4});
    [link relink_to_vector:owner range:ZEB_Index_Range{3, 4}];
    expect_samples(link, {3, 4});

    // What is set makes a link an owner, and leaves the other owner's elements alone.
    [link set_contents_of_array:array_of(2)];
    EXPECT_EQ([link link_marker], 0u);
    EXPECT_EQ([link capacity], 16u);
    expect_samples(owner, {0, 8, 2, 3, 4});
    ZEB_T_Array *const other = [ZEB_T_Array link_to_TT_words:[owner TT_word_data] count:5];
    [other copy_vector:owner capacity:7];
    EXPECT_EQ([other link_marker], 0u);
    EXPECT_EQ([other capacity], 7u);
    expect_samples(other, {0, 8, 2, 3, 4});
}

TEST(ZEB_T_Storage, a_link_refuses_whatever_would_change_its_block_or_count)
{
    ZEB_T_Array *const owner = array_of(3);
    ZEB_T_Array *const two = array_of(2);
    ZEB_T_Array *const link = [ZEB_T_Array link_to_TT_words:[owner TT_word_data] count:3];
    expect_refusal(link, "trim_allocation", "Cannot trim allocation through link, no adjustment made.",
                   [&] { [link trim_allocation]; });
    expect_refusal(link, "set_length:", "Cannot update length through link, no adjustment made.",
                   [&] { [link set_length:1]; });
    expect_refusal(link, "extend_length_by:", "Cannot update capacity through link, no adjustment made.",
                   [&] { [link extend_length_by:1]; });
    expect_refusal(
        link, "ensure_capacity_greater_than:", "Cannot modify capacity through link, no adjustment made.",
        [&] { [link ensure_capacity_greater_than:1]; });
    expect_refusal(link, "ensure_room_for:", "Cannot update capacity through link, no adjustment made.",
                   [&] { [link ensure_room_for:1]; });
    expect_refusal(link, "copy_TT_word:", "Cannot copy element through link, no copy made.",
                   [&] { [link copy_TT_word:sample(0)]; });
    expect_refusal(link, "append_TT_word:", "Cannot append element through link, no append made.",
                   [&] { [link append_TT_word:sample(0)]; });
    expect_refusal(link, "append_array:", "Cannot append array through link, no append made.",
                   [&] { [link append_array:two]; });
    expect_refusal(link, "append_TT_words:count:", "Cannot append array through link, no append made.",
                   [&] { [link append_TT_words:[two TT_word_data] count:2]; });
    expect_refusal(link, "insert_TT_word:at_index:", "Cannot insert element through link, no insertion made.",
                   [&] { [link insert_TT_word:sample(0) at_index:0]; });
    expect_refusal(link, "insert_array:at_index:", "Cannot insert array through link, no insertion made.",
                   [&] { [link insert_array:two at_index:0]; });
    expect_refusal(link, "replace_element_at_index:with_array:",
                   "Cannot replace element with array through link, no replacement made.",
                   [&] { [link replace_element_at_index:0 with_array:two]; });
    expect_refusal(link, "replace_element_at_index:with_TT_words:count:",
                   "Cannot replace element with array through link, no replacement made.",
                   [&] { [link replace_element_at_index:0 with_TT_words:[two TT_word_data] count:2]; });
    EXPECT_EQ(standard_error_of([&] { [link append_array:array_of(0)]; }), "");
    expect_samples(link, {0, 1, 2});
    // A string that a pool holds is a link as well; a lower marker is none to the array.
    [link set_link_marker:10001];
    expect_refusal(link, "trim_allocation", "Cannot trim allocation through link, no adjustment made.",
                   [&] { [link trim_allocation]; });
}

TEST(ZEB_T_Storage, what_cannot_be_allocated_is_told_and_changes_nothing)
{
    const char *const allocate = "Runtime error in allocate macro";
    const char *const reallocate = "Runtime error in reallocate macro";
    const uint32_t most = 4294967295u;
    ZEB_T_Array *const array = array_of(3);
    expect_refusal(array, "set_length:", allocate, [&] { [array set_length:most]; });
    expect_refusal(array, "ensure_capacity_greater_than:", allocate,
                   [&] { [array ensure_capacity_greater_than:most]; });
    expect_refusal(array, "extend_length_by:", reallocate, [&] { [array extend_length_by:most]; });
    expect_refusal(array, "ensure_room_for:", reallocate, [&] { [array ensure_room_for:most]; });
    expect_refusal(array, "set_TT_words:count:", allocate,
                   [&] { [array set_TT_words:[array TT_word_data] count:most]; });
    expect_refusal(array, "append_TT_words:count:", reallocate,
                   [&] { [array append_TT_words:[array TT_word_data] count:most]; });
    expect_samples(array, {0, 1, 2});

    ZEB_T_Array *made = nil;
    EXPECT_EQ(standard_error_of([&] { made = [[ZEB_T_Array alloc] init_with_length:most]; }),
              fix_line("init_with_length:", "ZEB_T_Array", allocate));
    EXPECT_EQ([made TT_word_data], nullptr);
    EXPECT_EQ([made count], 0u);
    EXPECT_EQ([made capacity], 0u);
    [made append_TT_word:sample(0)];
    expect_samples(made, {0});
    [made release];
}

TEST(ZEB_T_Storage, what_is_left_to_subclasses_says_so)
{
    ZEB_T_Array *const array = array_of(1);
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
    ZEB_T_Array *const array = array_of(4);
    EXPECT_TRUE([array pointer_to_TT_word_at_index_from_end:0] == [array pointer_to_TT_word_at_index:3]);
    [array set_TT_word:sample(9) at_index_from_end:1];
    expect_samples(array, {0, 1, 9, 3});
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
            ZEB_T_Array *const owner = array_of(16);
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
                EXPECT_TRUE(are_same([owner TT_word_at_index:i], expected[i])) << i;
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
    ZEB_T_Array *const owner = array_of(2);
    ZEB_T_Array *const link = [ZEB_T_Array link_to_TT_words:[owner TT_word_data] count:2];
    [link copy_settings_from:nil];
    [link copy_settings_from:(id) @"no collection"];
    EXPECT_EQ([link link_marker], 10000u);
    [link relink_to_vector:nil range:ZEB_Index_Range{1, 2}];
    EXPECT_EQ([link count], 0u);
    EXPECT_EQ([link TT_word_data], nullptr);
}
