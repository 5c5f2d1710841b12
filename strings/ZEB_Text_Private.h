/*
 * How the engine sees the text of a string object.
 */
#import "arrays/ZEB_Char_Storage_Private.h"
#import "arrays/ZEB_Wide_Char_Storage_Private.h"

#include <span>

namespace zeb
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

} // namespace zeb
