/*
 * What the example prints.
 */
#import "series.h"

/** Prints rows, first and last date, minimum and maximum of a series that is not empty. */
void print_series(Series *series);
