#import <Korvane_ZEB/ZEB_T_Algorithms.h>

#import <Korvane_ZEB/ZEB_UInt_Array.h>

#import "arrays/ZEB_Printing_Private.h"
#import "arrays/ZEB_T_Storage_Private.h"

#include "arrays/engine/algorithms/extrema.hpp"
#include "arrays/engine/algorithms/reorder.hpp"
#include "arrays/engine/algorithms/search.hpp"
#include "arrays/engine/algorithms/sort.hpp"
#include "arrays/engine/storage/equality.hpp"
#include "arrays/engine/storage/fill.hpp"
#include "arrays/engine/storage/occurrences.hpp"
#include "arrays/engine/storage/ordered_insertion.hpp"
#include "arrays/engine/storage/permutation.hpp"
#include "arrays/engine/storage/removal.hpp"
#include "arrays/engine/storage/replacement.hpp"

using zeb::storage_of_array;
using zeb::storage_of_vector;

namespace
{

using Element = ZEB_T_Element;
using Kind = zeb::ZEB_T_Kind;
using Own_Order = zeb::Three_Way<Kind::Less>;

constexpr Kind::Equality equality{};
constexpr Kind::Less order{};

std::span<Element> elements_of(ZEB_T_Vector *vector) { return {[vector TT_word_data], [vector count]}; }

std::span<const Element> read(ZEB_T_Vector *vector) { return elements_of(vector); }

std::span<uint32_t> indexes_of(ZEB_UInt_Array *indexes) { return {[indexes uint_data], [indexes count]}; }

} // namespace

@implementation ZEB_T_Vector (Algorithms)

- (uint32_t)index_of_TT_word:(ZEB_T_Element)element
{
    return zeb::first_index_of(read(self), element, equality);
}

- (uint32_t)last_index_of_TT_word:(ZEB_T_Element)element
{
    return zeb::last_index_of(read(self), element, equality);
}

- (uint32_t)index_of_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n
{
    return zeb::first_index_of_subsequence(read(self), {elements, n}, equality);
}

- (uint32_t)ordered_index_of_TT_word:(ZEB_T_Element)key
{
    return zeb::told(zeb::ordered_find(read(self), key, Own_Order()), zeb::Fix_Report{self, _cmd});
}

- (uint32_t)ordered_index_of_TT_word:(ZEB_T_Element)key comparison:(ZEB_T_Comparison)comparison
{
    return zeb::told(zeb::ordered_find(read(self), key, comparison), zeb::Fix_Report{self, _cmd});
}

- (uint32_t)nearest_ordered_index_of_TT_word:(ZEB_T_Element)key
{
    return zeb::told(zeb::ordered_find_nearest(read(self), key, Own_Order()), zeb::Fix_Report{self, _cmd});
}

- (uint32_t)nearest_ordered_index_of_TT_word:(ZEB_T_Element)key comparison:(ZEB_T_Comparison)comparison
{
    return zeb::told(zeb::ordered_find_nearest(read(self), key, comparison), zeb::Fix_Report{self, _cmd});
}

- (ZEB_T_Element)minimum_TT_word
{
    return zeb::minimum(read(self), order);
}

- (ZEB_T_Element)maximum_TT_word
{
    return zeb::maximum(read(self), order);
}

- (void)get_minimum_TT_word:(ZEB_T_Element *)minimum maximum:(ZEB_T_Element *)maximum
{
    const zeb::Extrema<Element> extrema = zeb::minimum_and_maximum(read(self), order);
    *minimum = extrema.minimum;
    *maximum = extrema.maximum;
}

- (void)fill_with_TT_word:(ZEB_T_Element)element
{
    zeb::fill_with(storage_of_vector(self), element, zeb::Fix_Report{self, _cmd});
}

- (void)fill_range:(ZEB_Index_Range)range with_TT_word:(ZEB_T_Element)element
{
    zeb::fill_range_with(storage_of_vector(self), range, element, zeb::Fix_Report{self, _cmd});
}

- (uint32_t)replace_every_TT_word:(ZEB_T_Element)element with:(ZEB_T_Element)replacement
{
    return zeb::replace_every(storage_of_vector(self), element, replacement, zeb::Fix_Report{self, _cmd});
}

