/*
 * Searching, ordering and rearranging TT_PHRASE.
 */
#import <Korvane_ZEB/ZEB_T_Array.h>

@class ZEB_UInt_Array;

/** A caller's comparison: ZEB_COMPARED_EQUAL, ZEB_COMPARED_LESS when the key orders before the element, or
    ZEB_COMPARED_GREATER when after; any other answer is an unknown comparison. */
typedef ZEB_Comparison (*ZEB_T_Comparison)(ZEB_T_Element const *key, ZEB_T_Element const *element);

/**
 * What vectors, and so arrays and links, are asked. Nothing here moves a block; the operations that
 * change elements work through a link as well. Elements are told apart by their type's own `==`, and
 * ordered by its own order: numbers by value (unsigned where the type is), references by address, and
 * objects that an array holds by their contents, read as unsigned. Indexes and ranges are zero-based;
 * both ends of a range belong to it. What takes memory and cannot have it reports "Runtime error in
 * allocate macro" and changes nothing.
 */
@interface ZEB_T_Vector (Algorithms)

/** The index of the first or last element equal to the given one; ZEB_NOT_FOUND without one. */
- (uint32_t)index_of_TT_word:(ZEB_T_Element)element;
- (uint32_t)last_index_of_TT_word:(ZEB_T_Element)element;

/** Where a run of elements first begins; ZEB_NOT_FOUND without one, and for an empty run. A run that ends
    with the last element is not found: the last possible start is never tried. */
- (uint32_t)index_of_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n;

/** Binary search in ascending elements: the index of one equal to `key`, or ZEB_NOT_FOUND. Of several equal
    ones any may be the result. NaN, as key or as an element, counts as equal to all it is compared with. With
   a comparison, an unknown answer ends the search at the element that it was given about; about a single
    element it finds nothing, and 0 reports "Warning: Ordered find stopped on unknown comparison." */
- (uint32_t)ordered_index_of_TT_word:(ZEB_T_Element)key;
- (uint32_t)ordered_index_of_TT_word:(ZEB_T_Element)key comparison:(ZEB_T_Comparison)comparison;

/** The same search, which without a match answers the index of the bound where it stopped; ZEB_NOT_FOUND
    in an empty vector only. An unknown answer about a single element is reported, and 0 answered. */
- (uint32_t)nearest_ordered_index_of_TT_word:(ZEB_T_Element)key;
- (uint32_t)nearest_ordered_index_of_TT_word:(ZEB_T_Element)key comparison:(ZEB_T_Comparison)comparison;

/** The smallest and the largest element: the first of equal ones, a not-a-number only from index 0; 0 or
    nothing in an empty vector. */
- (ZEB_T_Element)minimum_TT_word;
- (ZEB_T_Element)maximum_TT_word;
- (void)get_minimum_TT_word:(ZEB_T_Element *)minimum maximum:(ZEB_T_Element *)maximum;

/** Stores an element everywhere, or in a range; a range that starts after its end has none. */
- (void)fill_with_TT_word:(ZEB_T_Element)element;
- (void)fill_range:(ZEB_Index_Range)range with_TT_word:(ZEB_T_Element)element;

/** Stores `replacement` over every element equal to `element`, and answers how many those were. An
    element that differs is not written. */
- (uint32_t)replace_every_TT_word:(ZEB_T_Element)element with:(ZEB_T_Element)replacement;

/** Removes every element equal to the given one and keeps the order of the rest. */
- (void)remove_every_TT_word:(ZEB_T_Element)element;

/** Removes the element at an index; an index past the last changes nothing. */
- (void)remove_element_at_index:(uint32_t)index;

/** Removes a range, or puts one element in its place; what lies past the last element is left out. A
    range that ends before it starts reports "End index is less than start index in removal." and changes
    nothing. */
- (void)remove_range:(ZEB_Index_Range)range;
- (void)replace_range:(ZEB_Index_Range)range with_TT_word:(ZEB_T_Element)element;

