#import <Korvane_ZEB/Korvane_ZEB.h>
#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"
#include "tests/support/samples.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

using support::are_same;
using support::fix_line;
using support::standard_error_of;

namespace
{

using Element = ZEB_T_Element;
using Numbers = std::vector<uint32_t>;

/// Samples that stay the same objects, so that references can be told apart; they ascend by their number.
const std::vector<Element> &samples()
{
    // Never ended: what it holds is to be reachable when leaks are looked for.
    static const auto *const made = new std::vector<Element>([] {
        std::vector<Element> all;
        for (uint32_t i = 0; i < 10; ++i)
            all.push_back(support::Sample<Element>::at(i));
        support::keep(all);
        std::sort(all.begin(), all.end(), support::precedes<Element>);
        return all;
    }());
    return *made;
}

ZEB_T_Array *array_of(const Numbers &numbers)
{
    ZEB_T_Array *const made = [ZEB_T_Array array_with_capacity:0];
    for (const uint32_t i : numbers)
        [made append_TT_word:samples()[i]];
    return made;
}

ZEB_UInt_Array *indexes(const Numbers &numbers)
{
    return [[[ZEB_UInt_Array alloc] init_as_copy_of_uints:numbers.data()
                                                    count:static_cast<uint32_t>(numbers.size())] autorelease];
}

Numbers numbers_of(ZEB_T_Vector *vector)
{
    Numbers found;
    for (const Element &element : zeb::elements(vector))
        found.push_back(static_cast<uint32_t>(std::find_if(samples().begin(), samples().end(),
                                                           [&](Element s) { return are_same(s, element); }) -
                                              samples().begin()));
    return found;
}

ZEB_Comparison compare(Element const *key, Element const *element)
{
    if (support::precedes<Element>(*key, *element))
        return ZEB_COMPARED_LESS;
    return support::precedes<Element>(*element, *key) ? ZEB_COMPARED_GREATER : ZEB_COMPARED_EQUAL;
}

ZEB_Comparison answer_nothing(Element const *, Element const *) { return 0; }

} // namespace

TEST(ZEB_T_Algorithms, searches_keep_their_end_rule)
{
    ZEB_T_Array *const array = array_of({1, 2, 3, 2});
    EXPECT_EQ([array index_of_TT_word:samples()[2]], 1u);
    EXPECT_EQ([array last_index_of_TT_word:samples()[2]], 3u);
    EXPECT_EQ([array index_of_TT_word:samples()[9]], ZEB_NOT_FOUND);
    const Element pair[] = {samples()[1], samples()[2]};
    EXPECT_EQ([array index_of_TT_words:pair count:2], 0u);
    const Element end[] = {samples()[3], samples()[2]};
    EXPECT_EQ([array index_of_TT_words:end count:2], ZEB_NOT_FOUND);
}

TEST(ZEB_T_Algorithms, ordered_operations_find_and_insert)
{
    ZEB_T_Array *const array = array_of({1, 3, 5});
    EXPECT_EQ([array ordered_index_of_TT_word:samples()[3]], 1u);
    EXPECT_EQ([array ordered_index_of_TT_word:samples()[4] comparison:compare], ZEB_NOT_FOUND);
    EXPECT_EQ([array nearest_ordered_index_of_TT_word:samples()[9]], 2u);
    EXPECT_EQ([array nearest_ordered_index_of_TT_word:samples()[0] comparison:compare], 0u);
    EXPECT_EQ([array ordered_insert_TT_word:samples()[3] inserts:1], 1u);
    EXPECT_EQ([array ordered_insert_TT_word:samples()[4] comparison:compare inserts:0], ZEB_NOT_FOUND);
    EXPECT_EQ([array ordered_insert_TT_word:samples()[4] comparison:compare inserts:1], 2u);
    EXPECT_EQ(numbers_of(array), (Numbers{1, 3, 4, 5}));
    EXPECT_EQ([array_of({}) ordered_insert_TT_word:samples()[0] inserts:1], 0u);

    ZEB_T_Array *const one = array_of({5});
    uint32_t answer = 9;
    EXPECT_EQ(standard_error_of(
                  [&] { answer = [one ordered_index_of_TT_word:samples()[5] comparison:answer_nothing]; }),
              fix_line("ordered_index_of_TT_word:comparison:", "ZEB_T_Array",
                       "Warning: Ordered find stopped on unknown comparison."));
    EXPECT_EQ(answer, ZEB_NOT_FOUND);
    EXPECT_EQ(standard_error_of([&] {
                  answer = [one ordered_insert_TT_word:samples()[5] comparison:answer_nothing inserts:1];
              }),
              fix_line("ordered_insert_TT_word:comparison:inserts:", "ZEB_T_Array",
                       "Warning: Ordered insert stopped on unknown comparison."));
    EXPECT_EQ(answer, 0u);
    ZEB_T_Array *const link = [ZEB_T_Array link_to_TT_words:[array TT_word_data] count:4];
    EXPECT_EQ([link ordered_insert_TT_word:samples()[3] inserts:1], 1u);
    EXPECT_EQ(standard_error_of([&] { answer = [link ordered_insert_TT_word:samples()[9] inserts:1]; }),
              fix_line("ordered_insert_TT_word:inserts:", "ZEB_T_Array",
                       "Cannot insert element through link, no insertion made."));
    EXPECT_EQ(answer, ZEB_NOT_FOUND);
}

