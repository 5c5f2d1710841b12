/// What initialisers, links and foreign storage of TT_PHRASE promise, and what is refused without a link.
#include "tests/arrays/ZEB_T_Samples.hpp"
#include "tests/support/class_test.hpp"

#include <functional>

namespace
{

ZEB_T_Vector *vector_of(const Numbers &numbers)
{
    return [[[ZEB_T_Vector alloc] init_as_copy_of_TT_word_vector:array_of(numbers)] autorelease];
}

/// A line that is written, and the work that does it.
struct Row {
    const char *lead, *selector, *named, *note;
    std::function<void()> work;
};

void expect_lines(std::initializer_list<Row> rows)
{
    for (const Row &row : rows)
        EXPECT_EQ(support::standard_error_of(row.work),
                  support::diagnostic(row.lead, row.selector, row.named, row.note));
}

} // namespace

TEST(ZEB_T_Storage, initialisers_give_the_counts_and_capacities_they_promise)
{
    const uint32_t capacity_of_length[][2] = {{0, 16}, {15, 16}, {16, 32}, {17, 32}, {100, 128}};
    for (const auto &[length, capacity] : capacity_of_length) {
        ZEB_T_Array *const made = [[[ZEB_T_Array alloc] init_with_length:length] autorelease];
        EXPECT_EQ([made count], length);
        EXPECT_EQ([made capacity], capacity);
    }
    EXPECT_EQ([array_of({}) capacity], 0u);
    EXPECT_EQ([array_of({}) TT_word_data], nullptr);
    EXPECT_EQ([[ZEB_T_Array array_with_capacity:5] capacity], 5u);
    ZEB_T_Array *const model = array_of({0, 1, 2});
    ZEB_T_Array *const link = [ZEB_T_Array link_to_TT_words:[model TT_word_data] count:3];
    EXPECT_EQ([link link_marker], 10000u);
    const std::pair<ZEB_T_Array *, uint32_t> made[] = {
        {model, 16},
        {link, 4294967295u},
        {[link duplicate], 16},
        {[[[ZEB_T_Array alloc] init_as_copy_of_TT_word_vector:model] autorelease], 3},
        {[[[ZEB_T_Array alloc] init_as_copy_of_TT_words:[model TT_word_data] count:3] autorelease], 16}};
    for (const auto &[array, capacity] : made) {
        EXPECT_EQ([array capacity], capacity);
        EXPECT_EQ(numbers_of(array), (Numbers{0, 1, 2}));
    }
}

TEST(ZEB_T_Storage, seed_and_default_length_are_the_family_s_own)
{
    const auto default_count = [] {
        ZEB_T_Vector *const made = [[[ZEB_T_Vector alloc] init] autorelease];
        return [made count];
    };
    EXPECT_EQ(default_count(), 16u);
    [ZEB_T_Array set_growth_seed:3];
    [ZEB_T_Vector set_default_length:2];
    EXPECT_EQ([array_of({0, 1, 2, 3}) capacity], 6u);
    EXPECT_EQ([array_of({0, 1, 2, 3}) proper_capacity], 6u);
    EXPECT_EQ(default_count(), 2u);
    [ZEB_T_Array set_growth_seed:16];
    [ZEB_T_Vector set_default_length:16];
}

TEST(ZEB_T_Storage, a_link_views_what_it_was_moved_to_last)
{
    ZEB_T_Array *const owner = array_of({0, 1, 2, 3, 4});
    ZEB_T_Array *const link =
        [[[ZEB_T_Array alloc] init_as_link_to_TT_word_vector:owner range:ZEB_Index_Range{1, 3}] autorelease];
    EXPECT_EQ(numbers_of(link), (Numbers{1, 2, 3}));
    [link relink_to_vector:owner range:ZEB_Index_Range{3, 4}];
    EXPECT_EQ(numbers_of(link), (Numbers{3, 4}));
    [link copy_settings_from:nil];
    [link copy_settings_from:(id) @"no collection"];
    EXPECT_EQ([link link_marker], 10000u);
    [link relink_to_vector:nil range:ZEB_Index_Range{1, 2}];
    EXPECT_EQ([link count], 0u);
    EXPECT_EQ([link TT_word_data], nullptr);
}

