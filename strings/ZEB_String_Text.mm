#import <Korvane_ZEB/ZEB_String_Text.h>

#import "arrays/ZEB_Char_Storage_Private.h"

#include "strings/engine/c_strings.hpp"

using zeb::storage_of_array;

@implementation ZEB_String (Text)

- (void)copy_c_string:(const char *)bytes length:(uint32_t)length
{
    zeb::copy_c_string(storage_of_array(self), bytes, length, zeb::Fix_Report{self, _cmd});
}

- (void)append_c_string:(const char *)bytes length:(uint32_t)length
{
    zeb::append_c_string(storage_of_array(self), bytes, length, zeb::Fix_Report{self, _cmd});
}

- (void)append_null_terminator
{
    zeb::append_null_terminator(storage_of_array(self), zeb::Fix_Report{self, _cmd});
}

@end
