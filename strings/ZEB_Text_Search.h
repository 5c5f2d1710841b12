/*
 * Whether and where a text stands in another.
 */
#import <Korvane_ZEB/ZEB_Char_Vector.h>
#import <Korvane_ZEB/ZEB_Wide_Char_Vector.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Bytes are compared as they are. Other than `index_of_substring:length:`, these find a text that ends with
 * the last character too, and a text in itself. An empty text and nil stand nowhere. Characters with the
 * value 0 are like all others. Indexes are zero-based; 4294967295 (ZEB_NOT_FOUND) means not found. Nothing is
 * changed; receiver and argument may be links, and the same object.
 */
@interface ZEB_Char_Vector (Search)

/** Return 1 if the receiver begins with, ends with, or contains the text, else 0. */
- (uint8_t)has_prefix:(ZEB_Char_Vector *ZEB_NULLABLE)text;
- (uint8_t)has_suffix:(ZEB_Char_Vector *ZEB_NULLABLE)text;
- (uint8_t)contains:(ZEB_Char_Vector *ZEB_NULLABLE)text;

/** Return the index at which the text first occurs: in the whole receiver, or at an index or after it. */
- (uint32_t)find_text:(ZEB_Char_Vector *ZEB_NULLABLE)text;
- (uint32_t)find_text:(ZEB_Char_Vector *ZEB_NULLABLE)text from_index:(uint32_t)index;

/** Returns the index at which the text occurs last; occurrences may overlap. */
- (uint32_t)find_last_text:(ZEB_Char_Vector *ZEB_NULLABLE)text;

@end

/** The same for 32-bit strings, by their units. */
@interface ZEB_Wide_Char_Vector (Search)

/** Return 1 if the receiver begins with, ends with, or contains the text, else 0. */
- (uint8_t)has_prefix:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)text;
- (uint8_t)has_suffix:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)text;
- (uint8_t)contains:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)text;

/** Return the index at which the text first occurs: in the whole receiver, or at an index or after it. */
- (uint32_t)find_text:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)text;
- (uint32_t)find_text:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)text from_index:(uint32_t)index;

/** Returns the index at which the text occurs last; occurrences may overlap. */
- (uint32_t)find_last_text:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)text;

@end

ZEB_ASSUME_NONNULL_END
