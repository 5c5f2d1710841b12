/*
 * Searching, sorting and rearranging TT_PHRASE.
 */
#import <Korvane_ZEB/ZEB_T_Array.h>

@class ZEB_UInt_Array;

ZEB_ASSUME_NONNULL_BEGIN

/** A caller's comparison: returns ZEB_COMPARED_EQUAL, ZEB_COMPARED_LESS if the key orders before the element,
    or ZEB_COMPARED_GREATER if after. Any other result is an unknown comparison. */
typedef ZEB_Comparison (*ZEB_T_Comparison)(TT_VALUE const *ZEB_NONNULL key,
                                           TT_VALUE const *ZEB_NONNULL element);

/**
 * Searching, sorting and in-place changes of vectors, arrays and links. Nothing here moves a block;
 * operations that change elements write through a link as well.
 *
 * Elements are equal by their type's `==` and ordered by its order: numbers by value (unsigned for unsigned
 * types), references by address, and objects that an array owns by their contents, compared as unsigned.
 * Indexes are zero-based and ranges inclusive. If an allocation fails, "Runtime error in allocate macro" is
 * reported and nothing changes.
 */
@interface ZEB_T_Vector (Algorithms)

/** Return the index of the first or last element equal to the given one, or ZEB_NOT_FOUND. */
- (uint32_t)index_of_TT_word:(TT_VALUE)element;
- (uint32_t)last_index_of_TT_word:(TT_VALUE)element;

/** Returns the index at which a run of elements first begins; ZEB_NOT_FOUND if there is none or the run is
    empty. A run that ends with the last element is not found: the last possible start is not tried. */
- (uint32_t)index_of_TT_words:(TT_SLOT const *ZEB_NULLABLE)elements count:(uint32_t)n;

/** Searches ascending elements by bisection and returns the index of one equal to `key`, or ZEB_NOT_FOUND.
    Among several equal ones any may be returned. NaN, as key or as an element, counts as equal to every
    value. If the comparison returns an unknown result, the search returns the index of the element that was
    compared; in a vector of one element it returns ZEB_NOT_FOUND, and the result 0 reports "Warning: Ordered
    find stopped on unknown comparison." */
- (uint32_t)ordered_index_of_TT_word:(TT_VALUE)key;
- (uint32_t)ordered_index_of_TT_word:(TT_VALUE)key comparison:(ZEB_T_Comparison)comparison;

/** The same search, which without a match returns the index of the bound at which it stopped; ZEB_NOT_FOUND
    only for an empty vector. In a vector of one element an unknown result is reported and 0 returned. */
- (uint32_t)nearest_ordered_index_of_TT_word:(TT_VALUE)key;
- (uint32_t)nearest_ordered_index_of_TT_word:(TT_VALUE)key comparison:(ZEB_T_Comparison)comparison;

/** Return the smallest element, the largest element, or both: the first of equal ones; NaN only if it is at
    index 0; 0 or nil for an empty vector. */
- (TT_VALUE)minimum_TT_word;
- (TT_VALUE)maximum_TT_word;
- (void)get_minimum_TT_word:(TT_VALUE *ZEB_NONNULL)minimum maximum:(TT_VALUE *ZEB_NONNULL)maximum;

/** Store an element at every index, or at those of a range; a range that starts after its end is empty. */
- (void)fill_with_TT_word:(TT_VALUE)element;
- (void)fill_range:(ZEB_Index_Range)range with_TT_word:(TT_VALUE)element;

/** Stores `replacement` over every element equal to `element` and returns their number. Other elements are
    not written. */
- (uint32_t)replace_every_TT_word:(TT_VALUE)element with:(TT_VALUE)replacement;

/** Removes every element equal to the given one; the others keep their order. */
- (void)remove_every_TT_word:(TT_VALUE)element;

/** Removes the element at an index; an index past the last changes nothing. */
- (void)remove_element_at_index:(uint32_t)index;

/** Remove a range, or replace it with one element; the range is cut at the last element. A range that ends
    before it starts reports "End index is less than start index in removal." and changes nothing. */
- (void)remove_range:(ZEB_Index_Range)range;
- (void)replace_range:(ZEB_Index_Range)range with_TT_word:(TT_VALUE)element;

