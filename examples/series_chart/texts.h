/*
 * Texts in pictures, and how wide they become.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

/** Returns UTF-8 text as code points, one byte for one where it is none. Autoreleased. */
ZEB_Wide_String *wide_text(const char *chars, uint32_t length);

/** The same up to a null. */
ZEB_Wide_String *wide_text(const char *chars);

/** Returns a width in pixels that a text of a font size does not exceed, whichever of the usual sans-serif
    fonts shows it. */
double text_width(ZEB_Wide_Char_Vector *text, double font_size);

/** Cuts a text to a width; "..." takes the place of what is cut. */
void cut_to_width(ZEB_Wide_String *text, double font_size, double width);
