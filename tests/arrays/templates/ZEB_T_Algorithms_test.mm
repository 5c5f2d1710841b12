#include "tests/arrays/ZEB_T_Samples.hpp"
#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"

#include <gtest/gtest.h>

#include <string>

using support::fix_line;
using support::standard_error_of;

namespace
{

ZEB_Comparison answer_nothing(Element const *, Element const *) { return 0; }

} // namespace

TEST(ZEB_T_Algorithms, unknown_answers_and_refused_insertions_are_told)
{
    ZEB_T_Array *const one = array_of({5});
    const auto warning = [](const char *selector, const char *operation) {
        return fix_line(selector, "ZEB_T_Array",
                        std::string("Warning: Ordered ") + operation + " stopped on unknown comparison.");
    };
    EXPECT_EQ(
        standard_error_of([&] { [one ordered_index_of_TT_word:samples()[5] comparison:answer_nothing]; }),
        warning("ordered_index_of_TT_word:comparison:", "find"));
    EXPECT_EQ(standard_error_of(
                  [&] { [one nearest_ordered_index_of_TT_word:samples()[5] comparison:answer_nothing]; }),
              warning("nearest_ordered_index_of_TT_word:comparison:", "find"));
    EXPECT_EQ(standard_error_of(
                  [&] { [one ordered_insert_TT_word:samples()[5] comparison:answer_nothing inserts:1]; }),
              warning("ordered_insert_TT_word:comparison:inserts:", "insert"));
    ZEB_T_Array *const link = [ZEB_T_Array link_to_TT_words:[one TT_word_data] count:1];
    EXPECT_EQ(standard_error_of([&] { [link ordered_insert_TT_word:samples()[9] inserts:1]; }),
              fix_line("ordered_insert_TT_word:inserts:", "ZEB_T_Array",
                       "Cannot insert element through link, no insertion made."));
    EXPECT_EQ(standard_error_of([&] { [link replace_occurrences:array_of({}) replacement:one]; }),
              fix_line("replace_occurrences:replacement:", "ZEB_T_Array",
                       "Can not replace occurences through a link"));
}

TEST(ZEB_T_Algorithms, reversed_ranges_and_foreign_permutations_are_told)
{
    ZEB_T_Array *const array = array_of({0, 1, 2});
    const char *const reversed = "End index is less than start index in removal.";
    EXPECT_EQ(standard_error_of([&] {
                  [array remove_range:ZEB_Index_Range{2, 1}];
              }),
              fix_line("remove_range:", "ZEB_T_Array", reversed));
    EXPECT_EQ(standard_error_of([&] {
                  [array replace_range:ZEB_Index_Range{1, 0} with_TT_word:samples()[1]];
              }),
              fix_line("replace_range:with_TT_word:", "ZEB_T_Array", reversed));
    EXPECT_EQ(standard_error_of([&] {
                  [array apply_permutation:indexes_of({0, 3, 1})];
              }),
              fix_line("apply_permutation:", "ZEB_T_Array",
                       "Permutation names an element outside the array, no change made."));
    EXPECT_EQ(numbers_of(array), (Numbers{0, 1, 2}));
}

TEST(ZEB_T_Algorithms, what_is_given_may_be_the_array_itself)
{
    ZEB_T_Array *const array = array_of({1, 2, 1, 3});
    // The first element itself tells which ones go.
    EXPECT_EQ([array replace_every_TT_word:[array TT_word_at_index:0] with:samples()[6]], 2u);
    EXPECT_EQ(numbers_of(array), (Numbers{6, 2, 6, 3}));
    [array remove_every_TT_word:[array TT_word_at_index:0]];
    EXPECT_EQ(numbers_of(array), (Numbers{2, 3}));
    EXPECT_EQ([array replace_occurrences:array replacement:array_of({3, 4, 5})], 1u);
    EXPECT_EQ([array replace_occurrences:array_of({4}) replacement:array], 1u);
    EXPECT_EQ(numbers_of(array), (Numbers{3, 3, 4, 5, 5}));
    [array fill_with_TT_word:[array TT_word_at_index:3]];
    EXPECT_EQ(numbers_of(array), (Numbers{5, 5, 5, 5, 5}));
    [array remove_range:ZEB_Index_Range{1, 4294967295u}];
    // What was removed makes room for what comes.
    [array append_array:array_of({7, 8, 9})];
    EXPECT_EQ(numbers_of(array), (Numbers{5, 7, 8, 9}));
}

TEST(ZEB_T_Algorithms, equal_arrays_have_equal_hashes_and_descriptions)
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