/** Moves an element so that it ends at index `to`; those between shift by one. Exchanges two elements.
    An index past the last changes nothing. */
- (void)move_element_from_index:(uint32_t)from to_index:(uint32_t)to;
- (void)swap_element_at_index:(uint32_t)first with_index:(uint32_t)second;

/** Reverses the order, except that an even count keeps that of its middle pair: a, b, c, d becomes d, b,
    c, a. */
- (void)reverse;

/** Sorts, ascending. Equal elements end where a Shell sort with the gaps 1, 4, 13, 40, ... leaves them. A
    comparison is asked about (the later, the earlier) element of a pair, which change places on 2. NaN
    orders before and after nothing: among NaNs the result is not ascending, though always the same. */
- (void)sort;
- (void)sort_TT_words_with_comparison:(ZEB_T_Comparison)comparison;

/** The same, every exchange made in `indexes` too: if those were 0, 1, 2, ... they tell afterwards where
    each element came from (element i was element `indexes[i]`), as `apply_permutation:` takes it. With
    fewer indexes than elements nothing changes and nothing is reported. Indexes that share memory with the
    elements are sorted with them and not exchanged. */
- (void)sort_with_permutation:(ZEB_UInt_Array *)indexes;
- (void)sort_TT_words_with_comparison:(ZEB_T_Comparison)comparison permutation:(ZEB_UInt_Array *)indexes;

/** Element i becomes what element `indexes[i]` was, or element `indexes[i]` what element i was, for as
    many as the shorter of both has. An index outside the vector reports "Permutation names an element
    outside the array, no change made." */
- (void)apply_permutation:(ZEB_UInt_Array *)indexes;
- (void)apply_inverse_permutation:(ZEB_UInt_Array *)indexes;

/** Rewrites the elements, read as rows of columns, column by column; only where both are at least 2 and
    their product is the count. */
- (void)transpose_rows:(uint32_t)rows columns:(uint32_t)columns;

/** 1 when both hold the same elements in the same order, else 0: compared as memory, or with a collection
    of any class by value, as `==` has it. Objects that an array holds are compared by contents. Nothing
    equals nil. */
- (uint8_t)is_equal_to_vector:(ZEB_T_Vector *)other;
- (uint8_t)is_equal_to_collection:(ZEB_T_Collection *)other;

/** Whether the other is a vector of this family and equal to this one; a hash that agrees with it. */
- (BOOL)isEqual:(id)other;
- (NSUInteger)hash;

/** Writes the elements in decimal, or as objects write themselves, separated by ", ", between "{" and
    "}". */
- (void)print_on_stream:(ZEB_Stream *)stream;

@end

@interface ZEB_T_Array (Algorithms)

/** Inserts an element among ascending ones and answers its index; where an equal one stands, answers that
    one's index and inserts nothing (NaN counts as equal to all it is compared with). With `inserts` 0 nothing
   is ever inserted, and ZEB_NOT_FOUND answered instead. An unknown answer of the comparison answers the index
   it was given about; about a single element it reports "Warning: Ordered insert stopped on unknown
   comparison." A link that would have to insert reports "Cannot insert element through link, no insertion
   made." and answers ZEB_NOT_FOUND. */
- (uint32_t)ordered_insert_TT_word:(ZEB_T_Element)element inserts:(uint8_t)inserts;
- (uint32_t)ordered_insert_TT_word:(ZEB_T_Element)element
                        comparison:(ZEB_T_Comparison)comparison
                           inserts:(uint8_t)inserts;

/** Puts `replacement` in the place of every occurrence of `target`, from the front and without overlap,
    one that ends with the last element included, and answers how many there were. An empty target has
    none. A link reports "Can not replace occurences through a link"; where memory is short "Runtime error
    in allocate macro" is reported and nothing changes. */
- (uint32_t)replace_occurrences:(ZEB_T_Vector *)target replacement:(ZEB_T_Vector *)replacement;

@end
