#import <Korvane_ZEB/ZEB_T_Binary_Contents.h>

#import "arrays/ZEB_T_Storage_Private.h"
#import "encoding/ZEB_Records_Private.h"

#include "core/engine/namespace.hpp"

using engine::storage_of_array;
using engine::storage_of_vector;

@implementation ZEB_T_Vector (Binary_Contents)

- (void)ZEB_encode_binary_contents:(ZEB_String *)buffer
{
    if (buffer != nil)
        engine::encode(storage_of_vector(self), storage_of_array(buffer), engine::Fix_Report{buffer, _cmd});
}

@end

@implementation ZEB_T_Array (Binary_Contents)

- (uint32_t)ZEB_decode_binary_contents:(ZEB_Char_Vector *)buffer needs_swap:(uint8_t)needs_swap
{
    const engine::Record_Source source{[buffer char_data], [buffer count], needs_swap != 0};
    return engine::decode(storage_of_array(self), source, engine::Fix_Report{self, _cmd});
}

@end
