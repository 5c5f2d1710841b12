/*
 * Text operations of 8-bit strings that leave the string as it is.
 */
#import <Korvane_ZEB/ZEB_Char_Vector.h>

/**
 * Searches, scanners and comparisons. Indexes are zero-based, and 4294967295 when nothing is found.
 * Comparisons answer 1 when both are equal, 2 when the receiver orders first, 3 when it orders after.
 *
 * Case and white space are those of the C library's current locale. A nil argument counts as an empty
 * text, and is equal to nothing.
 */
@interface ZEB_Char_Vector (Text)

/** Where a run of bytes occurs first. An occurrence that ends with the last character is not found, so a
    text is never found in itself; neither is an empty run. */
- (uint32_t)index_of_substring:(const char *)bytes length:(uint32_t)length;

/** Where a number can begin: past leading white space, at "inf", "infinity" or "nan" in any case, else at
    the first digit, sign, full stop, or letter of E, F, G, e, f, g. */
- (uint32_t)index_of_number_start;

/** The length of what looks like a number at the front: 8 or 3 for a special word, else the count of
    number characters. 4294967295 for an empty text, and where the number runs to the end of the text. */
- (uint32_t)number_prefix_length;

/** The last character of the last number, trailing white space ignored. */
- (uint32_t)index_of_number_end;

/** The last character that is no digit, sign, full stop, e, f or g. */
- (uint32_t)index_of_last_non_number;

/** 1 when both hold the same bytes, else 0. */
- (uint8_t)is_equal:(ZEB_Char_Vector *)other;

/** 1 when both hold the same bytes but for case, else 0. */
- (uint8_t)is_equal_ignoring_case:(ZEB_Char_Vector *)other;

/** 1 when the receiver orders first, bytes compared as unsigned numbers; else 0. */
- (uint8_t)is_less:(ZEB_Char_Vector *)other;

/** The order of both, bytes compared as unsigned numbers. Foundation's sorts send this selector for -1, 0 and
   1: use `platform_compare:` there. */
- (ZEB_Comparison)compare:(ZEB_Char_Vector *)other;

/** The same order as the platform has it, for sort descriptors and `sortedArrayUsingSelector:`. An object
    of another class counts as an empty text. */
- (NSComparisonResult)platform_compare:(ZEB_Char_Vector *)other;

/** The order of both without regard to case, bytes compared as signed numbers: those from 0x80 on come
    before all others. */
- (ZEB_Comparison)compare_ignoring_case:(ZEB_Char_Vector *)other;

/** 1 when the text is well-formed UTF-8, else 0. */
- (uint8_t)is_valid_utf8;

@end
