/*
 * Charts of series.
 */
#import "series.h"

/** Returns a picture, as SVG, of a prepared series (preparing.h): its curve between axes of dates and of
   values, with a title, what the values are and in which unit (either may be empty), and a caption. Returns
   nil if there is no memory for it. Autoreleased. */
ZEB_String *chart_of_series(Series *series, ZEB_Wide_String *title, ZEB_Wide_String *values_title);
