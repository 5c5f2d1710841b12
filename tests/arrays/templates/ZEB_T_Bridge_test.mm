/// TT_PHRASE as the platform's numbers and data, and back.
#include "tests/support/class_test.hpp"
#include "tests/support/memory.hpp"
#include "tests/support/samples.hpp"

#include <cmath>
#include <functional>

namespace
{

using Element = ZEB_T_Element;

/// A sample of everything, odd values included.
ZEB_T_Array *source()
{
    const std::vector<Element> all = all_samples<Element>();
    return [[[ZEB_T_Array alloc] init_as_copy_of_TT_words:all.data()
                                                    count:static_cast<uint32_t>(all.size())] autorelease];
}

/// Numbers that empty the array in which they are when their value is asked.
NSMutableArray *shared_numbers;

} // namespace

@interface ZEB_T_Emptying_Number : NSNumber
@end

@implementation ZEB_T_Emptying_Number
- (const char *)objCType
{
    [shared_numbers removeAllObjects];
    return "i";
}
- (long long)longLongValue
{
    return 5;
}
- (void)getValue:(void *)value
{
}
@end

TEST(ZEB_T_Bridge, numbers_come_back_exactly)
{
    ZEB_T_Array *const all = source(), *const back = [ZEB_T_Array array_with_capacity:0];
    NSArray *const numbers = [all NSArray_value];
    ASSERT_EQ([numbers count], [all count]);
    EXPECT_EQ([back set_from_NSArray:numbers], 1);
    for (uint32_t i = 0; i < [all count]; ++i) {
        const Element sent = [all TT_word_at_index:i], got = [back TT_word_at_index:i];
        // The platform may quieten a NaN.
        EXPECT_TRUE(are_identical(sent, got) || (sent != sent && got != got)) << i;
    }
    EXPECT_EQ([[[ZEB_T_Array array_with_capacity:0] NSArray_value] count], 0u);
    // More than are read in one go.
    ZEB_T_Array *const many = [[[ZEB_T_Array alloc] init_with_length:1000] autorelease];
    for (uint32_t i = 0; i < 1000; ++i)
        [many set_TT_word:static_cast<Element>(i % 251) at_index:i];
    EXPECT_EQ([back set_from_NSArray:[many NSArray_value]], 1);
    EXPECT_TRUE([back isEqual:many]);
    EXPECT_EQ([back set_from_NSArray:nil], 1);
    EXPECT_EQ([back count], 0u);
}

TEST(ZEB_T_Bridge, what_is_no_number_of_the_range_changes_nothing)
{
    ZEB_T_Array *const array = source(), *const before = [array duplicate];
    const bool is_real = std::is_floating_point_v<Element>;
    NSNumber *const five = [NSNumber numberWithInt:5], *const far = [NSNumber numberWithDouble:1e300];
    NSNumber *const half = [NSNumber numberWithDouble:0.5], *const yes = [NSNumber numberWithBool:YES];
    const struct {
        id given;
        bool is_stored;
    } rows[] = {
        {[NSArray arrayWithObjects:yes, five, [NSNumber numberWithDouble:7], nil], true},
        {[NSArray arrayWithObject:[NSDecimalNumber decimalNumberWithString:@"25"]], true},
        {[NSArray arrayWithObjects:five, half, nil], is_real},
        {[NSArray arrayWithObjects:five, [NSNumber numberWithDouble:NAN], nil], is_real},
        {[NSArray arrayWithObjects:five, far, nil], std::is_same_v<Element, double>},
        {[NSArray arrayWithObject:[NSNumber numberWithUnsignedLongLong:UINT64_MAX]], is_real},
        {[NSArray arrayWithObjects:five, [NSNull null], nil], false},
        {[NSArray arrayWithObjects:five, @"5", five, nil], false},
        {[NSArray arrayWithObject:[NSValue valueWithPointer:nullptr]], false},
        {@"5", false},
        {five, false},
    };
    for (const auto &row : rows) {
        ZEB_T_Array *const target = [array duplicate];
        const std::string lines = standard_error_of([&] {
            EXPECT_EQ([target set_from_NSArray:row.given], row.is_stored)
                << [[row.given description] UTF8String];
        });
        const std::string refused =
            fix_line("set_from_NSArray:", "ZEB_T_Array",
                     "Not an array of numbers that are in the range of the elements, no change made.");
        EXPECT_EQ(lines, row.is_stored ? "" : refused);
        EXPECT_EQ([target isEqual:before], !row.is_stored);
    }
}

TEST(ZEB_T_Bridge, numbers_are_those_of_the_call)
{
    shared_numbers = [NSMutableArray array];
    for (int i = 0; i < 300; ++i)
        [shared_numbers addObject:[[[ZEB_T_Emptying_Number alloc] init] autorelease]];
    ZEB_T_Array *const back = [ZEB_T_Array array_with_capacity:0];
    EXPECT_EQ([back set_from_NSArray:shared_numbers], 1);
    EXPECT_EQ([shared_numbers count], 0u);
    EXPECT_EQ([back count], 300u);
    EXPECT_EQ([back last_TT_word], Element(5));
}

