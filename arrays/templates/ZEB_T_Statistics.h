/*
 * Sum, mean and variance, quantiles and histograms of TT_PHRASE.
 */
#import <Korvane_ZEB/ZEB_T_Vector.h>

@class ZEB_Double_Vector, ZEB_UInt_Vector;

ZEB_ASSUME_NONNULL_BEGIN

/** What `get_TT_word_statistics:` answers. NaN is counted and otherwise left out. */
typedef struct ZEB_T_Statistics {
    TT_SUM sum;
    double mean;            /* the sum divided by the count; NaN without numbers */
    double variance;        /* the mean of the squared distances from the mean; NaN without numbers */
    double sample_variance; /* their sum divided by one less than the count; NaN for less than two numbers */
    uint32_t number_count;
    uint32_t nan_count;
    uint8_t sum_is_cut; /* 1 if the sum does not fit in its type, and is the nearest number that does */
} ZEB_T_Statistics;

/**
 * Each operation reads vectors, arrays and links, and changes no element but those of vectors it is told to
 * fill; these may be links, and share memory with the receiver and with each other.
 */
@interface ZEB_T_Vector (Statistics)

/** Sets all fields after one pass over the elements.
 *
 * Sums of integers are exact; only those of 64-bit integers can fail to fit: they are cut, and the mean is
 * still that of the exact sum. Sums of doubles are compensated: what rounding takes from them is added in
 * the end. Floats are added as doubles. Sums and means are infinite where an infinity is among the numbers or
 * they overflow, and NaN for infinities of both signs; variances are then NaN or infinite. The results are
 * the same on every processor. */
- (void)get_TT_word_statistics:(ZEB_T_Statistics *)statistics;

/** Sets each element of `quantiles` to the value at the fraction of the same index: of n numbers in ascending
    order, counted from 0, that at fraction * (n - 1), and between two of them on the straight line. 0 is the
    least number, 0.5 the median, 1 the greatest. NaN among the elements is left out; a fraction outside of 0
    to 1, and no numbers, give NaN, as may neighbours that are infinite. Numbers are taken as doubles after
    they were sorted. Returns 1; or 0, with nothing changed, for nil and for counts that differ, and if
    allocation fails: that reports "Runtime error in allocate macro". */
- (uint8_t)get_quantiles:(ZEB_Double_Vector *ZEB_NULLABLE)quantiles
            at_fractions:(ZEB_Double_Vector *ZEB_NULLABLE)fractions;

/** Sets each element of `bins`, which divide the numbers from `low` to `high` among them, to how many
    elements are in that bin, and `rest`, unless it is null, to how many are in none. The bin of a number x,
    taken as a double, is floor((x - low) * (bins / (high - low))), each operation in double; where that is
   the number of bins, as for `high`, the last one. Returns 1; or 0, with nothing changed, for nil, without
   bins, for bounds that are not finite, not in order, or so far apart or close together that their distance
   or the number of bins divided by it is not finite, and if allocation fails: that reports "Runtime error in
    allocate macro". */
- (uint8_t)count_in_bins:(ZEB_UInt_Vector *ZEB_NULLABLE)bins
                    from:(double)low
                      to:(double)high
                    rest:(ZEB_Histogram_Rest *ZEB_NULLABLE)rest;

@end

ZEB_ASSUME_NONNULL_END
