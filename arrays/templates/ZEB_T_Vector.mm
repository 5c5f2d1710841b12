#import "arrays/ZEB_Printing_Private.h"
#import "arrays/ZEB_T_Storage_Private.h"

#import <Korvane_ZEB/ZEB_Stream.h>

#include "arrays/engine/storage/index_checks.hpp"
#include "arrays/engine/storage/lifetime.hpp"
#include "arrays/engine/storage/resizing.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"

using engine::storage_of_vector;

namespace
{

uint32_t default_length = 16;

/// Makes a link view a range of another vector, with that vector's ownership mode; of nil, nothing.
void view_range(ZEB_T_Vector *link, ZEB_T_Vector *other, ZEB_Index_Range range)
{
    if (other == nil)
        return engine::view(storage_of_vector(link), static_cast<ZEB_T_Element const *>(nullptr), 0);
    engine::take_settings(link, other);
    engine::view_range(storage_of_vector(link), [other TT_word_data], range);
}

/// The number of slots that may be stored in, where indexes are checked.
uint32_t slots_of(ZEB_T_Vector *vector)
{
    if (!engine::indexes_are_checked || ![vector isKindOfClass:[ZEB_T_Array class]])
        return vector->count;
    return engine::slots_of(engine::storage_of_array(static_cast<ZEB_T_Array *>(vector)));
}

} // namespace

@implementation ZEB_T_Vector

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

+ (uint32_t)default_length
{
    return default_length;
}

+ (void)set_default_length:(uint32_t)length
{
    default_length = length;
}

+ (ZEB_INSTANCE_OF(ZEB_T_Vector *))link_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n
{
    return [[[self alloc] init_as_link_to_TT_words:elements count:n] autorelease];
}

- (id)init
{
    self = [super init];
    if (self != nil)
        engine::allocate_storage(storage_of_vector(self), default_length, default_length,
                                 engine::Fix_Report{self, _cmd});
    return self;
}

- (id)init_unlinked
{
    return [super init];
}

- (id)init_with_capacity:(uint32_t)capacity
{
    self = [super init];
    if (self != nil)
        engine::allocate_storage(storage_of_vector(self), 0, capacity, engine::Fix_Report{self, _cmd});
    return self;
}

- (id)init_with_length:(uint32_t)length
{
    self = [super init];
    if (self != nil)
        engine::allocate_storage(storage_of_vector(self), length, length, engine::Fix_Report{self, _cmd});
    return self;
}

- (id)init_as_link_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n
{
    self = [super init];
    if (self != nil) {
        link_marker = engine::link_marker_of_links;
        engine::set_foreign_settings(self);
        engine::view(storage_of_vector(self), elements, n);
    }
    return self;
}

- (id)init_as_link_to_TT_word_vector:(ZEB_T_Vector *)other range:(ZEB_Index_Range)range
{
    self = [super init];
    if (self != nil) {
        link_marker = engine::link_marker_of_links;
        view_range(self, other, range);
    }
    return self;
}

- (id)init_as_copy_of_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n
{
    self = [super init];
    if (self != nil) {
        engine::set_foreign_settings(self);
        engine::allocate_copy(storage_of_vector(self), engine::Source::of_the_caller, elements, n, n,
                              engine::Fix_Report{self, _cmd});
    }
    return self;
}

- (id)init_as_copy_of_TT_word_vector:(ZEB_T_Vector *)other
{
    self = [super init];
    if (self != nil && other != nil) {
        engine::take_settings(self, other);
        engine::allocate_copy(storage_of_vector(self), engine::Source::of_another_array, other->data,
                              other->count, other->count, engine::Fix_Report{self, _cmd});
    }
    return self;
}

- (void)dealloc
{
    engine::release_storage(storage_of_vector(self));
    [super dealloc];
}

- (id)copyWithZone:(NSZone *)zone
{
    return [[[self class] allocWithZone:zone] init_as_copy_of_TT_word_vector:self];
}

- (void)relink_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n
{
    engine::set_foreign_settings(self);
    engine::view(storage_of_vector(self), elements, n);
}

- (void)relink_to_vector:(ZEB_T_Vector *)other range:(ZEB_Index_Range)range
{
    view_range(self, other, range);
}

