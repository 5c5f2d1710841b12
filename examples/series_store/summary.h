/*
 * What the example prints.
 */
#import "series.h"

/** Prints rows, first and last date, minimum and maximum of a series. */
void print_series(Series *series);
