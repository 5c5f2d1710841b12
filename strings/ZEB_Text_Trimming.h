/*
 * Removing characters from the ends of a string.
 */
#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * In place: what stays moves to the front of the block, whose capacity stays. A link reports "Cannot trim
 * text through link, no change made." and is unchanged.
 *
 * White space is that of ASCII in every locale: space, and the characters 9 to 13 (tab, line feed, vertical
 * tab, form feed, carriage return).
 */
@interface ZEB_String (Trimming)

/** Remove white space from both ends, from the front, or from the end. */
- (void)trim_whitespace;
- (void)trim_whitespace_left;
- (void)trim_whitespace_right;

/** Removes from both ends the characters that occur in `chars`, which may be the receiver or a link onto it:
    then all of them. Nothing for an empty text and nil. */
- (void)trim_chars_in:(ZEB_Char_Vector *ZEB_NULLABLE)chars;

@end

/** The same for 32-bit strings; other than ASCII, no unit is white space. */
@interface ZEB_Wide_String (Trimming)

/** Remove white space from both ends, from the front, or from the end. */
- (void)trim_whitespace;
- (void)trim_whitespace_left;
- (void)trim_whitespace_right;

/** Removes from both ends the units that occur in `chars`, in the same way. */
- (void)trim_chars_in:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)chars;

@end

ZEB_ASSUME_NONNULL_END
