/// Every operation of object arrays, in every ownership mode, with the references counted.
#import <Korvane_ZEB/Korvane_ZEB.h>
#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace
{

/// A few objects, which the test itself keeps alive, and an array that is put through random operations.
class Ownership_Walk
{
public:
    explicit Ownership_Walk(uint32_t mode) : mode(mode), array([[ZEB_Object_Array alloc] init])
    {
        [array set_ownership_mode:mode];
        for (id &object : objects)
            object = [[NSObject alloc] init];
    }

    ~Ownership_Walk()
    {
        EXPECT_GT(greatest_count, 20u);
        [array release];
        for (id object : objects) {
            EXPECT_EQ([object retainCount], 1u);
            [object release];
        }
    }

    void step()
    {
        NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
        const uint32_t at = [array count] == 0 ? 0 : random() % [array count];
        [array count] > 40 ? shrink(random() % 4) : change(random() % 37, at);
        [pool drain];
        greatest_count = std::max(greatest_count, [array count]);
        expect_exact_counts();
    }

private:
    id some() { return objects[random() % 6]; }

    /// An element as this mode wants it: with a reference to be taken over in mode 1.
    id given(id object) { return mode == ZEB_OWNERSHIP_ADOPTS ? [object retain] : object; }

    /// Another array of some objects, which retains its own.
    ZEB_Object_Array *others(uint32_t count)
    {
        ZEB_Object_Array *const made = [ZEB_Object_Array array_with_capacity:count];
        for (uint32_t i = 0; i < count; ++i)
            [made append_object:some()];
        return made;
    }

    ZEB_UInt_Array *some_indexes()
    {
        ZEB_UInt_Array *const made = [ZEB_UInt_Array array_with_capacity:0];
        for (uint32_t i = 0; i < [array count]; ++i)
            [made append_uint:static_cast<uint32_t>(random() % [array count])];
        return made;
    }

    bool has(id object) { return [array index_of_object:object] != ZEB_NOT_FOUND; }

    void shrink(unsigned way)
    {
        switch (way) {
        case 0:
            return [array clear];
        case 1:
            return [array set_count:5];
        case 2:
            return decode_nothing();
        default:
            return [array decrease_count:30];
        }
    }

    void decode_nothing()
    {
        char count[4] = {};
        [array ZEB_decode_binary_contents:[ZEB_String link_to_chars:count count:4] needs_swap:0];
        EXPECT_EQ([array count], 0u);
    }

    void put(unsigned way, uint32_t at)
    {
        id run[] = {some(), some()};
        const bool is_empty = [array is_empty];
        switch (way) {
        case 0:
            return [array append_object:given(some())];
        case 1:
            return [array insert_object:given(some()) at_index:at];
        case 2:
            return [array append_objects:(given(run[0]), given(run[1]), run) count:2];
        case 3:
            return [array copy_object:given(some())];
        case 4:
            return is_empty ? void() : [array set_object:given(some()) at_index:at];
        case 5:
            return is_empty ? void() : [array set_object:given([array object_at_index:at]) at_index:at];
        case 6:
            return is_empty ? void() : [array fill_with_object:given(some())];
        case 7:
            return is_empty ? void()
                            : [array replace_range:ZEB_Index_Range{at, at + 2} with_object:given(some())];
        case 8:
            return has(run[0]) ? void([array replace_every_object:run[0] with:given(run[1])]) : void();
        case 9:
            return [array set_objects:(given(run[0]), given(run[1]), run) count:2];
        case 10:
            return [array copy_objects:(given(run[0]), given(run[1]), run) count:2 capacity:7];
        case 11:
            return is_empty ? void() : [array set_object:given(some()) at_index_from_end:at];
        case 12:
            return is_empty ? void()
                            : [array fill_range:ZEB_Index_Range{at, at + 2} with_object:given(some())];
        case 13:
            return is_empty ? void()
                            : [array replace_element_at_index:at
                                                 with_objects:(given(run[0]), given(run[1]), run)count:2];
        default:
            return insert_ordered(run[0]);
        }
    }

    /// The reference is the array's only when the object goes in.
    void insert_ordered(id object)
    {
        const uint32_t before = [array count];
        [array ordered_insert_object:given(object) inserts:1];
        if (mode == ZEB_OWNERSHIP_ADOPTS && [array count] == before)
            [object release];
    }

    /// What a link of the same mode drops and stores is counted for its owner.
    void change_through_link(unsigned way, uint32_t at)
    {
        if ([array is_empty])
            return;
        ZEB_Object_Array *const link = [[[ZEB_Object_Array alloc]
            init_as_link_to_object_vector:array
                                    range:ZEB_Index_Range{at, [array count] - 1}] autorelease];
        [link set_ownership_mode:mode];
        if (way == 0)
            [link remove_every_object:some()];
        else if (way == 1)
            [link remove_element_at_index:0];
        else
            [link fill_with_object:given(some())];
    }

    void rearrange(unsigned way, uint32_t at)
    {
        if (way == 0)
            [array sort_with_permutation:some_indexes()];
        else if (way == 1)
            [array move_element_from_index:at to_index:0];
        else
            [array transpose_rows:2 columns:[array count] / 2];
    }

    void take_over(unsigned way, uint32_t at)
    {
        switch (way) {
        case 0:
            return [array append_array:others(3)];
        case 1:
            return [array insert_array:array at_index:at];
        case 2:
            return [array replace_element_at_index:at with_array:others(random() % 3)];
        case 3:
            return [array set_contents_of_array:others(random() % 5)];
        case 4:
            return [array copy_vector:others(4) capacity:9];
        default:
            [array replace_occurrences:others(1) replacement:others(random() % 3)];
        }
    }

    void change(unsigned way, uint32_t at)
    {
        if (way < 15)
            return put(way, at);
        if (way < 21)
            return take_over(way - 15, at);
        if (way < 24)
            return change_through_link(way - 21, at);
        if (way < 27)
            return rearrange(way - 24, at);
        switch (way) {
        case 27:
            return [array remove_every_object:some()];
        case 28:
            return [array remove_range:ZEB_Index_Range{at, at + 1}];
        case 29:
            return [array remove_element_at_index:at];
        case 30:
            return [array apply_permutation:some_indexes()];
        case 31:
            return [array apply_inverse_permutation:some_indexes()];
        case 32:
            return [array set_length:random() % 12];
        case 33:
            return [array extend_length_by:2];
        case 34:
            [array sort];
            return [array reverse];
        case 35:
            return [array trim_allocation];
        default:
            copy_it();
        }
    }

    void copy_it()
    {
        ZEB_Object_Array *const copied = [[array copy] autorelease];
        EXPECT_EQ([copied ownership_mode], mode);
        EXPECT_TRUE([copied isEqual:array] && [[array duplicate] isEqual:array]);
        [copied append_array:array];
    }

    void expect_exact_counts()
    {
        for (id object : objects) {
            const auto elements = zeb::elements(array);
            const auto held = std::count(elements.begin(), elements.end(), object);
            ASSERT_EQ([object retainCount], 1u + (mode == ZEB_OWNERSHIP_BORROWS ? 0 : held));
        }
    }

    uint32_t mode;
    uint32_t greatest_count = 0;
    ZEB_Object_Array *array;
    id objects[6];
    std::mt19937 random{42};
};

} // namespace

