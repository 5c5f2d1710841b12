/*
 * Reading a series from CSV.
 */
#import "series.h"

/** The result of reading a CSV file. */
typedef enum { CSV_READ, CSV_READ_IN_PART, CSV_EMPTY, CSV_FAILED } Csv_Outcome;

/** Appends the rows of a file of `date,value` lines, with dates as month/day/year, to an empty series. Any
    system's line breaks are accepted, and a byte-order mark. A first line without a date is the header, and
    what follows its comma the name of the values. A line that cannot be read is skipped; the first of these
    are reported on standard error with their numbers, and the others counted. If the file, or every line,
    cannot be read, that is reported as a failure. An empty file, or a header with a comma alone, is no
    failure, and is not reported. */
Csv_Outcome read_csv(const char *path, Series *series);

/** The same for the contents of a file that was read; the path is for reports. */
Csv_Outcome parse_csv(const char *path, ZEB_Byte_Array *contents, Series *series);
