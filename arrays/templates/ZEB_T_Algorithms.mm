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
#include "core/engine/namespace.hpp"

using engine::storage_of_array;
using engine::storage_of_vector;

namespace
{

using Element = ZEB_T_Element;
using Kind = engine::ZEB_T_Kind;
using Own_Order = engine::Three_Way<Kind::Less>;

constexpr Kind::Equality equality{};
constexpr Kind::Less order{};

std::span<Element> elements_of(ZEB_T_Vector *vector) { return {[vector TT_word_data], [vector count]}; }

std::span<const Element> read(ZEB_T_Vector *vector) { return elements_of(vector); }

std::span<uint32_t> indexes_of(ZEB_UInt_Array *indexes) { return {[indexes uint_data], [indexes count]}; }

} // namespace

@implementation ZEB_T_Vector (Algorithms)

- (uint32_t)index_of_TT_word:(ZEB_T_Element)element
{
    return engine::first_index_of(read(self), element, equality);
}

- (uint32_t)last_index_of_TT_word:(ZEB_T_Element)element
{
    return engine::last_index_of(read(self), element, equality);
}

- (uint32_t)index_of_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n
{
    return engine::first_index_of_subsequence(read(self), {elements, n}, equality);
}

- (uint32_t)ordered_index_of_TT_word:(ZEB_T_Element)key
{
    return engine::report_and_index(engine::ordered_find(read(self), key, Own_Order()),
                                    engine::Fix_Report{self, _cmd});
}

- (uint32_t)ordered_index_of_TT_word:(ZEB_T_Element)key comparison:(ZEB_T_Comparison)comparison
{
    return engine::report_and_index(engine::ordered_find(read(self), key, comparison),
                                    engine::Fix_Report{self, _cmd});
}

- (uint32_t)nearest_ordered_index_of_TT_word:(ZEB_T_Element)key
{
    return engine::report_and_index(engine::ordered_find_nearest(read(self), key, Own_Order()),
                                    engine::Fix_Report{self, _cmd});
}

- (uint32_t)nearest_ordered_index_of_TT_word:(ZEB_T_Element)key comparison:(ZEB_T_Comparison)comparison
{
    return engine::report_and_index(engine::ordered_find_nearest(read(self), key, comparison),
                                    engine::Fix_Report{self, _cmd});
}

- (ZEB_T_Element)minimum_TT_word
{
    return engine::minimum(read(self), order);
}

- (ZEB_T_Element)maximum_TT_word
{
    return engine::maximum(read(self), order);
}

- (void)get_minimum_TT_word:(ZEB_T_Element *)minimum maximum:(ZEB_T_Element *)maximum
{
    const engine::Extrema<Element> extrema = engine::minimum_and_maximum(read(self), order);
    *minimum = extrema.minimum;
    *maximum = extrema.maximum;
}

- (void)fill_with_TT_word:(ZEB_T_Element)element
{
    engine::fill_with(storage_of_vector(self), element, engine::Fix_Report{self, _cmd});
}

- (void)fill_range:(ZEB_Index_Range)range with_TT_word:(ZEB_T_Element)element
{
    engine::fill_range_with(storage_of_vector(self), range, element, engine::Fix_Report{self, _cmd});
}

- (uint32_t)replace_every_TT_word:(ZEB_T_Element)element with:(ZEB_T_Element)replacement
{
    return engine::replace_every(storage_of_vector(self), element, replacement,
                                 engine::Fix_Report{self, _cmd});
}

- (void)remove_every_TT_word:(ZEB_T_Element)element
{
    engine::remove_every(storage_of_vector(self), element);
}

- (void)remove_element_at_index:(uint32_t)index
{
    engine::remove_element(storage_of_vector(self), index);
}

- (void)remove_range:(ZEB_Index_Range)range
{
    engine::remove_range(storage_of_vector(self), range, engine::Fix_Report{self, _cmd});
}

- (void)replace_range:(ZEB_Index_Range)range with_TT_word:(ZEB_T_Element)element
{
    engine::replace_range(storage_of_vector(self), range, element, engine::Fix_Report{self, _cmd});
}

- (void)move_element_from_index:(uint32_t)from to_index:(uint32_t)to
{
    engine::move_element(elements_of(self), from, to);
}

- (void)swap_element_at_index:(uint32_t)first with_index:(uint32_t)second
{
    engine::swap_elements(elements_of(self), first, second);
}

- (void)reverse
{
    engine::reverse(elements_of(self));
}

- (void)sort
{
    engine::sort(elements_of(self), order);
}

- (void)sort_TT_words_with_comparison:(ZEB_T_Comparison)comparison
{
    engine::sort_by(elements_of(self), comparison);
}

- (void)sort_with_permutation:(ZEB_UInt_Array *)indexes
{
    engine::sort_with_permutation(elements_of(self), indexes_of(indexes), order);
}

- (void)sort_TT_words_with_comparison:(ZEB_T_Comparison)comparison permutation:(ZEB_UInt_Array *)indexes
{
    engine::sort_with_permutation_by(elements_of(self), indexes_of(indexes), comparison);
}

- (void)apply_permutation:(ZEB_UInt_Array *)indexes
{
    engine::permute(storage_of_vector(self), indexes_of(indexes), engine::Permutation_Direction::forward,
                    engine::Fix_Report{self, _cmd});
}

- (void)apply_inverse_permutation:(ZEB_UInt_Array *)indexes
{
    engine::permute(storage_of_vector(self), indexes_of(indexes), engine::Permutation_Direction::inverse,
                    engine::Fix_Report{self, _cmd});
}

- (void)transpose_rows:(uint32_t)rows columns:(uint32_t)columns
{
    if (!engine::transpose(elements_of(self), rows, columns))
        engine::Fix_Report{self, _cmd}(engine::notes::allocate_failed);
}

- (uint8_t)is_equal_to_vector:(ZEB_T_Vector *)other
{
    return other != nil && engine::equals_as_vector<Kind>(read(self), read(other));
}

- (uint8_t)is_equal_to_collection:(ZEB_T_Collection *)other
{
    return other != nil && engine::same_values(read(self), {[other TT_word_data], [other count]}, equality);
}

- (BOOL)isEqual:(id)other
{
    return self == other || ([other isKindOfClass:[ZEB_T_Vector class]] &&
                             engine::equals_as_vector<Kind>(read(self), read(other)));
}

- (NSUInteger)hash
{
    return engine::hash_as_vector<Kind>(read(self));
}

- (void)print_on_stream:(ZEB_Stream *)stream
{
    engine::print_elements(stream, read(self));
}

@end

@implementation ZEB_T_Array (Algorithms)

- (uint32_t)ordered_insert_TT_word:(ZEB_T_Element)element inserts:(uint8_t)inserts
{
    return engine::ordered_insert(storage_of_array(self), element, Own_Order(), inserts != 0,
                                  engine::Fix_Report{self, _cmd});
}

- (uint32_t)ordered_insert_TT_word:(ZEB_T_Element)element
                        comparison:(ZEB_T_Comparison)comparison
                           inserts:(uint8_t)inserts
{
    return engine::ordered_insert(storage_of_array(self), element, comparison, inserts != 0,
                                  engine::Fix_Report{self, _cmd});
}

- (uint32_t)replace_occurrences:(ZEB_T_Vector *)target replacement:(ZEB_T_Vector *)replacement
{
    return engine::replace_occurrences(storage_of_array(self), read(target), read(replacement),
                                       engine::Fix_Report{self, _cmd});
}

@end
