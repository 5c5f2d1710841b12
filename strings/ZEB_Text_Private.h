/*
 * How the engine sees the text of a string object.
 */
#import "arrays/ZEB_Char_Storage_Private.h"
#import "arrays/ZEB_Wide_Char_Storage_Private.h"

#include <span>

namespace zeb::engine
{

/// The characters of a vector; none of nil.
inline std::span<const char> text_of(ZEB_Char_Vector *vector)
{
    return vector != nil ? std::span<const char>(vector->data, vector->count) : std::span<const char>();
}

inline std::span<const uint32_t> text_of(ZEB_Wide_Char_Vector *vector)
{
    return vector != nil ? std::span<const uint32_t>(vector->data, vector->count)
                         : std::span<const uint32_t>();
}

/// The platform's code of an order.
inline NSComparisonResult platform_order(ZEB_Comparison order)
{
    if (order == ZEB_COMPARED_EQUAL)
        return NSOrderedSame;
    return order == ZEB_COMPARED_LESS ? NSOrderedAscending : NSOrderedDescending;
}

/// The vector, or nil for an object of a class that is none.
template <class Vector>
Vector *vector_or_nil(id object)
{
    return [object isKindOfClass:[Vector class]] ? static_cast<Vector *>(object) : nil;
}

} // namespace zeb::engine
