#import <Korvane_ZEB/ZEB_T_NSData_Conversion.h>

#import "arrays/ZEB_Platform_Data_Private.h"
#import "arrays/ZEB_T_Storage_Private.h"

#include "core/engine/namespace.hpp"

@implementation ZEB_T_Vector (NSData_Conversion)

- (NSData *)NSData_value
{
    return engine::data_with_bytes(data, count * sizeof(ZEB_T_Element), engine::Fix_Report{self, _cmd});
}

+ (ZEB_INSTANCE_OF(ZEB_T_Vector *))link_to_NSData:(NSData *)bytes
{
    const engine::Data_Elements<ZEB_T_Element> elements(bytes);
    if (!engine::may_view(elements, engine::Fix_Report{self, _cmd}))
        return nil;
    const uint32_t n = static_cast<uint32_t>(elements.count);
    return [[[self alloc] init_as_link_to_TT_words:elements.first count:n] autorelease];
}

@end

@implementation ZEB_T_Array (NSData_Conversion)

- (NSData *)NSData_taking_block
{
    return engine::data_taking_block(engine::storage_of_array(self), engine::Fix_Report{self, _cmd});
}

- (uint8_t)set_from_NSData:(NSData *)bytes
{
    return engine::set_to_data(engine::storage_of_array(self), bytes, engine::Fix_Report{self, _cmd});
}

@end
