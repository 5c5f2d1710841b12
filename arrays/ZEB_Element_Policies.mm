#import "arrays/ZEB_Byte_Storage_Private.h"
#import "arrays/ZEB_Char_Storage_Private.h"
#import "arrays/ZEB_Wide_Char_Storage_Private.h"

#include "arrays/engine/growing.hpp"

namespace zeb
{

namespace
{

template <class Kind>
bool has_room_for(Array_Storage<Kind> object, uint32_t count)
{
    return object.is_link() || grow(object, count, [](Char_Span) {});
}

} // namespace

bool make_room_in(ZEB_String *object, ZEB_String *source)
{
    return has_room_for(storage_of_array(object), [source count]);
}

bool make_room_in(ZEB_Wide_String *object, ZEB_Wide_String *source)
{
    return has_room_for(storage_of_array(object), [source count]);
}

bool make_room_in(ZEB_Byte_Array *object, ZEB_Byte_Array *source)
{
    return has_room_for(storage_of_array(object), [source count]);
}

} // namespace zeb
