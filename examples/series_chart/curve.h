/*
 * The curve of a series.
 */
#import "axis.h"
#import "picture.h"

/** Draws the curve: points that are numbers, joined by lines; NaN is a gap. Where there are more points than
    columns of pixels, each column shows the first, lowest, highest and last of its points. A point between
   two gaps is a dot. Returns false if there was no memory for it. */
bool draw_curve(Picture *picture, ZEB_Double_Vector *instants, ZEB_Double_Vector *values, Axis *dates,
                Axis *numbers);
