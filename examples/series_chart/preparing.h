/*
 * What a chart asks of a series.
 */
#import "series.h"

/** Makes a series fit for a chart: in the order of its instants, without the points whose instant is no date,
    and with NaN for values that are not finite. Returns false if there is no memory for it. */
bool prepare_series(Series *series);
