/*
 * Growable arrays of TT_PHRASE.
 */
#import <Korvane_ZEB/ZEB_T_Vector.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * A vector that can grow. Growth chooses capacities of the form seed × 2^k above the required count, so at
 * least one element stays free.
 *
 * On a link every operation that would change the block or the count is refused: it reports the message given
 * below through the shared error stream's `need_to_fix_algorithm` and changes nothing. Setting the contents
 * and the copy operations turn a link into an owner.
 *
 * If an allocation fails, or a size does not fit in 32 bits, "Runtime error in allocate macro" or "Runtime
 * error in reallocate macro" is reported, and the array is unchanged. An array passed to itself is read as if
 * copied first.
 */
ZEB_EXPORT
@interface ZEB_T_Array : ZEB_T_Vector {
    ZEB_PROTECTED
    uint32_t capacity;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** The smallest capacity that growth chooses, for all arrays of this family: 16 at first; 0 counts as 1. */
+ (uint32_t)growth_seed;
+ (void)set_growth_seed:(uint32_t)seed;

/** Returns an autoreleased, empty array with a block for `n` elements. */
+ (ZEB_INSTANCE_OF(ZEB_T_Array *))array_with_capacity:(uint32_t)n;

/** Returns an autoreleased link to `n` elements at `elements`; its capacity is 4294967295. */
+ (ZEB_INSTANCE_OF(ZEB_T_Array *))link_to_TT_words:(TT_SLOT *ZEB_NULLABLE)elements count:(uint32_t)n;

/** Initialises an empty array without a block. */
- (instancetype)init;

/** Initialises an empty owner without a block. */
- (instancetype)init_unlinked;

/** Initialises an empty array with a block for exactly `n` elements; no block for 0. */
- (instancetype)init_with_capacity:(uint32_t)n;

/** Initialises an array of `length` elements, undefined at first. The capacity is the smallest seed × 2^k
    above the length. */
- (instancetype)init_with_length:(uint32_t)length;

/** Initialises a link to `n` elements at `elements`; its capacity is 4294967295. */
- (instancetype)init_as_link_to_TT_words:(TT_SLOT *ZEB_NULLABLE)elements count:(uint32_t)n;

/** Initialises a link to an inclusive range of a vector; its capacity is 4294967295. The range is not
    checked. */
- (instancetype)init_as_link_to_TT_word_vector:(ZEB_T_Vector *ZEB_NULLABLE)other range:(ZEB_Index_Range)range;

/** Initialises an owner with a copy of `n` elements; the capacity is the smallest seed × 2^k above `n`. */
- (instancetype)init_as_copy_of_TT_words:(TT_SLOT const *ZEB_NULLABLE)elements count:(uint32_t)n;

/** Initialises an owner with a copy of a vector's elements; the capacity is their count. */
- (instancetype)init_as_copy_of_TT_word_vector:(ZEB_T_Vector *ZEB_NULLABLE)other;

/** Returns an autoreleased copy of the receiver's class: an owner, even if the receiver is a link. For a
    subclass, only the elements and the settings of this class are copied, not the subclass's fields, and its
    own initialisers do not run. */
- (ZEB_INSTANCE_OF(ZEB_T_Array *))duplicate;

/** The number of elements that the block can hold. Setting it does not change the block. */
- (uint32_t)capacity;
- (void)set_capacity:(uint32_t)n;

/** Returns the smallest seed × 2^k that is not below the count. */
- (uint32_t)proper_capacity;

/** Reduces the capacity to the proper one if it is larger. A link reports "Cannot trim allocation through
    link, no adjustment made." */
- (void)trim_allocation;

/** Sets the count, growing as needed; elements gained are undefined, nil, or empty objects. A link reports
    "Cannot update length through link, no adjustment made." */
- (void)set_length:(uint32_t)length;

/** Increases the count by `n`. A link reports "Cannot update capacity through link, no adjustment made." */
- (void)extend_length_by:(uint32_t)n;

/** Grows the capacity above `n`. A link reports "Cannot modify capacity through link, no adjustment made." */
- (void)ensure_capacity_greater_than:(uint32_t)n;

/** Grows the capacity above the count plus `n`. A link reports "Cannot update capacity through link, no
    adjustment made." */
- (void)ensure_room_for:(uint32_t)n;

/** Replaces the contents with a copy of `n` elements. A link becomes an owner; what it viewed is
    unchanged. */
- (void)set_TT_words:(TT_SLOT const *ZEB_NULLABLE)elements count:(uint32_t)n;

/** Replaces the contents with a copy of a vector's elements, in the same way; nil counts as empty. */
- (void)set_contents_of_array:(ZEB_T_Vector *ZEB_NULLABLE)other;

/** Replace the storage with an owned block for `room` elements or more; see the vector's operations. */
- (void)copy_TT_words:(TT_SLOT const *ZEB_NULLABLE)elements count:(uint32_t)n capacity:(uint32_t)room;
- (void)copy_vector:(ZEB_T_Vector *ZEB_NULLABLE)other capacity:(uint32_t)room;

/** Replaces the contents with one element. A link reports "Cannot copy element through link, no copy
    made." */
- (void)copy_TT_word:(TT_VALUE)element;

/** Appends an element. A link reports "Cannot append element through link, no append made." */
- (void)append_TT_word:(TT_VALUE)element;

/** Append a vector's elements, or `n` elements. Appending no elements returns without a link test or report.
    A link reports "Cannot append array through link, no append made." */
- (void)append_array:(ZEB_T_Vector *ZEB_NULLABLE)other;
- (void)append_TT_words:(TT_SLOT const *ZEB_NULLABLE)elements count:(uint32_t)n;

/** Inserts an element before the one at `index`; an index past the end appends. A link reports "Cannot insert
    element through link, no insertion made." */
- (void)insert_TT_word:(TT_VALUE)element at_index:(uint32_t)index;

/** Inserts a vector's elements before the one at `index`; an index past the end appends. A link reports
    "Cannot insert array through link, no insertion made." */
- (void)insert_array:(ZEB_T_Vector *ZEB_NULLABLE)other at_index:(uint32_t)index;

/** Replace the element at `index` with the given elements; without any it is removed. An index past the end
    changes nothing. A link reports "Cannot replace element with array through link, no replacement made." */
- (void)replace_element_at_index:(uint32_t)index with_array:(ZEB_T_Vector *ZEB_NULLABLE)other;
- (void)replace_element_at_index:(uint32_t)index
                   with_TT_words:(TT_SLOT const *ZEB_NULLABLE)elements
                           count:(uint32_t)n;

/** Not implemented by any array: reports "Not implemented" through `need_to_implement` and changes
    nothing. */
- (void)receive_from_stream:(ZEB_Stream *ZEB_NULLABLE)stream;

@end

ZEB_ASSUME_NONNULL_END
