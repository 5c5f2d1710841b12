#import <Korvane_ZEB/ZEB_T_Checked_Access.h>

#import "arrays/ZEB_T_Storage_Private.h"

#include "arrays/engine/storage/checked_access.hpp"
#include "core/engine/namespace.hpp"

using engine::storage_of_vector;

@implementation ZEB_T_Vector (Checked_Access)

- (ZEB_T_Element)checked_TT_word_at_index:(uint32_t)index
{
    return engine::checked_element(storage_of_vector(self), index, engine::Fix_Report{self, _cmd});
}

- (ZEB_T_Element)checked_TT_word_at_index_from_end:(uint32_t)index
{
    return engine::checked_element(storage_of_vector(self), engine::index_from_front(count, index),
                                   engine::Fix_Report{self, _cmd});
}

- (ZEB_T_Element *)checked_pointer_to_TT_word_at_index:(uint32_t)index
{
    return engine::checked_pointer(storage_of_vector(self), index, engine::Fix_Report{self, _cmd});
}

- (ZEB_T_Element *)checked_pointer_to_TT_word_at_index_from_end:(uint32_t)index
{
    return engine::checked_pointer(storage_of_vector(self), engine::index_from_front(count, index),
                                   engine::Fix_Report{self, _cmd});
}

- (void)set_checked_TT_word:(ZEB_T_Element)element at_index:(uint32_t)index
{
    engine::set_checked_element(storage_of_vector(self), index, element, engine::Fix_Report{self, _cmd});
}

- (void)set_checked_TT_word:(ZEB_T_Element)element at_index_from_end:(uint32_t)index
{
    engine::set_checked_element(storage_of_vector(self), engine::index_from_front(count, index), element,
                                engine::Fix_Report{self, _cmd});
}

@end
