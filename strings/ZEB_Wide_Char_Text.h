/*
 * Searches, comparisons and code points of 32-bit strings.
 */
#import <Korvane_ZEB/ZEB_Wide_Char_Vector.h>

@class ZEB_String;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Searches and comparisons. Indexes are zero-based; 4294967295 means not found. Comparisons return 1 if both
 * are equal, 2 if the receiver orders first, 3 if it orders after; units are compared as unsigned numbers. A
 * nil argument compares as an empty text; the equality test returns 0 for it.
 */
@interface ZEB_Wide_Char_Vector (Text)

/** Returns the index of the first occurrence of a unit. */
- (uint32_t)index_of_char:(uint32_t)unit;

/** Returns the index at which a run of units first occurs. An occurrence that ends with the last unit is not
    found, so a text is never found in itself; neither is an empty run. `find_text:` (ZEB_Text_Search.h) finds
    the former. */
- (uint32_t)index_of_substring:(const uint32_t *ZEB_NULLABLE)units length:(uint32_t)length;

/** Returns 1 if both hold the same units, else 0. */
- (uint8_t)is_equal:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)other;

/** Returns 1 if the receiver orders first, else 0. */
- (uint8_t)is_less:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)other;

/** Compares units as unsigned numbers. Foundation's sort methods expect -1, 0 and 1 from this selector: give
    them `platform_compare:`. */
- (ZEB_Comparison)compare:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)other;

/** The same order as an NSComparisonResult, for sort descriptors and `sortedArrayUsingSelector:`. An object
    of another class compares as an empty text. */
- (NSComparisonResult)platform_compare:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)other;

@end

/** Whole code points, one per element, as an alternative to UTF-16 units. */
@interface ZEB_Wide_Char_Vector (Code_Points)

/** Sets `target` to the UTF-8 of the receiver's code points and returns 1; a link becomes an owner. Returns
    0, with the target unchanged, if an element is a surrogate or above 0x10FFFF, or the target is nil. */
- (uint8_t)write_code_points_as_utf8:(ZEB_String *ZEB_NULLABLE)target;

/** Joins each surrogate pair to one code point in place, also through a link. Unpaired surrogates stay. */
- (void)join_surrogate_pairs;

@end

ZEB_ASSUME_NONNULL_END
