/*
 * Splitting texts into arrays of strings, and joining those.
 */
#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_String_Array.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>
#import <Korvane_ZEB/ZEB_Wide_String_Array.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * A text with n separators has n + 1 pieces: those before, between and after them, empty ones included. An
 * empty text is one empty piece. An empty separator and nil occur nowhere, so that the whole text is the only
 * piece. Separators are found from the front and do not overlap: "aaa" by "aa" is "" and "a".
 *
 * The pieces become the elements of `pieces`; strings that the array holds already are reused. The receiver
 * is unchanged, unless it is one of those strings, or a link onto one: then it is read as if copied first,
 * and so is the separator. Each operation returns the number of pieces; 0 if nothing was done: for an array
 * that is nil or a link (which reports "Cannot split text into link, no change made."), and if an allocation
 * fails, which reports "Runtime error in reallocate macro". The array's elements are unchanged then.
 */
@interface ZEB_Char_Vector (Splitting)

/** Sets `pieces` to what stands between the occurrences of a character. */
- (uint32_t)split_by_char:(char)separator into:(ZEB_String_Array *ZEB_NULLABLE)pieces;

/** Sets `pieces` to what stands between the occurrences of a text. */
- (uint32_t)split_by_text:(ZEB_Char_Vector *ZEB_NULLABLE)separator
                     into:(ZEB_String_Array *ZEB_NULLABLE)pieces;

@end

/** The same for 32-bit strings. */
@interface ZEB_Wide_Char_Vector (Splitting)

/** Sets `pieces` to what stands between the occurrences of a unit. */
- (uint32_t)split_by_wide_char:(uint32_t)separator into:(ZEB_Wide_String_Array *ZEB_NULLABLE)pieces;

/** Sets `pieces` to what stands between the occurrences of a text. */
- (uint32_t)split_by_text:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)separator
                     into:(ZEB_Wide_String_Array *ZEB_NULLABLE)pieces;

@end

@interface ZEB_String (Joining)

/** Replaces the contents with the texts of the strings, in their order, with the separator between any two.
    Joined by its separator, a text that was split is itself again. No strings, and nil, give an empty text; a
    nil element and a nil separator count as empty. The receiver may be one of the strings and the separator,
    or have links among them: all are read as if copied first.

    A link reports "Cannot join strings through link, no change made."; a failed allocation, or a text beyond
    32 bits, "Runtime error in reallocate macro" ("Runtime error in allocate macro" for the first block). The
    receiver is unchanged then. */
- (void)join_strings:(ZEB_String_Vector *ZEB_NULLABLE)strings
           separator:(ZEB_Char_Vector *ZEB_NULLABLE)separator;

@end

@interface ZEB_Wide_String (Joining)

/** The same for 32-bit strings. */
- (void)join_strings:(ZEB_Wide_String_Vector *ZEB_NULLABLE)strings
           separator:(ZEB_Wide_Char_Vector *ZEB_NULLABLE)separator;

@end

ZEB_ASSUME_NONNULL_END
