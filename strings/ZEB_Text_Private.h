/*
 * The engine's access to the text of strings.
 */
#import "arrays/ZEB_Char_Storage_Private.h"
#import "arrays/ZEB_Wide_Char_Storage_Private.h"
#import "core/ZEB_Report_Private.h"

#include <span>

namespace zeb::engine
{

/// Returns the characters of a vector; none for nil.
inline std::span<const char> text_of(ZEB_Char_Vector *vector)
{
    return vector != nil ? std::span<const char>(vector->data, vector->count) : std::span<const char>();
}

inline std::span<const uint32_t> text_of(ZEB_Wide_Char_Vector *vector)
{
    return vector != nil ? std::span<const uint32_t>(vector->data, vector->count)
                         : std::span<const uint32_t>();
}

/// Returns the NSComparisonResult of a comparison.
inline NSComparisonResult platform_order(ZEB_Comparison order)
{
    if (order == ZEB_COMPARED_EQUAL)
        return NSOrderedSame;
    return order == ZEB_COMPARED_LESS ? NSOrderedAscending : NSOrderedDescending;
}

/// Append a platform string, as UTF-8 or in UTF-16 units; what is no NSString counts as empty.
void append_platform_string(ZEB_String *string, NSString *text, Fix_Report report);
void append_platform_string(ZEB_Wide_String *string, NSString *text, Fix_Report report);

/// Returns the object as one of the class wanted; nil if it is of another.
template <class Wanted>
Wanted *instance_or_nil(id object)
{
    return [object isKindOfClass:[Wanted class]] ? static_cast<Wanted *>(object) : nil;
}

} // namespace zeb::engine
