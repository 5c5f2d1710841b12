/*
 * Printing a series.
 */
#import "series.h"

/** Prints the number of rows, the first and last date, the minimum and the maximum of a series that is not
    empty. */
void print_series(Series *series);