TEST(ZEB_T_Storage, what_32_bits_cannot_count_is_told_and_changes_nothing)
{
    const uint32_t most = 4294967295u;
    ZEB_T_Array *const array = array_of({0, 1, 2});
    Element *const data = [array TT_word_data];
    ZEB_T_Array *made = nil;
    const auto fails = [](const char *selector, const char *note, std::function<void()> work) {
        return Row{"Need to fix algorithm in selector: ", selector, "ZEB_T_Array", note, work};
    };
    const char *const allocate = "Runtime error in allocate macro";
    const char *const reallocate = "Runtime error in reallocate macro";
    expect_lines(
        {fails("set_length:", allocate, [&] { [array set_length:most]; }),
         fails("ensure_capacity_greater_than:", allocate, [&] { [array ensure_capacity_greater_than:most]; }),
         fails("extend_length_by:", reallocate, [&] { [array extend_length_by:most]; }),
         fails("ensure_room_for:", reallocate, [&] { [array ensure_room_for:most]; }),
         fails("set_TT_words:count:", allocate, [&] { [array set_TT_words:data count:most]; }),
         fails("append_TT_words:count:", reallocate, [&] { [array append_TT_words:data count:most]; }),
         fails("init_with_length:", allocate,
               [&] { made = [[[ZEB_T_Array alloc] init_with_length:most] autorelease]; })});
    EXPECT_TRUE([array TT_word_data] == data && [array capacity] == 16);
    EXPECT_EQ(numbers_of(array), (Numbers{0, 1, 2}));
    EXPECT_TRUE([made TT_word_data] == nullptr && [made count] == 0 && [made capacity] == 0);
    [made append_TT_word:samples()[0]];
    EXPECT_EQ(numbers_of(made), Numbers{0});
}

TEST(ZEB_T_Storage, what_is_left_to_subclasses_says_so)
{
    ZEB_T_Array *const array = array_of({0});
    ZEB_T_Vector *const vector = vector_of({});
    ZEB_T_Collection *const collection = [[[ZEB_T_Collection alloc] init] autorelease];
    const char *const implement = "Need to implement selector: ";
    const char *const need = "Need to implement";
    expect_lines(
        {{implement, "receive_from_stream:", "ZEB_T_Array", "Not implemented",
          [&] { [array receive_from_stream:nil]; }},
         {implement, "set_length:", "ZEB_T_Vector", need, [&] { [vector set_length:1]; }},
         {implement, "ensure_room_for:", "ZEB_T_Vector", need, [&] { [vector ensure_room_for:1]; }},
         {implement, "append_array:", "ZEB_T_Vector", need, [&] { [vector append_array:array]; }},
         {"Need to overload selector: ", "ZEB_T_element_at_index:", "ZEB_T_Collection",
          "ZEB_T_element_at_index: needs subclassing", [&] { [collection ZEB_T_element_at_index:0]; }}});
}

TEST(ZEB_T_Storage, storage_set_by_pointer_is_not_written_by_a_count)
{
    Element foreign[3] = {samples()[0], samples()[1], Element()};
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

TEST(ZEB_T_Storage, equal_arrays_have_equal_hashes_and_descriptions)
{
    ZEB_T_Array *const array = array_of({1, 2});
    for (ZEB_T_Vector *const same : {[[array copy] autorelease], (id)vector_of({1, 2})}) {
        EXPECT_TRUE([array isEqual:same] && [array hash] == [same hash]);
        EXPECT_TRUE([[array description] isEqualToString:[same description]]);
    }
    for (const id other : {(id)array_of({1, 3}), (id)nil, (id) @"x"})
        EXPECT_FALSE([array isEqual:other]);
    EXPECT_TRUE([array_of({}) isEqual:vector_of({})]);
}
