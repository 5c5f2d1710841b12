#import <Korvane_ZEB/ZEB_String_Text.h>

#import "arrays/ZEB_Char_Storage_Private.h"

#include "core/engine/namespace.hpp"
#include "strings/engine/c_strings.hpp"

using engine::storage_of_array;

@implementation ZEB_String (Text)

- (void)copy_c_string:(const char *)bytes length:(uint32_t)length
{
    engine::copy_c_string(storage_of_array(self), bytes, length, engine::Fix_Report{self, _cmd});
}

- (void)append_c_string:(const char *)bytes length:(uint32_t)length
{
    engine::append_c_string(storage_of_array(self), bytes, length, engine::Fix_Report{self, _cmd});
}

- (void)append_null_terminator
{
    engine::append_null_terminator(storage_of_array(self), engine::Fix_Report{self, _cmd});
}

@end
