#import <Korvane_ZEB/ZEB_Wide_Char_Text.h>

#import "strings/ZEB_Text_Private.h"

#include "arrays/engine/algorithms/equality.hpp"
#include "arrays/engine/algorithms/search.hpp"
#include "strings/engine/text_comparison.hpp"
#include "strings/engine/transcoding.hpp"

using zeb::text_of;

@implementation ZEB_Wide_Char_Vector (Text)

- (uint32_t)index_of_char:(uint32_t)unit
{
    return zeb::first_index_of(text_of(self), unit);
}

- (uint32_t)index_of_substring:(const uint32_t *)units length:(uint32_t)length
{
    return zeb::first_index_of_subsequence(text_of(self), std::span<const uint32_t>(units, length));
}

- (uint8_t)is_equal:(ZEB_Wide_Char_Vector *)other
{
    return other != nil && zeb::same_memory(text_of(self), text_of(other));
}

- (uint8_t)is_less:(ZEB_Wide_Char_Vector *)other
{
    return zeb::is_less(text_of(self), text_of(other));
}

- (ZEB_Comparison)compare:(ZEB_Wide_Char_Vector *)other
{
    return zeb::compare(text_of(self), text_of(other));
}

- (NSComparisonResult)platform_compare:(ZEB_Wide_Char_Vector *)other
{
    return zeb::platform_order(
        zeb::compare(text_of(self), text_of(zeb::vector_or_nil<ZEB_Wide_Char_Vector>(other))));
}

@end

@implementation ZEB_Wide_Char_Vector (Code_Points)

- (uint8_t)write_code_points_as_utf8:(ZEB_String *)target
{
    return target != nil && zeb::set_to_utf8_of_code_points(zeb::storage_of_array(target), text_of(self),
                                                            zeb::Fix_Report{target, _cmd});
}

- (void)join_surrogate_pairs
{
    count = static_cast<uint32_t>(zeb::join_surrogate_pairs(zeb::storage_of_vector(self).elements()));
}

@end
