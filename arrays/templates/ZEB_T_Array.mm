#import "arrays/ZEB_T_Storage_Private.h"

#include "arrays/engine/storage/insertion.hpp"
#include "arrays/engine/storage/lifetime.hpp"
#include "arrays/engine/storage/resizing.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"

using engine::storage_of_array;
using engine::storage_of_vector;

namespace zeb::engine
{

uint32_t ZEB_T_growth_seed = 16;

} // namespace zeb::engine

namespace
{

using Elements = engine::Elements_Of<engine::ZEB_T_Kind>;

Elements elements_of(ZEB_T_Vector *vector)
{
    return {[vector TT_word_data], [vector count], engine::Source::of_another_array};
}

} // namespace

@implementation ZEB_T_Array

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

+ (uint32_t)growth_seed
{
    return engine::ZEB_T_growth_seed;
}

+ (void)set_growth_seed:(uint32_t)seed
{
    engine::ZEB_T_growth_seed = seed;
}

+ (ZEB_INSTANCE_OF(ZEB_T_Array *))array_with_capacity:(uint32_t)n
{
    return [[[self alloc] init_with_capacity:n] autorelease];
}

+ (ZEB_INSTANCE_OF(ZEB_T_Array *))link_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n
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
        capacity = engine::allocate_storage(storage_of_vector(self), length,
                                            engine::grown_capacity(0, length, engine::ZEB_T_growth_seed),
                                            engine::Fix_Report{self, _cmd});
    return self;
}

- (id)init_as_link_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n
{
    self = [super init_as_link_to_TT_words:elements count:n];
    if (self != nil)
        capacity = engine::capacity_of_links;
    return self;
}

- (id)init_as_link_to_TT_word_vector:(ZEB_T_Vector *)other range:(ZEB_Index_Range)range
{
    self = [super init_as_link_to_TT_word_vector:other range:range];
    if (self != nil)
        capacity = engine::capacity_of_links;
    return self;
}

- (id)init_as_copy_of_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n
{
    self = [super init_unlinked];
    if (self != nil) {
        engine::set_foreign_settings(self);
        capacity = engine::allocate_copy(storage_of_vector(self), engine::Source::of_the_caller, elements, n,
                                         engine::grown_capacity(0, n, engine::ZEB_T_growth_seed),
                                         engine::Fix_Report{self, _cmd});
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

- (ZEB_INSTANCE_OF(ZEB_T_Array *))duplicate
{
    ZEB_T_Array *const made = [[[[self class] alloc] init_unlinked] autorelease];
    engine::take_settings(made, self);
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
    return engine::capacity_in_32_bits(engine::proper_capacity(count, engine::ZEB_T_growth_seed));
}

- (void)trim_allocation
{
    engine::trim(storage_of_array(self), engine::Fix_Report{self, _cmd});
}

- (void)set_length:(uint32_t)length
{
    engine::set_length(storage_of_array(self), length, engine::Fix_Report{self, _cmd});
}

- (void)extend_length_by:(uint32_t)n
{
    engine::extend_length(storage_of_array(self), n, engine::Fix_Report{self, _cmd});
}

- (void)ensure_capacity_greater_than:(uint32_t)n
{
    engine::ensure_capacity_above(storage_of_array(self), n, engine::Fix_Report{self, _cmd});
}

- (void)ensure_room_for:(uint32_t)n
{
    engine::ensure_room(storage_of_array(self), n, engine::Fix_Report{self, _cmd});
}

- (void)set_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n
{
    engine::set_contents(storage_of_array(self), Elements{elements, n}, engine::Fix_Report{self, _cmd});
}

- (void)set_contents_of_array:(ZEB_T_Vector *)other
{
    engine::set_contents(storage_of_array(self), elements_of(other), engine::Fix_Report{self, _cmd});
}

- (void)copy_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n capacity:(uint32_t)room
{
    engine::replace_with_copy(storage_of_vector(self), engine::Source::of_the_caller, elements, n, room,
                              capacity, engine::Fix_Report{self, _cmd});
}

- (void)copy_vector:(ZEB_T_Vector *)other capacity:(uint32_t)room
{
    engine::replace_with_copy(
        storage_of_vector(self), engine::Source::of_another_array, [other TT_word_data], [other count], room,
        capacity, engine::Fix_Report { self, _cmd });
}

- (void)copy_TT_word:(ZEB_T_Element)element
{
    engine::copy_element(storage_of_array(self), element, engine::Fix_Report{self, _cmd});
}

- (void)append_TT_word:(ZEB_T_Element)element
{
    engine::append_element(storage_of_array(self), element, engine::Fix_Report{self, _cmd});
}

- (void)append_array:(ZEB_T_Vector *)other
{
    engine::append_elements(storage_of_array(self), elements_of(other), engine::Fix_Report{self, _cmd});
}

- (void)append_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n
{
    engine::append_elements(storage_of_array(self), Elements{elements, n}, engine::Fix_Report{self, _cmd});
}

- (void)insert_TT_word:(ZEB_T_Element)element at_index:(uint32_t)index
{
    engine::insert_element(storage_of_array(self), element, index, engine::Fix_Report{self, _cmd});
}

- (void)insert_array:(ZEB_T_Vector *)other at_index:(uint32_t)index
{
    engine::insert_elements(storage_of_array(self), elements_of(other), index,
                            engine::Fix_Report{self, _cmd});
}

- (void)replace_element_at_index:(uint32_t)index with_array:(ZEB_T_Vector *)other
{
    engine::replace_element(storage_of_array(self), index, elements_of(other),
                            engine::Fix_Report{self, _cmd});
}

- (void)replace_element_at_index:(uint32_t)index
                   with_TT_words:(ZEB_T_Element const *)elements
                           count:(uint32_t)n
{
    engine::replace_element(storage_of_array(self), index, Elements{elements, n},
                            engine::Fix_Report{self, _cmd});
}

- (void)receive_from_stream:(ZEB_Stream *)stream
{
    (void)stream;
    engine::report_need_to_implement(self, _cmd, engine::notes::not_implemented);
}

@end
