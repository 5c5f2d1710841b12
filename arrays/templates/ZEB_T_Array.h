/*
 * Growable arrays of TT_PHRASE.
 */
#import <Korvane_ZEB/ZEB_T_Vector.h>

/**
 * A vector that can grow. Growth takes capacities of the form seed × 2^k, always past the count that is
 * asked for, so that a growth leaves at least one element free.
 *
 * On a link every operation that would change the block or the count refuses: it reports a message of its
 * own (below) through the shared error stream's `need_to_fix_algorithm`, and changes nothing. Setting the
 * contents and the copy operations turn a link into an owner.
 *
 * Where memory is short, or a size does not fit in 32 bits, "Runtime error in allocate macro" or "Runtime
 * error in reallocate macro" is reported, and the array stays as it was. An array that is given to itself
 * is read as if it had been copied first.
 */
ZEB_EXPORT
@interface ZEB_T_Array : ZEB_T_Vector {
    ZEB_PROTECTED
    uint32_t capacity;
}

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** The smallest capacity that growth chooses, for all arrays of this family: 16 at first; 0 counts as 1. */
+ (uint32_t)growth_seed;
+ (void)set_growth_seed:(uint32_t)seed;

/** An autoreleased, empty array with a block for `n` elements. */
+ (ZEB_T_Array *)array_with_capacity:(uint32_t)n;

/** An autoreleased link to `n` elements at `elements`; its capacity reads 4294967295. */
+ (ZEB_T_Array *)link_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n;

/** Makes an empty array without a block. */
- (id)init;

/** Makes an empty owner without a block. */
- (id)init_unlinked;

/** Makes an empty array with a block for exactly `n` elements; without one for 0. */
- (id)init_with_capacity:(uint32_t)n;

/** Makes an array of `length` elements, undefined at first; the capacity is the smallest seed × 2^k past
    the length. */
- (id)init_with_length:(uint32_t)length;

/** Makes a link to `n` elements at `elements`; its capacity reads 4294967295. */
- (id)init_as_link_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n;

/** Makes a link to a range of a vector, both ends included and not checked; its capacity reads
    4294967295. */
- (id)init_as_link_to_TT_word_vector:(ZEB_T_Vector *)other range:(ZEB_Index_Range)range;

/** Makes an owner with a copy of `n` elements; the capacity is the smallest seed × 2^k past `n`. */
- (id)init_as_copy_of_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n;

/** Makes an owner with a copy of a vector's elements; the capacity is their count. */
- (id)init_as_copy_of_TT_word_vector:(ZEB_T_Vector *)other;

/** An autoreleased copy of the receiver's class: an owner, also of a link's elements. Of a subclass it has
    the elements and the settings of this class; neither the subclass's own initialisers run nor are its
    fields copied. */
- (ZEB_T_Array *)duplicate;

/** How many elements the block holds. Setting it moves no storage. */
- (uint32_t)capacity;
- (void)set_capacity:(uint32_t)n;

/** The smallest seed × 2^k that is not below the count. Changes nothing. */
- (uint32_t)proper_capacity;

/** Cuts the capacity to the proper one where it is larger. A link reports "Cannot trim allocation through
    link, no adjustment made." */
- (void)trim_allocation;

/** Sets the count, growing as needed; elements gained are undefined, or hold nothing. A link reports
    "Cannot update length through link, no adjustment made." */
- (void)set_length:(uint32_t)length;

/** Makes the count larger by `n`. A link reports "Cannot update capacity through link, no adjustment
    made." */
- (void)extend_length_by:(uint32_t)n;

/** Makes the capacity larger than `n`. A link reports "Cannot modify capacity through link, no adjustment
    made." */
- (void)ensure_capacity_greater_than:(uint32_t)n;

/** Makes the capacity larger than the count and `n` together. A link reports "Cannot update capacity
    through link, no adjustment made." */
- (void)ensure_room_for:(uint32_t)n;

/** Becomes a copy of `n` elements. A link becomes an owner and forgets what it viewed. */
- (void)set_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n;

/** Becomes a copy of a vector's elements, in the same way; nil has none. */
- (void)set_contents_of_array:(ZEB_T_Vector *)other;

/** Becomes an owner of a block for `n` elements or more; see the vector's operations. */
- (void)copy_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n capacity:(uint32_t)room;
- (void)copy_vector:(ZEB_T_Vector *)other capacity:(uint32_t)room;

/** Becomes exactly this one element. A link reports "Cannot copy element through link, no copy made." */
- (void)copy_TT_word:(ZEB_T_Element)element;

/** Puts an element at the end. A link reports "Cannot append element through link, no append made." */
- (void)append_TT_word:(ZEB_T_Element)element;

/** Puts a vector's elements, or `n` elements, at the end; none is done at once, in silence. A link reports
    "Cannot append array through link, no append made." */
- (void)append_array:(ZEB_T_Vector *)other;
- (void)append_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n;

/** Puts an element before the one at `index`; an index past the end appends. A link reports "Cannot
    insert element through link, no insertion made." */
- (void)insert_TT_word:(ZEB_T_Element)element at_index:(uint32_t)index;

/** Puts a vector's elements before the one at `index`; an index past the end appends. A link reports
    "Cannot insert array through link, no insertion made." */
- (void)insert_array:(ZEB_T_Vector *)other at_index:(uint32_t)index;

/** Puts elements in the place of the one at `index`; none removes it. An index past the end changes
    nothing. A link reports "Cannot replace element with array through link, no replacement made." */
- (void)replace_element_at_index:(uint32_t)index with_array:(ZEB_T_Vector *)other;
- (void)replace_element_at_index:(uint32_t)index
                   with_TT_words:(ZEB_T_Element const *)elements
                           count:(uint32_t)n;

/** Declared for every array and provided by none: reports "Not implemented" through `need_to_implement`
    and changes nothing. */
- (void)receive_from_stream:(ZEB_Stream *)stream;

@end