- (void)remove_every_TT_word:(ZEB_T_Element)element
{
    zeb::remove_every(storage_of_vector(self), element);
}

- (void)remove_element_at_index:(uint32_t)index
{
    zeb::remove_element(storage_of_vector(self), index);
}

- (void)remove_range:(ZEB_Index_Range)range
{
    zeb::remove_range(storage_of_vector(self), range, zeb::Fix_Report{self, _cmd});
}

- (void)replace_range:(ZEB_Index_Range)range with_TT_word:(ZEB_T_Element)element
{
    zeb::replace_range(storage_of_vector(self), range, element, zeb::Fix_Report{self, _cmd});
}

- (void)move_element_from_index:(uint32_t)from to_index:(uint32_t)to
{
    zeb::move_element(elements_of(self), from, to);
}

- (void)swap_element_at_index:(uint32_t)first with_index:(uint32_t)second
{
    zeb::swap_elements(elements_of(self), first, second);
}

- (void)reverse
{
    zeb::reverse(elements_of(self));
}

- (void)sort
{
    zeb::sort(elements_of(self), order);
}

- (void)sort_TT_words_with_comparison:(ZEB_T_Comparison)comparison
{
    zeb::sort_by(elements_of(self), comparison);
}

- (void)sort_with_permutation:(ZEB_UInt_Array *)indexes
{
    zeb::sort_with_permutation(elements_of(self), indexes_of(indexes), order);
}

- (void)sort_TT_words_with_comparison:(ZEB_T_Comparison)comparison permutation:(ZEB_UInt_Array *)indexes
{
    zeb::sort_with_permutation_by(elements_of(self), indexes_of(indexes), comparison);
}

- (void)apply_permutation:(ZEB_UInt_Array *)indexes
{
    zeb::permute(storage_of_vector(self), indexes_of(indexes), zeb::Permutation_Way::forward,
                 zeb::Fix_Report{self, _cmd});
}

- (void)apply_inverse_permutation:(ZEB_UInt_Array *)indexes
{
    zeb::permute(storage_of_vector(self), indexes_of(indexes), zeb::Permutation_Way::inverse,
                 zeb::Fix_Report{self, _cmd});
}

- (void)transpose_rows:(uint32_t)rows columns:(uint32_t)columns
{
    if (!zeb::transpose(elements_of(self), rows, columns))
        zeb::Fix_Report{self, _cmd}(zeb::notes::allocate_failed);
}

- (uint8_t)is_equal_to_vector:(ZEB_T_Vector *)other
{
    return other != nil && zeb::equals_as_vector<Kind>(read(self), read(other));
}

- (uint8_t)is_equal_to_collection:(ZEB_T_Collection *)other
{
    return other != nil && zeb::same_values(read(self), {[other TT_word_data], [other count]}, equality);
}

- (BOOL)isEqual:(id)other
{
    return self == other || ([other isKindOfClass:[ZEB_T_Vector class]] &&
                             zeb::equals_as_vector<Kind>(read(self), read(other)));
}

- (NSUInteger)hash
{
    return zeb::hash_as_vector<Kind>(read(self));
}

- (void)print_on_stream:(ZEB_Stream *)stream
{
    zeb::print_elements(stream, read(self));
}

@end

@implementation ZEB_T_Array (Algorithms)

- (uint32_t)ordered_insert_TT_word:(ZEB_T_Element)element inserts:(uint8_t)inserts
{
    return zeb::ordered_insert(storage_of_array(self), element, Own_Order(), inserts != 0,
                               zeb::Fix_Report{self, _cmd});
}

- (uint32_t)ordered_insert_TT_word:(ZEB_T_Element)element
                        comparison:(ZEB_T_Comparison)comparison
                           inserts:(uint8_t)inserts
{
    return zeb::ordered_insert(storage_of_array(self), element, comparison, inserts != 0,
                               zeb::Fix_Report{self, _cmd});
}

- (uint32_t)replace_occurrences:(ZEB_T_Vector *)target replacement:(ZEB_T_Vector *)replacement
{
    return zeb::replace_occurrences(storage_of_array(self), read(target), read(replacement),
                                    zeb::Fix_Report{self, _cmd});
}

@end
