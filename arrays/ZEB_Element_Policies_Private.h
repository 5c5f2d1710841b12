/*
 * How the engine's element kinds create, copy, compare and release objects.
 */
#import <Korvane_ZEB/ZEB_Byte_Array.h>
#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

#include <algorithm>

namespace zeb::engine
{

/// Objects of any class, reference counted.
struct Object_Policy {
    using Element = id;

    static void retain(id object) { [object retain]; }
    static void release(id object) { [object release]; }
};

/// Return a new, empty object, owned by the caller; nil if the platform cannot allocate it.
ZEB_String *try_to_make_string() noexcept;
ZEB_Wide_String *try_to_make_wide_string() noexcept;
ZEB_Byte_Array *try_to_make_byte_array() noexcept;

/// Grow an object that an array owns to hold the contents of another. Return false if allocation fails or the
/// object is nil.
bool make_room_in(ZEB_String *object, ZEB_String *source);
bool make_room_in(ZEB_Wide_String *object, ZEB_Wide_String *source);
bool make_room_in(ZEB_Byte_Array *object, ZEB_Byte_Array *source);

/// Strings and byte arrays that an array owns: it creates, fills and releases them. They are equal, and
/// ordered, by their elements, compared as unsigned numbers.
struct Contents_Policy {
    static void copy(id object, id source) { [object set_contents_of_array:source]; }
    static bool equal(id left, id right) { return left == right || [left isEqual:right]; }
    static uint64_t hash(id object) { return [object hash]; }
    static void release(id object) { [object release]; }

protected:
    template <class Unit>
    static bool orders_before(const void *left, uint32_t left_count, const void *right, uint32_t right_count)
    {
        const Unit *const first = static_cast<const Unit *>(left);
        const Unit *const second = static_cast<const Unit *>(right);
        return std::lexicographical_compare(first, first + left_count, second, second + right_count);
    }
};

struct String_Policy : Contents_Policy {
    using Element = ZEB_String *;
    static ZEB_String *make() noexcept { return try_to_make_string(); }
    static bool make_room(ZEB_String *object, ZEB_String *source) { return make_room_in(object, source); }
    static bool precedes(ZEB_String *left, ZEB_String *right)
    {
        return orders_before<uint8_t>([left char_data], [left count], [right char_data], [right count]);
    }
};

struct Wide_String_Policy : Contents_Policy {
    using Element = ZEB_Wide_String *;
    static ZEB_Wide_String *make() noexcept { return try_to_make_wide_string(); }
    static bool make_room(ZEB_Wide_String *object, ZEB_Wide_String *source)
    {
        return make_room_in(object, source);
    }
    static bool precedes(ZEB_Wide_String *left, ZEB_Wide_String *right)
    {
        return orders_before<uint32_t>([left wide_char_data], [left count], [right wide_char_data],
                                       [right count]);
    }
};

struct Byte_Array_Policy : Contents_Policy {
    using Element = ZEB_Byte_Array *;
    static ZEB_Byte_Array *make() noexcept { return try_to_make_byte_array(); }
    static bool make_room(ZEB_Byte_Array *object, ZEB_Byte_Array *source)
    {
        return make_room_in(object, source);
    }
    static bool precedes(ZEB_Byte_Array *left, ZEB_Byte_Array *right)
    {
        return orders_before<uint8_t>([left byte_data], [left count], [right byte_data], [right count]);
    }
};

} // namespace zeb::engine
