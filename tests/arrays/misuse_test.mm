/// What a caller can do wrong, or in an odd way, with one family or with two.

#include "tests/support/class_test.hpp"
#include "tests/support/samples.hpp"

namespace
{

using Indexes = std::vector<uint32_t>;

Indexes elements_of(ZEB_UInt_Vector *vector)
{
    return {[vector uint_data], [vector uint_data] + [vector count]};
}

} // namespace

TEST(Permutation, may_be_the_array_itself_or_a_link_onto_it)
{
    ZEB_UInt_Array *array = support::indexes_of({2, 0, 3, 1});
    [array apply_permutation:array];
    EXPECT_EQ(elements_of(array), (Indexes{3, 2, 1, 0}));
    array = support::indexes_of({2, 0, 3, 1});
    [array apply_inverse_permutation:array];
    EXPECT_EQ(elements_of(array), (Indexes{0, 1, 2, 3}));
    array = support::indexes_of({5, 4, 9});
    [array sort_with_permutation:array];
    EXPECT_EQ(elements_of(array), (Indexes{4, 5, 9}));
    // An entry is overwritten by 5, which names no element, before its turn comes.
    array = support::indexes_of({5, 2, 0, 1});
    ZEB_UInt_Array *const link =
        [[[ZEB_UInt_Array alloc] init_as_link_to_uint_vector:array range:ZEB_Index_Range{1, 3}] autorelease];
    [array apply_inverse_permutation:link];
    EXPECT_EQ(elements_of(array), (Indexes{2, 0, 5, 1}));
}

TEST(Ownership, of_a_link_is_the_mode_of_what_it_views_and_none_of_raw_memory)
{
    ZEB_Object_Array *const array = [[[ZEB_Object_Array alloc] init] autorelease];
    const ZEB_Index_Range first{0, 0};
    for (const uint32_t mode : {ZEB_OWNERSHIP_BORROWS, ZEB_OWNERSHIP_ADOPTS, ZEB_OWNERSHIP_RETAINS}) {
        [array set_ownership_mode:mode];
        ZEB_Object_Array *const link =
            [[[ZEB_Object_Array alloc] init_as_link_to_object_vector:array range:first] autorelease];
        EXPECT_EQ([link ownership_mode], mode);
        [link relink_to_objects:nullptr count:0];
        EXPECT_EQ([link ownership_mode], static_cast<uint32_t>(ZEB_OWNERSHIP_BORROWS));
        [link relink_to_vector:array range:first];
        EXPECT_EQ([link ownership_mode], mode);
        // What has no mode gives none.
        [array copy_settings_from:support::indexes_of({1, 2})];
        EXPECT_EQ([array ownership_mode], mode);
    }
}

TEST(Capacity, reaches_to_the_last_of_32_bits)
{
    // Room that is not written takes no memory.
    ZEB_Byte_Array *const bytes = [[[ZEB_Byte_Array alloc] init] autorelease];
    EXPECT_EQ(support::standard_error_of([&] { [bytes ensure_capacity_greater_than:4294967294u]; }), "");
    EXPECT_EQ([bytes capacity], 4294967295u);
    EXPECT_EQ(support::standard_error_of([&] { [bytes ensure_capacity_greater_than:4294967295u]; }),
              support::fix_line("ensure_capacity_greater_than:", "ZEB_Byte_Array",
                                "Runtime error in allocate macro"));
}

TEST(Decimation, refuses_what_makes_no_columns)
{
    double numbers[] = {1, 2, 3};
    ZEB_Double_Vector *const three = [ZEB_Double_Vector link_to_doubles:numbers count:3];
    ZEB_Double_Vector *const two = [ZEB_Double_Vector link_to_doubles:numbers count:2];
    ZEB_Chart_Column columns[2] = {{7, 7, 7, 7, 7}, {7, 7, 7, 7, 7}};
    for (const auto &[positions, values] : {std::pair(three, two), {nil, three}, {three, nil}, {nil, nil}})
        EXPECT_EQ(ZC_decimate(positions, values, 1, 3, columns, 2), 0);
    const double bounds[][2] = {{1, 1},         {3, 1},        {NAN, 3},        {1, NAN},
                                {-HUGE_VAL, 3}, {1, HUGE_VAL}, {-1e308, 1e308}, {0, 5e-324}};
    for (const auto &[start, end] : bounds)
        EXPECT_EQ(ZC_decimate(three, three, start, end, columns, 2), 0) << start << ' ' << end;
    EXPECT_EQ(ZC_decimate(three, three, 1, 3, columns, 0) + ZC_decimate(three, three, 1, 3, NULL, 2), 0);
    EXPECT_EQ(columns[0].count, 7u);
    EXPECT_EQ(ZC_decimate(three, three, 1, 3, columns, 2), 1);
    EXPECT_EQ(columns[1].highest, 3);
}
