#import "arrays/ZEB_Byte_Storage_Private.h"
#import "arrays/ZEB_Char_Storage_Private.h"
#import "arrays/ZEB_Wide_Char_Storage_Private.h"

#include "arrays/engine/storage/resizing.hpp"
#include "core/engine/platform_call.hpp"

namespace zeb::engine
{

namespace
{

template <class Made>
Made *try_to_make() noexcept
{
    return static_cast<Made *>(result_or_null([]() -> void * {
        // Some runtimes look a class up by its name wherever it stands in a message.
        static const Class made = [Made class];
        return [[made alloc] init];
    }));
}

template <class Kind>
bool has_room_for(Array_Storage<Kind> object, uint32_t count)
{
    return object.is_link() || grow(object, count, [](Char_Span) {});
}

} // namespace

ZEB_String *try_to_make_string() noexcept { return try_to_make<ZEB_String>(); }

ZEB_Wide_String *try_to_make_wide_string() noexcept { return try_to_make<ZEB_Wide_String>(); }

ZEB_Byte_Array *try_to_make_byte_array() noexcept { return try_to_make<ZEB_Byte_Array>(); }

bool make_room_in(ZEB_String *object, ZEB_String *source)
{
    return object != nil && has_room_for(storage_of_array(object), [source count]);
}

bool make_room_in(ZEB_Wide_String *object, ZEB_Wide_String *source)
{
    return object != nil && has_room_for(storage_of_array(object), [source count]);
}

bool make_room_in(ZEB_Byte_Array *object, ZEB_Byte_Array *source)
{
    return object != nil && has_room_for(storage_of_array(object), [source count]);
}

} // namespace zeb::engine
