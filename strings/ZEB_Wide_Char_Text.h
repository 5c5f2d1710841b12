/*
 * Text operations of 32-bit strings that do not make the text longer.
 */
#import <Korvane_ZEB/ZEB_Wide_Char_Vector.h>

@class ZEB_String;

/**
 * Searches and comparisons. Indexes are zero-based, and 4294967295 when nothing is found. Comparisons
 * answer 1 when both are equal, 2 when the receiver orders first, 3 when it orders after; units compare as
 * unsigned numbers. A nil argument counts as an empty text, and is equal to nothing.
 */
@interface ZEB_Wide_Char_Vector (Text)

/** Where a unit stands first. */
- (uint32_t)index_of_char:(uint32_t)unit;

/** Where a run of units occurs first. An occurrence that ends with the last unit is not found, so a text
    is never found in itself; neither is an empty run. */
- (uint32_t)index_of_substring:(const uint32_t *)units length:(uint32_t)length;

/** 1 when both hold the same units, else 0. */
- (uint8_t)is_equal:(ZEB_Wide_Char_Vector *)other;

/** 1 when the receiver orders first, else 0. */
- (uint8_t)is_less:(ZEB_Wide_Char_Vector *)other;

/** The order of both. Foundation's sorts send this selector for -1, 0 and 1: use
    `platform_compare:` there. */
- (ZEB_Comparison)compare:(ZEB_Wide_Char_Vector *)other;

/** The same order as the platform has it, for sort descriptors and `sortedArrayUsingSelector:`. An object
    of another class counts as an empty text. */
- (NSComparisonResult)platform_compare:(ZEB_Wide_Char_Vector *)other;

@end

/** Whole code points, one in each element, beside the UTF-16 units that come from the platform. */
@interface ZEB_Wide_Char_Vector (Code_Points)

/** Makes `target` the UTF-8 of the receiver's code points, and answers 1; a link becomes an owner. Where
    an element is a surrogate, or past 0x10FFFF, answers 0 and leaves the target. */
- (uint8_t)write_code_points_as_utf8:(ZEB_String *)target;

/** Joins each surrogate pair to one code point, in place, through a link too. A surrogate without its
    partner stays. */
- (void)join_surrogate_pairs;

@end