TEST(ZEB_T_Algorithms, extremes_are_the_first_of_equals_and_nothing_of_nothing)
{
    ZEB_T_Array *const array = array_of({4, 1, 7, 1});
    EXPECT_TRUE(are_same([array minimum_TT_word], samples()[1]));
    EXPECT_TRUE(are_same([array maximum_TT_word], samples()[7]));
    Element minimum, maximum;
    [array get_minimum_TT_word:&minimum maximum:&maximum];
    EXPECT_TRUE(are_same(minimum, samples()[1]) && are_same(maximum, samples()[7]));
    EXPECT_TRUE([array_of({}) minimum_TT_word] == Element());
}

TEST(ZEB_T_Algorithms, elements_are_filled_replaced_and_removed)
{
    ZEB_T_Array *const array = array_of({1, 2, 1, 3, 1, 4});
    EXPECT_EQ([array replace_every_TT_word:samples()[1] with:samples()[5]], 3u);
    EXPECT_EQ(numbers_of(array), (Numbers{5, 2, 5, 3, 5, 4}));
    // The first element itself tells which ones go.
    EXPECT_EQ([array replace_every_TT_word:[array TT_word_at_index:0] with:samples()[6]], 3u);
    [array remove_every_TT_word:samples()[6]];
    EXPECT_EQ(numbers_of(array), (Numbers{2, 3, 4}));
    [array fill_range:ZEB_Index_Range{1, 9} with_TT_word:samples()[8]];
    [array fill_range:ZEB_Index_Range{2, 1} with_TT_word:samples()[0]];
    EXPECT_EQ(numbers_of(array), (Numbers{2, 8, 8}));
    [array fill_with_TT_word:[array TT_word_at_index:0]];
    EXPECT_EQ(numbers_of(array), (Numbers{2, 2, 2}));
    [array remove_element_at_index:1];
    [array remove_element_at_index:7];
    EXPECT_EQ([array count], 2u);
    // What was removed makes room for what comes.
    [array append_array:array_of({7, 8, 9})];
    EXPECT_EQ(numbers_of(array), (Numbers{2, 2, 7, 8, 9}));
}

TEST(ZEB_T_Algorithms, ranges_are_removed_and_replaced_and_must_not_be_reversed)
{
    ZEB_T_Array *const array = array_of({0, 1, 2, 3, 4, 5});
    [array remove_range:ZEB_Index_Range{1, 2}];
    EXPECT_EQ(numbers_of(array), (Numbers{0, 3, 4, 5}));
    [array replace_range:ZEB_Index_Range{1, 2} with_TT_word:samples()[8]];
    EXPECT_EQ(numbers_of(array), (Numbers{0, 8, 5}));
    [array remove_range:ZEB_Index_Range{2, 4294967295u}];
    EXPECT_EQ(numbers_of(array), (Numbers{0, 8}));
    const char *const reversed = "End index is less than start index in removal.";
    EXPECT_EQ(standard_error_of([&] {
                  [array remove_range:ZEB_Index_Range{2, 1}];
              }),
              fix_line("remove_range:", "ZEB_T_Array", reversed));
    EXPECT_EQ(standard_error_of([&] {
                  [array replace_range:ZEB_Index_Range{1, 0} with_TT_word:samples()[1]];
              }),
              fix_line("replace_range:with_TT_word:", "ZEB_T_Array", reversed));
    EXPECT_EQ(numbers_of(array), (Numbers{0, 8}));
}

