/*
 * Vectors of TT_PHRASE: a count and a block of elements, owned or viewed.
 */
#import <Korvane_ZEB/ZEB_T_Collection.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Holds `count` contiguous elements. Indexes are zero-based and not checked.
 *
 * A vector is either an owner, which frees its block when it is deallocated, or a link: a view of elements
 * owned by others. A link reads and writes them in place, never frees them, and does not retain their owner.
 *
 * TT_STORING
 *
 * If an allocation fails, "Runtime error in allocate macro" is reported, and a new vector has no block.
 */
ZEB_EXPORT
@interface ZEB_T_Vector : ZEB_T_Collection <NSCopying> {
    ZEB_PROTECTED
    uint32_t count;
    TT_SLOT *ZEB_NULLABLE data;
    TT_VECTOR_FIELDS
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** The number of elements that `init` makes, for all vectors of this family: 16 at first. */
+ (uint32_t)default_length;
+ (void)set_default_length:(uint32_t)length;

/** Returns an autoreleased link to `n` elements at `elements`. */
+ (ZEB_INSTANCE_OF(ZEB_T_Vector *))link_to_TT_words:(TT_SLOT *ZEB_NULLABLE)elements count:(uint32_t)n;

/** Initialises a vector of the default length with undefined elements. */
- (instancetype)init;

/** Initialises an empty vector without a block. */
- (instancetype)init_unlinked;

/** Initialises an empty vector with a block for `capacity` elements; no block for 0. */
- (instancetype)init_with_capacity:(uint32_t)capacity;

/** Initialises a vector of `length` elements, undefined at first. */
- (instancetype)init_with_length:(uint32_t)length;

/** Initialises a link to `n` elements at `elements`, with link marker 10000. Nothing is copied. */
- (instancetype)init_as_link_to_TT_words:(TT_SLOT *ZEB_NULLABLE)elements count:(uint32_t)n;

/** Initialises a link to an inclusive range of another vector; an empty one for nil. The range is not
    checked. */
- (instancetype)init_as_link_to_TT_word_vector:(ZEB_T_Vector *ZEB_NULLABLE)other range:(ZEB_Index_Range)range;

/** Initialises an owner with a copy of `n` elements. */
- (instancetype)init_as_copy_of_TT_words:(TT_SLOT const *ZEB_NULLABLE)elements count:(uint32_t)n;

/** Initialises an owner with a copy of another vector's elements; the other may be a link. */
- (instancetype)init_as_copy_of_TT_word_vector:(ZEB_T_Vector *ZEB_NULLABLE)other;

/** Returns a copy of the receiver's class, an owner, owned by the caller. */
- (id)copyWithZone:(NSZone *ZEB_NULLABLE)zone;

/** Views `n` elements at `elements`. Neither frees the block of an owner nor sets the link marker: for
    vectors that are links already. */
- (void)relink_to_TT_words:(TT_SLOT *ZEB_NULLABLE)elements count:(uint32_t)n;

/** Views an inclusive range of another vector, under the same conditions. The range is not checked. */
- (void)relink_to_vector:(ZEB_T_Vector *ZEB_NULLABLE)other range:(ZEB_Index_Range)range;

/** Replaces the storage with a new owned block for `capacity` elements, at least `n`, that begins with a copy
    of `n` elements. An owner's old block is freed; a link becomes an owner. If allocation fails nothing
    changes. */
- (void)copy_TT_words:(TT_SLOT const *ZEB_NULLABLE)elements count:(uint32_t)n capacity:(uint32_t)capacity;

/** The same with the elements of another vector. */
- (void)copy_vector:(ZEB_T_Vector *ZEB_NULLABLE)other capacity:(uint32_t)capacity;

/** Returns the number of elements. */
- (uint32_t)count;

/** Return 1 if there are no elements, or some, else 0. */
- (uint8_t)is_empty;
- (uint8_t)is_not_empty;

/** Sets the count to 0 and keeps the block. */
- (void)clear;

/** Sets the count within the existing storage, which is neither moved nor grown: the caller must not exceed
    the block. Elements past a smaller count are dropped. Elements gained are what the storage holds there:
    undefined numbers, nil, or an empty string or byte array. Storage that was set by pointer is not
    written. */
- (void)set_count:(uint32_t)length;

/** Decrease the count by `n`, or by 1, but not below 0. */
- (void)decrease_count:(uint32_t)n;
- (void)decrement_count;

/** Returns a pointer to the first element; the others follow it. Null if there is no block. */
- (TT_SLOT *ZEB_NULLABLE)TT_word_data ZEB_INNER_POINTER;

/** Sets the pointer to the first element and nothing else: the old block is not freed. Objects in the new
    storage belong to the caller, until the array creates strings or byte arrays of its own there by growing
    or appending; it then takes over those below the count. */
- (void)set_TT_word_data:(TT_SLOT *ZEB_NULLABLE)elements;

/** Return the element at an index. */
- (TT_VALUE)TT_word_at_index:(uint32_t)index;
- (TT_VALUE)ZEB_T_element_at_index:(uint32_t)index;

/** Stores an element at an index, also through a link. */
- (void)set_TT_word:(TT_VALUE)element at_index:(uint32_t)index;

/** The element at an index counted from the end: 0 is the last. */
- (TT_VALUE)TT_word_at_index_from_end:(uint32_t)index;
- (void)set_TT_word:(TT_VALUE)element at_index_from_end:(uint32_t)index;

/** Return the first or the last element; 0 or nil for an empty vector. */
- (TT_VALUE)first_TT_word;
- (TT_VALUE)last_TT_word;

/** Return the address of an element, by its index from the front or from the end. */
- (TT_SLOT *ZEB_NONNULL)pointer_to_TT_word_at_index:(uint32_t)index ZEB_INNER_POINTER;
- (TT_SLOT *ZEB_NONNULL)pointer_to_TT_word_at_index_from_end:(uint32_t)index ZEB_INNER_POINTER;

/** Writes the element at an index with the stream's writer for its type. */
- (void)send_element_to_stream:(uint32_t)index stream:(ZEB_Stream *ZEB_NULLABLE)stream;

/** Implemented by the growable array only: here each reports "Need to implement" and changes nothing. */
- (void)set_length:(uint32_t)length;
- (void)ensure_room_for:(uint32_t)n;
- (void)append_array:(ZEB_T_Vector *ZEB_NULLABLE)other;

@end

ZEB_ASSUME_NONNULL_END
