/// What a caller can do wrong, or in an odd way, with one family or with two.
#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"
#include "tests/support/samples.hpp"

#import <objc/runtime.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <tuple>
#include <vector>

namespace
{

std::vector<uint32_t> elements_of(ZEB_UInt_Vector *vector)
{
    return {[vector uint_data], [vector uint_data] + [vector count]};
}

using Indexes = std::vector<uint32_t>;

} // namespace

TEST(Permutation, may_be_the_array_itself_or_a_link_onto_it)
{
    const Indexes order = {2, 0, 3, 1};
    ZEB_UInt_Array *array = support::indexes_of(order);
    [array apply_permutation:array];
    EXPECT_EQ(elements_of(array), (Indexes{3, 2, 1, 0}));
    array = support::indexes_of(order);
    [array apply_inverse_permutation:array];
    EXPECT_EQ(elements_of(array), (Indexes{0, 1, 2, 3}));

    // An entry is overwritten by 5, which names no element, before its turn comes.
    array = support::indexes_of({5, 2, 0, 1});
    ZEB_UInt_Array *const link =
        [[[ZEB_UInt_Array alloc] init_as_link_to_uint_vector:array range:ZEB_Index_Range{1, 3}] autorelease];
    [array apply_inverse_permutation:link];
    EXPECT_EQ(elements_of(array), (Indexes{2, 0, 5, 1}));

    array = support::indexes_of({5, 4, 9});
    [array sort_with_permutation:array];
    EXPECT_EQ(elements_of(array), (Indexes{4, 5, 9}));
}

TEST(Ownership, a_link_by_range_takes_the_mode_of_what_it_views_and_a_raw_link_none)
{
    NSObject *const first = [[NSObject alloc] init];
    NSObject *const second = [[NSObject alloc] init];
    ZEB_Object_Array *const array = [[[ZEB_Object_Array alloc] init] autorelease];
    for (const uint32_t mode : {ZEB_OWNERSHIP_BORROWS, ZEB_OWNERSHIP_ADOPTS, ZEB_OWNERSHIP_RETAINS}) {
        [array clear];
        [array set_ownership_mode:mode];
        ZEB_Object_Array *const made =
            [[[ZEB_Object_Array alloc] init_as_link_to_object_vector:array
                                                               range:ZEB_Index_Range{0, 0}] autorelease];
        EXPECT_EQ([made ownership_mode], mode);
        [made relink_to_objects:nullptr count:0];
        EXPECT_EQ([made ownership_mode], uint32_t { ZEB_OWNERSHIP_BORROWS });
        [made relink_to_vector:array range:ZEB_Index_Range{0, 0}];
        EXPECT_EQ([made ownership_mode], mode);
    }
    [array set_ownership_mode:ZEB_OWNERSHIP_BORROWS];
    [array append_object:first];
    ZEB_Object_Array *const link =
        [[[ZEB_Object_Array alloc] init_as_link_to_object_vector:array
                                                           range:ZEB_Index_Range{0, 0}] autorelease];
    [link set_object:second at_index:0];
    EXPECT_EQ([first retainCount], 1u);
    EXPECT_EQ([second retainCount], 1u);
    [array copy_settings_from:support::indexes_of({1, 2})];
    EXPECT_EQ([array ownership_mode], uint32_t { ZEB_OWNERSHIP_BORROWS });
    [first release];
    [second release];
}

TEST(Characters, are_signed_bytes)
{
    ZEB_String *const text = [[[ZEB_String alloc] init_as_copy_of_chars:"a\xC3z\x7F\xFF\x80"
                                                                  count:6] autorelease];
    EXPECT_EQ([text minimum_char], '\x80');
    EXPECT_EQ([text maximum_char], '\x7F');
    [text sort];
    EXPECT_EQ(std::string([text char_data], [text count]), "\x80\xC3\xFF"
                                                           "az\x7F");
    EXPECT_EQ([text ordered_index_of_char:'\xC3'], 1u);
    EXPECT_EQ(support::standard_output_of([&] {
                  ZEB_Stream *const stream = [[[ZEB_Stream alloc] init] autorelease];
                  [stream set_char_format:"%d"];
                  [text send_to_stream:stream];
              }),
              "{-128, -61, -1, 97, 122, 127}");
    // A short one is sorted by another way than a long one.
    ZEB_String *const many = [[[ZEB_String alloc] init_with_length:4096] autorelease];
    [many fill_with_char:'a'];
    [many set_char:'\xC3' at_index:4095];
    [many sort];
    EXPECT_EQ([many char_at_index:0], '\xC3');
}

namespace
{

int makes_until_failure;

id failing_alloc(Class named, SEL)
{
    if (makes_until_failure-- <= 0)
        [NSException raise:NSMallocException format:@"no memory"];
    return NSAllocateObject(named, 0, NULL);
}

/// While it lives, the class cannot make more than so many instances.
class Scarce
{
public:
    Scarce(Class named, int instances) : metaclass(object_getClass(named))
    {
        makes_until_failure = instances;
        // Added once; later on the method is found.
        class_addMethod(metaclass, @selector(alloc), reinterpret_cast<IMP>(failing_alloc), "@@:");
    }
    ~Scarce() { makes_until_failure = 1 << 30; }

    /// Whether messages reach the added method; where a compiler binds `alloc` itself they do not.
    static bool works_on(Class named)
    {
        const Scarce scarce(named, 2);
        [[named alloc] release];
        return makes_until_failure == 1;
    }

private:
    Class metaclass;
};

/// Arrays of objects that they make themselves, filled by a record of so many empty elements.
template <class Array>
void expect_refusals_without_objects(Class element_class)
{
    const uint32_t empty_elements[41] = {40};
    ZEB_String *const record =
        [ZEB_String link_to_chars:reinterpret_cast<char *>(const_cast<uint32_t *>(empty_elements))
                            count:sizeof empty_elements];
    Array *const array = [[[Array alloc] init] autorelease];
    [array set_length:3];
    const std::function<void()> decode = [&] { [array ZEB_decode_binary_contents:record needs_swap:0]; },
                                lengthen = [&] { [array set_length:40]; },
                                extend = [&] { [array extend_length_by:40]; };
    const Scarce scarce(element_class, 5);
    for (const auto &[selector, failed, work] :
         {std::tuple("ZEB_decode_binary_contents:needs_swap:", "reallocate", decode),
          std::tuple("set_length:", "allocate", lengthen),
          std::tuple("extend_length_by:", "reallocate", extend)}) {
        EXPECT_EQ(support::standard_error_of(work),
                  support::fix_line(selector, class_getName([array class]),
                                    std::string("Runtime error in ") + failed + " macro"));
        EXPECT_EQ([array count], 3u);
    }
    makes_until_failure = 100;
    EXPECT_EQ([array ZEB_decode_binary_contents:record needs_swap:0], sizeof empty_elements);
    EXPECT_EQ([array count], 40u);
}

} // namespace

TEST(Held_Objects, that_the_platform_cannot_make_are_reported)
{
    if (!Scarce::works_on([ZEB_String class]))
        GTEST_SKIP() << "this compiler's alloc cannot be replaced";
    expect_refusals_without_objects<ZEB_String_Array>([ZEB_String class]);
    expect_refusals_without_objects<ZEB_Wide_String_Array>([ZEB_Wide_String class]);
    expect_refusals_without_objects<ZEB_Byte_Array_Array>([ZEB_Byte_Array class]);
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
