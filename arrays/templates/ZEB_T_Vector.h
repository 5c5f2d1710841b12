/*
 * Vectors of TT_PHRASE: a count and a block of elements, owned or viewed.
 */
#import <Korvane_ZEB/ZEB_T_Collection.h>

/**
 * Holds `count` elements one behind the other. Indexes are zero-based and are not checked.
 *
 * A vector owns its block, which it frees when it ends, or is a link: a view of elements that belong to
 * someone else. A link reads and writes them in place, never frees them, and does not keep their owner
 * alive.
 *
 * TT_STORING
 *
 * Where memory is short, "Runtime error in allocate macro" is reported, and the vector holds no block.
 */
ZEB_EXPORT
@interface ZEB_T_Vector : ZEB_T_Collection <NSCopying> {
    ZEB_PROTECTED
    uint32_t count;
    ZEB_T_Element *data;
    TT_VECTOR_FIELDS
}

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** The number of elements that `init` makes, for all vectors of this family: 16 at first. */
+ (uint32_t)default_length;
+ (void)set_default_length:(uint32_t)length;

/** An autoreleased link to `n` elements at `elements`. */
+ (ZEB_T_Vector *)link_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n;

/** Makes a vector of the default length, its elements undefined. */
- (id)init;

/** Makes an empty vector without a block. */
- (id)init_unlinked;

/** Makes an empty vector with a block for `capacity` elements; without one for 0. */
- (id)init_with_capacity:(uint32_t)capacity;

/** Makes a vector of `length` elements, undefined at first. */
- (id)init_with_length:(uint32_t)length;

/** Makes a link to `n` elements at `elements`, its link marker 10000. Nothing is copied. */
- (id)init_as_link_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n;

/** Makes a link to a range of another vector, both ends included; to nothing for nil. The range is not
    checked. */
- (id)init_as_link_to_TT_word_vector:(ZEB_T_Vector *)other range:(ZEB_Index_Range)range;

/** Makes an owner with a copy of `n` elements. */
- (id)init_as_copy_of_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n;

/** Makes an owner with a copy of the elements of another vector, which may be a link. */
- (id)init_as_copy_of_TT_word_vector:(ZEB_T_Vector *)other;

/** A copy of the receiver's class, an owner, owned by the caller. */
- (id)copyWithZone:(NSZone *)zone;

/** Views `n` elements at `elements` from now on. Neither frees the block of an owner nor sets the link
    marker: for a vector that is a link already, and that may view foreign memory under its settings. */
- (void)relink_to_TT_words:(ZEB_T_Element *)elements count:(uint32_t)n;

/** The same with a range of another vector, both ends included and not checked. */
- (void)relink_to_vector:(ZEB_T_Vector *)other range:(ZEB_Index_Range)range;

/** Becomes an owner of a block for `capacity` elements (never fewer than `n`) that begins with a copy of
    `n` elements. An owner's old block is freed, a link's is forgotten. On a failed allocation nothing
    changes. */
- (void)copy_TT_words:(ZEB_T_Element const *)elements count:(uint32_t)n capacity:(uint32_t)capacity;

/** The same with the elements of another vector. */
- (void)copy_vector:(ZEB_T_Vector *)other capacity:(uint32_t)capacity;

/** The number of elements. */
- (uint32_t)count;

/** 1 when there are no elements, or some, else 0. */
- (uint8_t)is_empty;
- (uint8_t)is_not_empty;

/** Sets the count to 0. The storage stays. */
- (void)clear;

/** Sets the count within the storage at hand, which is neither moved nor made larger: a count beyond the
    block's room is the caller's fault. Elements past a smaller count are dropped; elements gained are what
    the storage holds there: undefined numbers, no object, or an empty string or byte array. Storage that was
    set by pointer is not written. */
- (void)set_count:(uint32_t)length;

/** Makes the count smaller by `n`, or by 1; never below 0. */
- (void)decrease_count:(uint32_t)n;
- (void)decrement_count;

/** The first element; the others follow it. Null where there is no block. */
- (ZEB_T_Element *)TT_word_data;

/** Sets the pointer to the first element and nothing else: the old block is not freed. Objects in the new
    storage are the caller's; where the array has to make its own strings or byte arrays in it, by growing
    or appending, it takes those below the count over. */
- (void)set_TT_word_data:(ZEB_T_Element *)elements;

/** The element at an index. */
- (ZEB_T_Element)TT_word_at_index:(uint32_t)index;
- (ZEB_T_Element)ZEB_T_element_at_index:(uint32_t)index;

/** Stores an element at an index, through a link as well. */
- (void)set_TT_word:(ZEB_T_Element)element at_index:(uint32_t)index;

/** The element at an index counted from the end: 0 is the last. */
- (ZEB_T_Element)TT_word_at_index_from_end:(uint32_t)index;
- (void)set_TT_word:(ZEB_T_Element)element at_index_from_end:(uint32_t)index;

/** The first and the last element; 0 or nothing in an empty vector. */
- (ZEB_T_Element)first_TT_word;
- (ZEB_T_Element)last_TT_word;

/** Where an element is kept, by its index from the front or from the end. */
- (ZEB_T_Element *)pointer_to_TT_word_at_index:(uint32_t)index;
- (ZEB_T_Element *)pointer_to_TT_word_at_index_from_end:(uint32_t)index;

/** Writes the element at an index by the stream's writer for its type. */
- (void)send_element_to_stream:(uint32_t)index stream:(ZEB_Stream *)stream;

/** For the growable array alone: here each reports "Need to implement" and changes nothing. */
- (void)set_length:(uint32_t)length;
- (void)ensure_room_for:(uint32_t)n;
- (void)append_array:(ZEB_T_Vector *)other;

@end
