/// What the class of received arrays and its families' categories share.
#import <Korvane_ZEB/ZEB_Arrow_Array.h>
#import <Korvane_ZEB/ZEB_Collection.h>

#include "core/engine/namespace.hpp"
#include "encoding/engine/arrow_import.hpp"

namespace zeb::engine
{

/// The elements that a received array shows.
inline Arrow_Slice slice_of(ZEB_Arrow_Array *received)
{
    return {received->array, received->start, received->count};
}

/// Whether it shows elements of a type, as many as an array can have.
template <class Element>
bool shows(ZEB_Arrow_Array *received)
{
    return received->count < UINT32_MAX &&
           has_elements(slice_of(received), received->schema, arrow_format<Element>);
}

/// The column that a vector is, without a reference to the vector.
template <class Element>
Arrow_Column column_of(id vector, const Element *elements, uint32_t count)
{
    return {arrow_format<Element>, elements, count, vector,
            [](void *keeper) { [static_cast<id>(keeper) release]; }};
}

} // namespace zeb::engine

/// What vectors of numbers answer.
@interface ZEB_Collection (Arrow_Column)

- (engine::Arrow_Column)arrow_column;

@end
