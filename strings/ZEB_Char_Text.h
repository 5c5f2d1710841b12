/*
 * Searches and comparisons of 8-bit strings.
 */
#import <Korvane_ZEB/ZEB_Char_Vector.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Searches, number scanners and comparisons, which do not change the string. Indexes are zero-based;
 * 4294967295 means not found. Comparisons return 1 if both are equal, 2 if the receiver orders first, 3 if it
 * orders after.
 *
 * Case and white space are those of the C library's current locale. A nil argument compares as an empty text;
 * the equality tests return 0 for it.
 */
@interface ZEB_Char_Vector (Text)

/** Returns the index at which a run of bytes first occurs. An occurrence that ends with the last character is
    not found, so a text is never found in itself; neither is an empty run. `find_text:` (ZEB_Text_Search.h)
    finds the former. */
- (uint32_t)index_of_substring:(const char *ZEB_NULLABLE)bytes length:(uint32_t)length;

/** Returns the index at which a number can begin: after leading white space, at "inf", "infinity" or "nan" in
    any case, else at the first digit, sign, full stop, or letter of E, F, G, e, f, g. */
- (uint32_t)index_of_number_start;

/** Returns the length of the leading text that looks like a number: 8 or 3 for a special word, else the count
    of number characters. 4294967295 for an empty text, and for one of number characters only. */
- (uint32_t)number_prefix_length;

/** Returns the index of the last character of the last number, ignoring trailing white space. */
- (uint32_t)index_of_number_end;

/** Returns the index of the last character that is no digit, sign, full stop, e, f or g. */
- (uint32_t)index_of_last_non_number;

/** Returns 1 if both hold the same bytes, else 0. */
- (uint8_t)is_equal:(ZEB_Char_Vector *ZEB_NULLABLE)other;

/** Returns 1 if both hold the same bytes except for case, else 0. */
- (uint8_t)is_equal_ignoring_case:(ZEB_Char_Vector *ZEB_NULLABLE)other;

/** Returns 1 if the receiver orders first, with bytes compared as unsigned numbers, else 0. */
- (uint8_t)is_less:(ZEB_Char_Vector *ZEB_NULLABLE)other;

/** Compares bytes as unsigned numbers. Foundation's sort methods expect -1, 0 and 1 from this selector: give
    them `platform_compare:`. */
- (ZEB_Comparison)compare:(ZEB_Char_Vector *ZEB_NULLABLE)other;

/** The same order as an NSComparisonResult, for sort descriptors and `sortedArrayUsingSelector:`. An object
    of another class compares as an empty text. */
- (NSComparisonResult)platform_compare:(ZEB_Char_Vector *ZEB_NULLABLE)other;

/** Compares without regard to case, with bytes as signed numbers: those from 0x80 on order before all
    others. */
- (ZEB_Comparison)compare_ignoring_case:(ZEB_Char_Vector *ZEB_NULLABLE)other;

/** Returns 1 if the text is well-formed UTF-8, else 0. */
- (uint8_t)is_valid_utf8;

@end

ZEB_ASSUME_NONNULL_END
