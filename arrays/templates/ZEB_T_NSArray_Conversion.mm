#import <Korvane_ZEB/ZEB_T_NSArray_Conversion.h>

#import "arrays/ZEB_Platform_Numbers_Private.h"
#import "arrays/ZEB_T_Storage_Private.h"

#include "core/engine/namespace.hpp"

@implementation ZEB_T_Vector (NSArray_Conversion)

- (NSArray *)NSArray_value
{
    return engine::array_of_numbers(std::span<const ZEB_T_Element>(data, count),
                                    engine::Fix_Report{self, _cmd});
}

@end

@implementation ZEB_T_Array (NSArray_Conversion)

- (uint8_t)set_from_NSArray:(NSArray *)numbers
{
    return engine::set_to_numbers(engine::storage_of_array(self), numbers, engine::Fix_Report{self, _cmd});
}

@end
