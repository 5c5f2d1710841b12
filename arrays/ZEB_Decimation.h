/*
 * Long series cut down to what the pixel columns of a chart show.
 */
#import <Korvane_ZEB/ZEB_Double_Vector.h>

ZEB_ASSUME_NONNULL_BEGIN

ZEB_EXTERN_C_BEGIN

/**
 * Sets `column_count` columns, which divide the positions from `start` to `end` among them, to what each
 * shows of the points: a point is an element of `positions`, which are ascending, and the one of `values` at
 * the same index. Arrays, vectors and links will do, also the same one twice.
 *
 * The column of a position p is floor((p - start) * (column_count / (end - start))), each operation in
 * double; where that is `column_count`, as it may be for `end` and just before it, the last one. Points
 * before `start` and after `end` are in none.
 *
 * `first` and `last` are the values of the column's first and last point, also if those are NaN: gaps of the
 * series. `lowest` and `highest` go over the numbers of the column, infinities included, and are NaN where
 * there is none; of -0.0 and 0.0 the first one is taken. `count` is the number of points, NaN among them; a
 * column without points has 0 and four times NaN.
 *
 * Returns 1; or 0, with nothing changed or reported, for nil, for counts that differ, without columns, and
 * for bounds that are not finite, not in order, or so far apart or so close together that their distance or
 * `column_count` divided by it is not finite.
 *
 * Positions in another order, or NaN, make no more of the columns than undefined. The columns may not lie in
 * the arrays. The time is that of reading the values once; nothing is allocated.
 */
ZEB_EXPORT uint8_t ZC_decimate(ZEB_Double_Vector *ZEB_NULLABLE positions,
                               ZEB_Double_Vector *ZEB_NULLABLE values, double start, double end,
                               ZEB_Chart_Column *ZEB_NULLABLE columns, uint32_t column_count);

ZEB_EXTERN_C_END

ZEB_ASSUME_NONNULL_END
