/*
 * Lowest and highest value of a series.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

/** Finds the lowest and the highest of the values, NaN left out. Returns false, with nothing stored, if there
    is none. */
bool get_extremes(ZEB_Double_Vector *values, double *lowest, double *highest);
