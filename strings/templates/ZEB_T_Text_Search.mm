#import <Korvane_ZEB/ZEB_Text_Search.h>

#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"
#include "strings/engine/text_search.hpp"

using engine::text_of;

@implementation ZEB_T_Vector (Search)

- (uint8_t)has_prefix:(ZEB_T_Vector *)text
{
    return engine::begins_with(text_of(self), text_of(text));
}

- (uint8_t)has_suffix:(ZEB_T_Vector *)text
{
    return engine::ends_with(text_of(self), text_of(text));
}

- (uint8_t)contains:(ZEB_T_Vector *)text
{
    return engine::find_occurrence(text_of(self), text_of(text)) != ZEB_NOT_FOUND;
}

- (uint32_t)find_text:(ZEB_T_Vector *)text
{
    return engine::find_occurrence(text_of(self), text_of(text));
}

- (uint32_t)find_text:(ZEB_T_Vector *)text from_index:(uint32_t)index
{
    return engine::find_occurrence(text_of(self), text_of(text), index);
}

- (uint32_t)find_last_text:(ZEB_T_Vector *)text
{
    return engine::last_occurrence(text_of(self), text_of(text));
}

@end
