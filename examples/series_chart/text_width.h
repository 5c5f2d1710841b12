/*
 * How wide a text becomes.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

/** Returns a width in pixels that a text of a font size does not exceed, whichever of the usual sans-serif
    fonts shows it. */
double text_width(ZEB_Wide_Char_Vector *text, double font_size);

/** Cuts a text to a width; "..." takes the place of what is cut. */
void cut_to_width(ZEB_Wide_String *text, double font_size, double width);
