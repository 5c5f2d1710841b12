/*
 * Series from text.
 */
#import "series.h"

/** What came of reading a CSV file. */
typedef enum { CSV_READ, CSV_READ_IN_PART, CSV_MISSING } Csv_Outcome;

/** Appends the rows of a file of `date,value` lines to a series. A first line without a date is its
    header. A line that cannot be read is told on standard error with its number and left out. */
Csv_Outcome read_csv(const char *path, Series *series);
