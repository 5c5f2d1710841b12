#import <Korvane_ZEB/ZEB_Hex_Contents.h>

#import "arrays/ZEB_Byte_Storage_Private.h"
#import "arrays/ZEB_Char_Storage_Private.h"
#import "arrays/ZEB_Pointer_Storage_Private.h"
#import "arrays/ZEB_Wide_Char_Storage_Private.h"

#include "core/engine/namespace.hpp"
#include "encoding/engine/hex_contents.hpp"

namespace
{

template <class Kind>
void append(engine::Vector_Storage<Kind> vector, ZEB_String *buffer, SEL operation)
{
    if (buffer != nil)
        engine::append_hex_contents(vector, engine::storage_of_array(buffer),
                                    engine::Fix_Report{buffer, operation});
}

} // namespace

@implementation ZEB_Byte_Vector (Hex_Contents)

- (void)ZEB_append_hex_contents:(ZEB_String *)buffer
{
    append(engine::storage_of_vector(self), buffer, _cmd);
}

@end

@implementation ZEB_Wide_Char_Vector (Hex_Contents)

- (void)ZEB_append_hex_contents:(ZEB_String *)buffer
{
    append(engine::storage_of_vector(self), buffer, _cmd);
}

@end

@implementation ZEB_Pointer_Vector (Hex_Contents)

- (void)ZEB_append_hex_contents:(ZEB_String *)buffer
{
    append(engine::storage_of_vector(self), buffer, _cmd);
}

@end
