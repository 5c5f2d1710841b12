#import <Korvane_ZEB/ZEB_Wide_Char_Text.h>

#import "strings/ZEB_Text_Private.h"

#include "arrays/engine/algorithms/equality.hpp"
#include "arrays/engine/algorithms/search.hpp"
#include "core/engine/namespace.hpp"
#include "strings/engine/text_comparison.hpp"
#include "strings/engine/transcoding.hpp"

using engine::text_of;

@implementation ZEB_Wide_Char_Vector (Text)

- (uint32_t)index_of_char:(uint32_t)unit
{
    return engine::first_index_of(text_of(self), unit);
}

- (uint32_t)index_of_substring:(const uint32_t *)units length:(uint32_t)length
{
    return engine::first_index_of_subsequence(text_of(self), std::span<const uint32_t>(units, length));
}

- (uint8_t)is_equal:(ZEB_Wide_Char_Vector *)other
{
    return other != nil && engine::same_memory(text_of(self), text_of(other));
}

- (uint8_t)is_less:(ZEB_Wide_Char_Vector *)other
{
    return engine::is_less(text_of(self), text_of(other));
}

- (ZEB_Comparison)compare:(ZEB_Wide_Char_Vector *)other
{
    return engine::compare(text_of(self), text_of(other));
}

- (NSComparisonResult)platform_compare:(ZEB_Wide_Char_Vector *)other
{
    return engine::platform_order(
        engine::compare(text_of(self), text_of(engine::instance_or_nil<ZEB_Wide_Char_Vector>(other))));
}

@end

@implementation ZEB_Wide_Char_Vector (Code_Points)

- (uint8_t)write_code_points_as_utf8:(ZEB_String *)target
{
    return target != nil &&
           engine::set_to_utf8_of_code_points(engine::storage_of_array(target), text_of(self),
                                              engine::Fix_Report{target, _cmd});
}

- (void)join_surrogate_pairs
{
    count = static_cast<uint32_t>(engine::join_surrogate_pairs(engine::storage_of_vector(self).elements()));
}

@end
