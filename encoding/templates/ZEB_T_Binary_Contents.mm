#import <Korvane_ZEB/ZEB_T_Binary_Contents.h>

#import "arrays/ZEB_T_Storage_Private.h"
#import "encoding/ZEB_Records_Private.h"

using zeb::storage_of_array;
using zeb::storage_of_vector;

@implementation ZEB_T_Vector (Binary_Contents)

- (void)ZEB_encode_binary_contents:(ZEB_String *)buffer
{
    if (buffer != nil)
        zeb::encode(storage_of_vector(self), storage_of_array(buffer), zeb::Fix_Report{buffer, _cmd});
}

@end

@implementation ZEB_T_Array (Binary_Contents)

- (uint32_t)ZEB_decode_binary_contents:(ZEB_Char_Vector *)buffer needs_swap:(uint8_t)needs_swap
{
    const zeb::Record_Source source{[buffer char_data], [buffer count], needs_swap != 0};
    return zeb::decode(storage_of_array(self), source, zeb::Fix_Report{self, _cmd});
}

@end
