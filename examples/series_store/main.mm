/*
 * Stores a series and loads it back: series_store [CSV [STORE]].
 *
 * An existing store is kept as a copy at its path with "~" appended. The exit status is
 *   0  if the series loaded is the one stored;
 *   2  if it is, but lines of the CSV were skipped;
 *   1  if something failed; an existing store is then intact, at its path or with "~".
 */
#import "csv_reading.h"
#import "files.h"
#import "replacing.h"
#import "store.h"
#import "summary.h"

#include <errno.h>
#include <stdio.h>
#include <string.h>

const char *const program_name = "series_store";

namespace
{

enum Exit_Status { all_well = 0, failed = 1, lines_left_out = 2 };

/// Loads the store, and returns whether it holds the series.
bool load_and_compare(const char *path, Series *series, uint32_t raw_size)
{
    Series *const loaded = [[[Series alloc] init] autorelease];
    const char *fault;
    if (load_series(path, loaded, &fault) != STORE_WHOLE)
        return complain(path, fault);
    ZEB_File *const file = file_at(path);
    [file refresh_status];
    if (![file exists])
        return complain(path, strerror(file != nil ? [file last_error] : ENOMEM));
    print_series(loaded);
    printf("%-12s%u bytes\n", "raw size", raw_size);
    printf("%-12s%llu bytes in %s\n", "stored size", (unsigned long long)[file size], path);
    const bool is_identical = [series is_identical_to:loaded];
    printf("%-12s%s\n", "came back", is_identical ? "identical, bit for bit" : "different");
    return is_identical;
}

Exit_Status run(const char *csv_path, const char *store_path)
{
    Series *const series = [[[Series alloc] init] autorelease];
    const Csv_Outcome outcome = read_csv(csv_path, series);
    if (outcome == CSV_EMPTY)
        complain(csv_path, "it has no rows");
    if (outcome == CSV_EMPTY || outcome == CSV_FAILED)
        return failed;
    ZEB_String *const contents = encoded_series(series);
    if (contents == nil) {
        complain(store_path, strerror(ENOMEM));
        return failed;
    }
    if (!replace_store(store_path, contents) || !load_and_compare(store_path, series, [contents count]))
        return failed;
    return outcome == CSV_READ_IN_PART ? lines_left_out : all_well;
}

} // namespace

int main(int count, const char **arguments)
{
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    const char *const csv_path = count > 1 ? arguments[1] : "examples/data/sunspots-monthly.csv";
    const char *const store_path = count > 2 ? arguments[2] : "sunspots.zeb";
    Exit_Status status = run(csv_path, store_path);
    if (fflush(stdout) != 0 || ferror(stdout)) {
        complain("standard output", "it cannot be written");
        status = failed;
    }
    [pool drain];
    return status;
}
