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
        [array count] > 40 ? [array decrease_count:30] : change(random() % 25, at);
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
        default:
            if (has(run[0]))
                [array replace_every_object:run[0] with:given(run[1])];
        }
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
        if (way < 9)
            return put(way, at);
        if (way < 15)
            return take_over(way - 9, at);
        switch (way) {
        case 15:
            return [array remove_every_object:some()];
        case 16:
            return [array remove_range:ZEB_Index_Range{at, at + 1}];
        case 17:
            return [array remove_element_at_index:at];
        case 18:
            return [array apply_permutation:some_indexes()];
        case 19:
            return [array apply_inverse_permutation:some_indexes()];
        case 20:
            return [array set_length:random() % 12];
        case 21:
            return [array extend_length_by:2];
        case 22:
            [array sort];
            return [array reverse];
        case 23:
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