TEST(Ownership, counts_every_reference_in_every_mode)
{
    for (const uint32_t mode : {ZEB_OWNERSHIP_BORROWS, ZEB_OWNERSHIP_ADOPTS, ZEB_OWNERSHIP_RETAINS}) {
        SCOPED_TRACE(mode);
        Ownership_Walk walk(mode);
        for (int i = 0; i < 4000 && !testing::Test::HasFatalFailure(); ++i)
            walk.step();
    }
}

TEST(Ownership, raw_blocks_are_borrowed)
{
    const id object = [[NSObject alloc] init];
    id run[] = {object, object};
    ZEB_Object_Array *const copied = [[ZEB_Object_Array alloc] init_as_copy_of_objects:run count:2];
    ZEB_Object_Array *const link = [[ZEB_Object_Array alloc] init_as_link_to_objects:run count:2];
    EXPECT_EQ(
        [copied ownership_mode] + [link ownership_mode], uint32_t { ZEB_OWNERSHIP_BORROWS });
    EXPECT_EQ([[[[ZEB_Object_Vector alloc] init] autorelease] ownership_mode],
              uint32_t{ZEB_OWNERSHIP_RETAINS});
    EXPECT_EQ([object retainCount], 1u);
    [copied release];
    [link release];
    EXPECT_EQ([object retainCount], 1u);
    [object release];
}
