/*
 * The fields that single families of collections add, and what they are set to. A family without a field of
 * its own takes the first of each overload.
 */
#import <Korvane_ZEB/ZEB_Char_Collection.h>
#import <Korvane_ZEB/ZEB_Object_Collection.h>
#import <Korvane_ZEB/ZEB_Wide_Char_Collection.h>

#include "arrays/engine/storage/element_kinds.hpp"

namespace zeb::engine
{

/// Sets the fields of a collection that was just made.
inline void start_settings(ZEB_Collection *) {}
inline void start_settings(ZEB_Object_Collection *objects) { objects->ownership_mode = retains; }
inline void start_settings(ZEB_Char_Collection *string) { string->pool_index = -1; }
inline void start_settings(ZEB_Wide_Char_Collection *string) { string->pool_index = -1; }

/// Sets the fields of a collection whose elements come from a raw block.
inline void set_foreign_settings(ZEB_Collection *) {}
inline void set_foreign_settings(ZEB_Object_Collection *objects) { objects->ownership_mode = borrows; }

/// Sets the fields of a collection that is modelled on another of its family.
inline void take_settings(ZEB_Collection *, ZEB_Collection *) {}
inline void take_settings(ZEB_Object_Collection *made, ZEB_Object_Collection *model)
{
    made->ownership_mode = model->ownership_mode;
}

} // namespace zeb::engine
