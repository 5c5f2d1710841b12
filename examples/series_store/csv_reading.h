/*
 * Reading a series from CSV.
 */
#import "series.h"

/** The result of reading a CSV file. */
typedef enum { CSV_READ, CSV_READ_IN_PART, CSV_FAILED } Csv_Outcome;

/** Appends the rows of a file of `date,value` lines, with dates as month/day/year, to an empty series. Any
    system's line breaks are accepted, and a byte-order mark. A first line without a date is the header. A
    line that cannot be read is reported on standard error with its number, and skipped. If the file, or every
    line, cannot be read, that is reported as a failure. */
Csv_Outcome read_csv(const char *path, Series *series);