/** Move an element to index `to`, shifting those between by one, or exchange two elements. An index past the
    last changes nothing. */
- (void)move_element_from_index:(uint32_t)from to_index:(uint32_t)to;
- (void)swap_element_at_index:(uint32_t)first with_index:(uint32_t)second;

/** Reverses the order, except that the middle pair of an even count keeps its order: a, b, c, d becomes d, b,
    c, a. */
- (void)reverse;

/** Sort in ascending order. Equal elements end where a Shell sort with the gaps 1, 4, 13, 40, ... leaves
    them. The comparison is called with (later element, earlier element) and the two are exchanged if it
    returns 2. NaN orders neither before nor after any value: elements that include NaN end in a reproducible
    order that need not be ascending. */
- (void)sort;
- (void)sort_TT_words_with_comparison:(ZEB_T_Comparison)comparison;

/** Sort and make every exchange in `indexes` as well: if these were 0, 1, 2, ..., element i was element
    `indexes[i]` before, as `apply_permutation:` expects. With fewer indexes than elements nothing changes and
    nothing is reported. Indexes that share memory with the elements are sorted as elements and not exchanged
    separately. */
- (void)sort_with_permutation:(ZEB_UInt_Array *ZEB_NULLABLE)indexes;
- (void)sort_TT_words_with_comparison:(ZEB_T_Comparison)comparison
                          permutation:(ZEB_UInt_Array *ZEB_NULLABLE)indexes;

/** Move elements: element i becomes the former element `indexes[i]`, or element `indexes[i]` the former
    element i, for as many as the shorter of both has. An index outside the vector reports "Permutation names
    an element outside the array, no change made." */
- (void)apply_permutation:(ZEB_UInt_Array *ZEB_NULLABLE)indexes;
- (void)apply_inverse_permutation:(ZEB_UInt_Array *ZEB_NULLABLE)indexes;

/** Transposes the elements, a matrix in row-major order; only if `rows` and `columns` are at least 2 and
    their product is the count. */
- (void)transpose_rows:(uint32_t)rows columns:(uint32_t)columns;

/** Return 1 if both hold the same elements in the same order, else 0: compared bytewise, or, with a
    collection of any class, by `==`. Objects that an array owns are compared by contents. Nothing equals
    nil. */
- (uint8_t)is_equal_to_vector:(ZEB_T_Vector *ZEB_NULLABLE)other;
- (uint8_t)is_equal_to_collection:(ZEB_T_Collection *ZEB_NULLABLE)other;

/** Equality with another vector of this family, and a hash that agrees with it. */
- (BOOL)isEqual:(id ZEB_NULLABLE)other;
- (NSUInteger)hash;

/** Writes the elements between "{" and "}", separated by ", ": numbers in decimal, objects as they write
    themselves. */
- (void)print_on_stream:(ZEB_Stream *ZEB_NULLABLE)stream;

@end

@interface ZEB_T_Array (Algorithms)

/** Inserts an element among ascending ones and returns its index. If an equal one exists, returns that one's
    index and inserts nothing (NaN counts as equal to every value). With `inserts` 0 nothing is ever inserted,
    and ZEB_NOT_FOUND is returned instead. An unknown result of the comparison returns the index of the
    element that was compared; in an array of one element it also reports "Warning: Ordered insert stopped on
    unknown comparison." A link that would have to insert reports "Cannot insert element through link, no
    insertion made." and returns ZEB_NOT_FOUND. */
- (uint32_t)ordered_insert_TT_word:(TT_VALUE)element inserts:(uint8_t)inserts;
- (uint32_t)ordered_insert_TT_word:(TT_VALUE)element
                        comparison:(ZEB_T_Comparison)comparison
                           inserts:(uint8_t)inserts;

/** Replaces every occurrence of `target` with `replacement`, from the front and without overlap, including
    one that ends with the last element, and returns their number. An empty target has no occurrences. A link
    reports "Can not replace occurences through a link". If allocation fails, "Runtime error in allocate
    macro" is reported and nothing changes. */
- (uint32_t)replace_occurrences:(ZEB_T_Vector *ZEB_NULLABLE)target
                    replacement:(ZEB_T_Vector *ZEB_NULLABLE)replacement;

@end

ZEB_ASSUME_NONNULL_END
