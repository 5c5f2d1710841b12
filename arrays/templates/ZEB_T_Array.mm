#import "arrays/ZEB_T_Storage_Private.h"

#include "arrays/engine/storage/insertion.hpp"
#include "arrays/engine/storage/lifetime.hpp"
#include "arrays/engine/storage/resizing.hpp"
#include "core/engine/notice.hpp"

using zeb::storage_of_array;
using zeb::storage_of_vector;

namespace zeb
{

uint32_t ZEB_T_growth_seed = 16;

} // namespace zeb

namespace
{

using Elements = zeb::Elements_Of<zeb::ZEB_T_Kind>;

Elements elements_of(ZEB_T_Vector *vector)
{
    return {[vector TT_word_data], [vector count], zeb::Source::of_another_array};
}

} // namespace

@implementation ZEB_T_Array

+ (const char *)get_KVX_proprietary_software_notice
{
    return zeb::proprietary_software_notice;
}

+ (uint32_t)growth_seed
{
    return zeb::ZEB_T_growth_seed;
}

+ (void)set_growth_seed:(uint32_t)seed
{
    zeb::ZEB_T_growth_seed = seed;
}

+ (ZEB_T_Array *)array_with_capacity:(uint32_t)n
{
    return [[[self alloc] init_with_capacity:n] autorelease];
}

+ (ZEB_T_Array *)link_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n
{
    return [[[self alloc] init_as_link_to_TT_words:elements count:n] autorelease];
}

- (id)init
{
    return [super init_unlinked];
}

- (id)init_unlinked
{
    return [super init_unlinked];
}

- (id)init_with_capacity:(uint32_t)n
{
    self = [super init_with_capacity:n];
    if (self != nil && data != NULL)
        capacity = n;
    return self;
}

- (id)init_with_length:(uint32_t)length
{
    self = [super init_unlinked];
    if (self != nil)
        capacity =
            zeb::start(storage_of_vector(self), length,
                       zeb::grown_capacity(0, length, zeb::ZEB_T_growth_seed), zeb::Fix_Report{self, _cmd});
    return self;
}

- (id)init_as_link_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n
{
    self = [super init_as_link_to_TT_words:elements count:n];
    if (self != nil)
        capacity = zeb::capacity_of_links;
    return self;
}

- (id)init_as_link_to_TT_word_vector:(ZEB_T_Vector *)other range:(ZEB_Index_Range)range
{
    self = [super init_as_link_to_TT_word_vector:other range:range];
    if (self != nil)
        capacity = zeb::capacity_of_links;
    return self;
}

- (id)init_as_copy_of_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n
{
    self = [super init_unlinked];
    if (self != nil) {
        TT_FIELD_OF_FOREIGN;
        capacity = zeb::start_as_copy(storage_of_vector(self), zeb::Source::of_the_caller, elements, n,
                                      zeb::grown_capacity(0, n, zeb::ZEB_T_growth_seed),
                                      zeb::Fix_Report{self, _cmd});
    }
    return self;
}

- (id)init_as_copy_of_TT_word_vector:(ZEB_T_Vector *)other
{
    self = [super init_as_copy_of_TT_word_vector:other];
    if (self != nil)
        capacity = count;
    return self;
}

- (ZEB_T_Array *)duplicate
{
    ZEB_T_Array *const made = [[[[self class] alloc] init_unlinked] autorelease];
    zeb::take_mode(made, self);
    [made set_contents_of_array:self];
    return made;
}

- (uint32_t)capacity
{
    return capacity;
}

- (void)set_capacity:(uint32_t)n
{
    capacity = n;
}

- (uint32_t)proper_capacity
{
    return zeb::capacity_in_32_bits(zeb::proper_capacity(count, zeb::ZEB_T_growth_seed));
}

- (void)trim_allocation
{
    zeb::trim(storage_of_array(self), zeb::Fix_Report{self, _cmd});
}

- (void)set_length:(uint32_t)length
{
    zeb::set_length(storage_of_array(self), length, zeb::Fix_Report{self, _cmd});
}

- (void)extend_length_by:(uint32_t)n
{
    zeb::extend_length(storage_of_array(self), n, zeb::Fix_Report{self, _cmd});
}

- (void)ensure_capacity_greater_than:(uint32_t)n
{
    zeb::ensure_capacity_above(storage_of_array(self), n, zeb::Fix_Report{self, _cmd});
}

- (void)ensure_room_for:(uint32_t)n
{
    zeb::ensure_room(storage_of_array(self), n, zeb::Fix_Report{self, _cmd});
}

- (void)set_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n
{
    zeb::set_contents(storage_of_array(self), Elements{elements, n}, zeb::Fix_Report{self, _cmd});
}

- (void)set_contents_of_array:(ZEB_T_Vector *)other
{
    zeb::set_contents(storage_of_array(self), elements_of(other), zeb::Fix_Report{self, _cmd});
}

- (void)copy_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n capacity:(uint32_t)room
{
    zeb::replace_with_copy(storage_of_vector(self), zeb::Source::of_the_caller, elements, n, room, capacity,
                           zeb::Fix_Report{self, _cmd});
}

- (void)copy_vector:(ZEB_T_Vector *)other capacity:(uint32_t)room
{
    zeb::replace_with_copy(
        storage_of_vector(self), zeb::Source::of_another_array, [other TT_word_data], [other count], room,
        capacity, zeb::Fix_Report { self, _cmd });
}

- (void)copy_TT_word:(ZEB_T_Element)element
{
    zeb::copy_element(storage_of_array(self), element, zeb::Fix_Report{self, _cmd});
}

- (void)append_TT_word:(ZEB_T_Element)element
{
    zeb::append_element(storage_of_array(self), element, zeb::Fix_Report{self, _cmd});
}

- (void)append_array:(ZEB_T_Vector *)other
{
    zeb::append_elements(storage_of_array(self), elements_of(other), zeb::Fix_Report{self, _cmd});
}

- (void)append_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n
{
    zeb::append_elements(storage_of_array(self), Elements{elements, n}, zeb::Fix_Report{self, _cmd});
}

- (void)insert_TT_word:(ZEB_T_Element)element at_index:(uint32_t)index
{
    zeb::insert_element(storage_of_array(self), element, index, zeb::Fix_Report{self, _cmd});
}

- (void)insert_array:(ZEB_T_Vector *)other at_index:(uint32_t)index
{
    zeb::insert_elements(storage_of_array(self), elements_of(other), index, zeb::Fix_Report{self, _cmd});
}

- (void)replace_element_at_index:(uint32_t)index with_array:(ZEB_T_Vector *)other
{
    zeb::replace_element(storage_of_array(self), index, elements_of(other), zeb::Fix_Report{self, _cmd});
}

- (void)replace_element_at_index:(uint32_t)index
                   with_TT_words:(ZEB_T_Element const *)elements
                           count:(uint32_t)n
{
    zeb::replace_element(storage_of_array(self), index, Elements{elements, n}, zeb::Fix_Report{self, _cmd});
}

- (void)receive_from_stream:(ZEB_Stream *)stream
{
    (void)stream;
    zeb::report_need_to_implement(self, _cmd, zeb::notes::not_implemented);
}

@end
