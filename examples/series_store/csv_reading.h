/*
 * Series from text.
 */
#import "series.h"

/** What came of reading a CSV file. */
typedef enum { CSV_READ, CSV_READ_IN_PART, CSV_FAILED } Csv_Outcome;

/** Appends the rows of a file of `date,value` lines, dates as month/day/year, to an empty series. Lines end
   as on any system, and a byte-order mark may stand before the first. A first line without a date is the
    header. A line that cannot be read is told on standard error with its number and left out. It is a
    failure, and told, when the file cannot be read, or none of its lines. */
Csv_Outcome read_csv(const char *path, Series *series);
