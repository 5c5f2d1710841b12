#import "arrays/ZEB_T_Storage_Private.h"

#include "core/engine/char_span.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"

@implementation ZEB_T_Collection

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [super init];
    if (self != nil) {
        engine::start_settings(self);
    }
    return self;
}

- (void)copy_settings_from:(ZEB_T_Collection *)other
{
    [super copy_settings_from:other];
    if ([other isKindOfClass:[ZEB_T_Collection class]])
        engine::take_settings(self, other);
}

- (ZEB_T_Element)ZEB_T_element_at_index:(uint32_t)index
{
    (void)index;
    engine::report_need_to_overload(self, _cmd, engine::span_of("ZEB_T_element_at_index: needs subclassing"));
    return engine::ZEB_T_Kind::Element();
}

- (ZEB_T_Element *)TT_word_data
{
    engine::report_need_to_overload(self, _cmd, engine::span_of("TT_word_data needs subclassing"));
    return NULL;
}

@end
