#import <Korvane_ZEB/ZEB_Wide_String_Text.h>

#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"
#include "strings/engine/c_strings.hpp"
#include "strings/engine/transcoding.hpp"

using engine::storage_of_array;

@implementation ZEB_Wide_String (Text)

- (void)copy_c_string:(const char *)bytes length:(uint32_t)length
{
    engine::copy_c_string(storage_of_array(self), bytes, length, engine::Fix_Report{self, _cmd});
}

- (void)append_c_string:(const char *)bytes length:(uint32_t)length
{
    engine::append_c_string(storage_of_array(self), bytes, length, engine::Fix_Report{self, _cmd});
}

- (void)copy_chars:(const char *)bytes length:(uint32_t)length
{
    engine::copy_c_string(storage_of_array(self), bytes, length, engine::Fix_Report{self, _cmd});
}

- (void)append_chars:(const char *)bytes length:(uint32_t)length
{
    engine::append_c_string(storage_of_array(self), bytes, length, engine::Fix_Report{self, _cmd});
}

@end

@implementation ZEB_Wide_String (Code_Points)

- (uint8_t)set_code_points_from_utf8:(ZEB_Char_Vector *)text
{
    return engine::set_to_code_points_of_utf8(storage_of_array(self), engine::text_of(text),
                                              engine::Fix_Report{self, _cmd});
}

- (void)split_to_surrogate_pairs
{
    engine::split_to_surrogate_pairs(storage_of_array(self), engine::Fix_Report{self, _cmd});
}

@end