- (void)copy_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n capacity:(uint32_t)capacity
{
    uint32_t room;
    engine::replace_with_copy(storage_of_vector(self), engine::Source::of_the_caller, elements, n, capacity,
                              room, engine::Fix_Report{self, _cmd});
}

- (void)copy_vector:(ZEB_T_Vector *)other capacity:(uint32_t)capacity
{
    uint32_t room;
    engine::replace_with_copy(
        storage_of_vector(self), engine::Source::of_another_array, [other TT_word_data], [other count],
        capacity, room, engine::Fix_Report { self, _cmd });
}

- (uint32_t)count
{
    return count;
}

- (uint8_t)is_empty
{
    return count == 0 ? 1 : 0;
}

- (uint8_t)is_not_empty
{
    return count != 0 ? 1 : 0;
}

- (void)clear
{
    engine::change_count(storage_of_vector(self), 0, engine::Fix_Report{self, _cmd});
}

- (void)set_count:(uint32_t)length
{
    engine::change_count(storage_of_vector(self), length, engine::Fix_Report{self, _cmd});
}

- (void)decrease_count:(uint32_t)n
{
    engine::change_count(storage_of_vector(self), n < count ? count - n : 0, engine::Fix_Report{self, _cmd});
}

- (void)decrement_count
{
    [self decrease_count:1];
}

- (ZEB_T_Element *)TT_word_data
{
    return data;
}

- (void)set_TT_word_data:(ZEB_T_Element *)elements
{
    engine::change_data(storage_of_vector(self), elements);
}

- (ZEB_T_Element)TT_word_at_index:(uint32_t)index
{
    return engine::element_at(storage_of_vector(self), index, engine::Fix_Report{self, _cmd});
}

- (ZEB_T_Element)ZEB_T_element_at_index:(uint32_t)index
{
    return engine::element_at(storage_of_vector(self), index, engine::Fix_Report{self, _cmd});
}

- (void)set_TT_word:(ZEB_T_Element)element at_index:(uint32_t)index
{
    engine::set_element_at(storage_of_vector(self), slots_of(self), index, element,
                           engine::Fix_Report{self, _cmd});
}

- (ZEB_T_Element)TT_word_at_index_from_end:(uint32_t)index
{
    return engine::element_at(storage_of_vector(self), engine::index_from_front(count, index),
                              engine::Fix_Report{self, _cmd});
}

- (void)set_TT_word:(ZEB_T_Element)element at_index_from_end:(uint32_t)index
{
    engine::set_element_at(storage_of_vector(self), count, engine::index_from_front(count, index), element,
                           engine::Fix_Report{self, _cmd});
}

- (ZEB_T_Element)first_TT_word
{
    return count != 0 ? data[0] : engine::ZEB_T_Kind::Element();
}

- (ZEB_T_Element)last_TT_word
{
    return count != 0 ? data[count - 1] : engine::ZEB_T_Kind::Element();
}

- (ZEB_T_Element *)pointer_to_TT_word_at_index:(uint32_t)index
{
    return engine::slot_at(storage_of_vector(self), slots_of(self), index, engine::Fix_Report{self, _cmd});
}

- (ZEB_T_Element *)pointer_to_TT_word_at_index_from_end:(uint32_t)index
{
    return engine::slot_at(storage_of_vector(self), count, engine::index_from_front(count, index),
                           engine::Fix_Report{self, _cmd});
}

- (void)send_element_to_stream:(uint32_t)index stream:(ZEB_Stream *)stream
{
    ZEB_T_Element const element =
        engine::element_at(storage_of_vector(self), index, engine::Fix_Report{self, _cmd});
    TT_WRITE_ELEMENT;
}

- (void)set_length:(uint32_t)length
{
    (void)length;
    engine::report_need_to_implement(self, _cmd, engine::notes::need_to_implement);
}

- (void)ensure_room_for:(uint32_t)n
{
    (void)n;
    engine::report_need_to_implement(self, _cmd, engine::notes::need_to_implement);
}

- (void)append_array:(ZEB_T_Vector *)other
{
    (void)other;
    engine::report_need_to_implement(self, _cmd, engine::notes::need_to_implement);
}

@end