TEST(ZEB_T_Algorithms, order_is_changed_as_told)
{
    ZEB_T_Array *const array = array_of({0, 1, 2, 3});
    [array reverse];
    EXPECT_EQ(numbers_of(array), (Numbers{3, 1, 2, 0}));
    [array move_element_from_index:0 to_index:2];
    EXPECT_EQ(numbers_of(array), (Numbers{1, 2, 3, 0}));
    [array swap_element_at_index:0 with_index:3];
    EXPECT_EQ(numbers_of(array), (Numbers{0, 2, 3, 1}));
    [array transpose_rows:2 columns:2];
    EXPECT_EQ(numbers_of(array), (Numbers{0, 3, 2, 1}));
    [array apply_permutation:indexes({3, 3, 0, 0})];
    EXPECT_EQ(numbers_of(array), (Numbers{1, 1, 0, 0}));
    ZEB_T_Array *const other = array_of({5, 6, 7});
    [other apply_inverse_permutation:indexes({2, 0, 1})];
    EXPECT_EQ(numbers_of(other), (Numbers{6, 7, 5}));
    EXPECT_EQ(standard_error_of([&] {
                  [other apply_permutation:indexes({0, 3, 1})];
              }),
              fix_line("apply_permutation:", "ZEB_T_Array",
                       "Permutation names an element outside the array, no change made."));
    EXPECT_EQ(numbers_of(other), (Numbers{6, 7, 5}));
}

TEST(ZEB_T_Algorithms, sorting_ascends_and_tells_where_elements_went)
{
    std::mt19937 random(5);
    for (uint32_t n = 0; n < 40; ++n) {
        Numbers numbers(n);
        for (uint32_t &number : numbers)
            number = random() % 10;
        Numbers sorted = numbers;
        std::sort(sorted.begin(), sorted.end());
        for (const int way : {0, 1, 2, 3}) {
            ZEB_T_Array *const array = array_of(numbers);
            Numbers places(n);
            std::iota(places.begin(), places.end(), 0);
            ZEB_UInt_Array *const went = indexes(places);
            if (way == 0)
                [array sort];
            else if (way == 1)
                [array sort_TT_words_with_comparison:compare];
            else if (way == 2)
                [array sort_with_permutation:went];
            else
                [array sort_TT_words_with_comparison:compare permutation:went];
            EXPECT_EQ(numbers_of(array), sorted);
            if (way >= 2) {
                ZEB_T_Array *const again = array_of(numbers);
                [again apply_permutation:went];
                EXPECT_EQ(numbers_of(again), sorted);
            }
        }
    }
}

TEST(ZEB_T_Algorithms, occurrences_are_replaced_by_shorter_equal_and_longer_runs)
{
    const struct {
        Numbers replacement, expected;
    } rows[] = {
        {{}, {0, 3, 1}},
        {{9}, {9, 0, 9, 3, 1, 9}},
        {{9, 8}, {9, 8, 0, 9, 8, 3, 1, 9, 8}},
        {{7, 8, 9}, {7, 8, 9, 0, 7, 8, 9, 3, 1, 7, 8, 9}},
    };
    for (const auto &row : rows) {
        ZEB_T_Array *const array = array_of({1, 2, 0, 1, 2, 3, 1, 1, 2});
        EXPECT_EQ([array replace_occurrences:array_of({1, 2}) replacement:array_of(row.replacement)], 3u);
        EXPECT_EQ(numbers_of(array), row.expected);
    }
    ZEB_T_Array *const array = array_of({1, 2});
    EXPECT_EQ([array replace_occurrences:array replacement:array_of({3, 4, 5})], 1u);
    EXPECT_EQ(numbers_of(array), (Numbers{3, 4, 5}));
    EXPECT_EQ([array replace_occurrences:array_of({}) replacement:array], 0u);
    ZEB_T_Array *const link = [ZEB_T_Array link_to_TT_words:[array TT_word_data] count:3];
    uint32_t answer = 9;
    EXPECT_EQ(standard_error_of([&] { answer = [link replace_occurrences:array_of({}) replacement:array]; }),
              fix_line("replace_occurrences:replacement:", "ZEB_T_Array",
                       "Can not replace occurences through a link"));
    EXPECT_EQ(answer, 0u);
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