TEST(ZEB_T_Bridge, data_is_copied_viewed_or_taken_over)
{
    ZEB_T_Array *const all = source(), *const back = [ZEB_T_Array array_with_capacity:0];
    const NSUInteger size = [all count] * sizeof(Element);
    NSData *const copied = [all NSData_value];
    EXPECT_TRUE([copied isEqual:[NSData dataWithBytes:[all TT_word_data] length:size]]);
    ZEB_T_Vector *const link = [ZEB_T_Array link_to_NSData:copied];
    EXPECT_TRUE([link TT_word_data] == [copied bytes] && [link isEqual:all] && [link link_marker] == 10000);
    EXPECT_TRUE([[ZEB_T_Vector link_to_NSData:nil] is_empty]);
    // At any address.
    NSMutableData *const shifted = [NSMutableData dataWithLength:1];
    [shifted appendData:copied];
    NSData *const odd = [NSData dataWithBytesNoCopy:static_cast<char *>([shifted mutableBytes]) + 1
                                             length:size
                                       freeWhenDone:NO];
    EXPECT_EQ([back set_from_NSData:odd], 1);
    EXPECT_TRUE([back isEqual:all]);
    // The array's own block.
    NSData *const own = [NSData dataWithBytesNoCopy:[back TT_word_data] length:size freeWhenDone:NO];
    EXPECT_EQ([back set_from_NSData:own], 1);
    EXPECT_TRUE([back isEqual:all]);
    const void *const block = [back TT_word_data];
    NSData *const taken = [back NSData_taking_block];
    EXPECT_TRUE([taken bytes] == block && [taken isEqual:copied]);
    // The allocator of these tests does not see what the platform frees.
    --support::memory.blocks;
    EXPECT_TRUE([back count] == 0 && [back capacity] == 0 && [back TT_word_data] == nullptr);
    [back append_TT_word:Element(1)];
    EXPECT_EQ([[[ZEB_T_Array array_with_capacity:9] NSData_taking_block] length], 0u);
    EXPECT_EQ([back set_from_NSData:nil], 1);
    EXPECT_EQ([back count], 0u);
}

TEST(ZEB_T_Bridge, what_is_no_data_of_elements_changes_nothing)
{
    ZEB_T_Array *const array = source(), *const before = [array duplicate];
    ZEB_T_Array *const link = [ZEB_T_Array link_to_TT_words:[array TT_word_data] count:2];
    const std::string not_viewed =
        fix_line("link_to_NSData:", "ZEB_T_Array",
                 "Not data of a whole number of elements, aligned as they are, no link made.");
    const std::string not_stored = fix_line("set_from_NSData:", "ZEB_T_Array",
                                            "Not data of a whole number of elements, no change made.");
    EXPECT_EQ(
        standard_error_of([=] { EXPECT_EQ([link NSData_taking_block], nil); }),
        fix_line("NSData_taking_block", "ZEB_T_Array", "Cannot hand over block through link, no data made."));
    NSData *const rest = [NSData dataWithBytes:"abcdefghijk" length:sizeof(Element) + 1];
    for (const id given : {static_cast<id>(rest), static_cast<id>(@"text")}) {
        if (given == rest && sizeof(Element) == 1)
            continue;
        EXPECT_EQ(standard_error_of([=] { EXPECT_EQ([ZEB_T_Array link_to_NSData:given], nil); }), not_viewed);
        EXPECT_EQ(standard_error_of([=] { EXPECT_EQ([array set_from_NSData:given], 0); }), not_stored);
    }
    alignas(Element) char room[sizeof(Element) + 1];
    NSData *const odd = [NSData dataWithBytesNoCopy:room + 1 length:sizeof(Element) freeWhenDone:NO];
    const std::string lines = standard_error_of([=] { [ZEB_T_Array link_to_NSData:odd]; });
    EXPECT_EQ(lines, sizeof(Element) == 1 ? "" : not_viewed);
    EXPECT_TRUE([array isEqual:before]);
    // A link becomes an owner, and what it viewed stays.
    EXPECT_EQ([link set_from_NSData:[NSData data]] + [link set_from_NSArray:[NSArray array]], 2);
    EXPECT_TRUE([link link_marker] == 0 && [array isEqual:before]);
}

TEST(ZEB_T_Bridge, without_memory_nothing_changes)
{
    ZEB_T_Array *const array = source(), *const before = [array duplicate];
    NSArray *const numbers =
        [[source() NSArray_value] arrayByAddingObjectsFromArray:[source() NSArray_value]];
    NSMutableData *const data = [NSMutableData dataWithLength:4096 * sizeof(Element)];
    const struct {
        const char *selector;
        std::function<bool()> is_done;
    } rows[] = {
        {"NSArray_value", [=] { return [array NSArray_value] != nil; }},
        {"set_from_NSArray:", [=] { return [array set_from_NSArray:numbers] == 1; }},
        {"set_from_NSData:", [=] { return [array set_from_NSData:data] == 1; }},
        {"NSData_taking_block", [=] { return [array NSData_taking_block] != nil; }},
    };
    for (const auto &row : rows) {
        support::memory.is_out = true;
        const std::string lines = standard_error_of([&] { EXPECT_FALSE(row.is_done()); });
        support::memory.is_out = false;
        EXPECT_EQ(lines, fix_line(row.selector, "ZEB_T_Array", "Runtime error in allocate macro"));
        EXPECT_TRUE([array isEqual:before]);
    }
}
