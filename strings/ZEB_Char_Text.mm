#import <Korvane_ZEB/ZEB_Char_Text.h>

#import "strings/ZEB_Text_Private.h"

#include "arrays/engine/algorithms/equality.hpp"
#include "arrays/engine/algorithms/search.hpp"
#include "core/engine/namespace.hpp"
#include "strings/engine/number_scanners.hpp"
#include "strings/engine/text_comparison.hpp"
#include "strings/engine/utf.hpp"

using engine::text_of;

@implementation ZEB_Char_Vector (Text)

- (uint32_t)index_of_substring:(const char *)bytes length:(uint32_t)length
{
    return engine::first_index_of_subsequence(text_of(self), std::span<const char>(bytes, length));
}

- (uint32_t)index_of_number_start
{
    return engine::index_of_number_start(text_of(self));
}

- (uint32_t)number_prefix_length
{
    return engine::number_prefix_length(text_of(self));
}

- (uint32_t)index_of_number_end
{
    return engine::index_of_number_end(text_of(self));
}

- (uint32_t)index_of_last_non_number
{
    return engine::index_of_last_non_number(text_of(self));
}

- (uint8_t)is_equal:(ZEB_Char_Vector *)other
{
    return other != nil && engine::same_memory(text_of(self), text_of(other));
}

- (uint8_t)is_equal_ignoring_case:(ZEB_Char_Vector *)other
{
    return other != nil && engine::is_equal_ignoring_case(text_of(self), text_of(other));
}

- (uint8_t)is_less:(ZEB_Char_Vector *)other
{
    return engine::is_less(text_of(self), text_of(other));
}

- (ZEB_Comparison)compare:(ZEB_Char_Vector *)other
{
    return engine::compare(text_of(self), text_of(other));
}

- (NSComparisonResult)platform_compare:(ZEB_Char_Vector *)other
{
    return engine::platform_order(
        engine::compare(text_of(self), text_of(engine::instance_or_nil<ZEB_Char_Vector>(other))));
}

- (ZEB_Comparison)compare_ignoring_case:(ZEB_Char_Vector *)other
{
    return engine::compare_ignoring_case(text_of(self), text_of(other));
}

- (uint8_t)is_valid_utf8
{
    return engine::is_valid_utf8(text_of(self));
}

@end
