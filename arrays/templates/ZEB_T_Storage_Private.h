/*
 * The engine's access to vectors and arrays of TT_PHRASE.
 */
#import <Korvane_ZEB/ZEB_T_Array.h>

#import "arrays/ZEB_Element_Policies_Private.h"
#import "arrays/ZEB_Family_Settings_Private.h"
#import "core/ZEB_Report_Private.h"

#include "arrays/engine/storage/array_storage.hpp"
#include "arrays/engine/storage/element_kinds.hpp"

namespace zeb::engine
{

/// The element kind of the family.
using ZEB_T_Kind = TT_KIND;

/// The growth seed of all arrays of the family.
extern __attribute__((visibility("hidden"))) uint32_t ZEB_T_growth_seed;

inline Vector_Storage<ZEB_T_Kind> storage_of_vector(ZEB_T_Vector *vector)
{
    return {vector->data, vector->count, vector->link_marker, ZEB_T_Kind{TT_KIND_STATE}};
}

inline Array_Storage<ZEB_T_Kind> storage_of_array(ZEB_T_Array *array)
{
    return {storage_of_vector(array), array->capacity, ZEB_T_growth_seed};
}

} // namespace zeb::engine
