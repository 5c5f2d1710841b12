#import <Korvane_ZEB/ZEB_T_Arrow.h>

#import "arrays/ZEB_T_Storage_Private.h"
#import "core/ZEB_Report_Private.h"
#import "encoding/ZEB_Arrow_Private.h"

#include "arrays/engine/storage/array_notes.hpp"

@implementation ZEB_T_Vector (Arrow)

- (uint8_t)export_to_arrow_array:(struct ArrowArray *)array schema:(struct ArrowSchema *)schema
{
    if (array == nullptr || schema == nullptr)
        return 0;
    if (!engine::export_column([self arrow_column], *array, *schema)) {
        engine::Fix_Report{self, _cmd}(engine::notes::allocate_failed);
        return 0;
    }
    [self retain]; // for the array's release
    return 1;
}

- (engine::Arrow_Column)arrow_column
{
    return engine::column_of(self, data, count);
}

@end

@implementation ZEB_Arrow_Array (ZEB_T_Elements)

- (ZEB_T_Array *)link_to_TT_words
{
    const engine::Arrow_Slice slice = engine::slice_of(self);
    if (!engine::shows<ZEB_T_Element>(self) || engine::null_count(slice) != 0)
        return nil;
    const ZEB_T_Element *const first = engine::first_element<ZEB_T_Element>(slice);
    if (!engine::is_aligned(first, sizeof *first))
        return nil;
    return [ZEB_T_Array link_to_TT_words:const_cast<ZEB_T_Element *>(first)
                                   count:static_cast<uint32_t>(count)];
}

- (uint8_t)get_TT_words:(ZEB_T_Array *)target
{
    const engine::Arrow_Slice slice = engine::slice_of(self);
    if (target == nil || !engine::shows<ZEB_T_Element>(self) ||
        (!std::is_floating_point_v<ZEB_T_Element> && engine::null_count(slice) != 0))
        return 0;
    [target set_length:static_cast<uint32_t>(count)];
    if ([target count] != count)
        return 0;
    engine::copy_slice(slice, [target TT_word_data]);
    return 1;
}

@end
