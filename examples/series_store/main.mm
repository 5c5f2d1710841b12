/*
 * Stores a series and loads it back: series_store [CSV [STORE]].
 *
 * A store that is already there is set aside, its path with "~" appended. Ends with 0 when what came back
 * is what was stored, with 2 when lines of the CSV were left out, and else with 1.
 */
#import "csv_reading.h"
#import "store.h"
#import "summary.h"

#include <stdio.h>

namespace
{

enum Exit_Status { all_well = 0, failed = 1, lines_left_out = 2 };

/// Sets a store aside. False, after a line that says why, where that is no store or cannot be moved.
bool set_aside(const char *path)
{
    ZEB_File *const file = file_at(path);
    [file refresh_status];
    if (![file exists])
        return true;
    Series *const present = [[[Series alloc] init] autorelease];
    const char *const fault = load_series(path, present);
    if (fault != NULL) {
        fprintf(stderr, "series_store: %s is left as it is: %s\n", path, fault);
        return false;
    }
    if ([file backstore] != 1)
        return false;
    printf("%-12s%s\n", "backstored", [[file path] char_data]);
    return true;
}

/// Writes the series, loads it back, and tells how both went.
bool store_and_compare(const char *path, Series *series)
{
    ZEB_String *const contents = encoded_series(series);
    if (!store_contents(path, contents))
        return false;
    Series *const loaded = [[[Series alloc] init] autorelease];
    const char *const fault = load_series(path, loaded);
    if (fault != NULL) {
        fprintf(stderr, "series_store: %s cannot be loaded back: %s\n", path, fault);
        return false;
    }
    ZEB_File *const file = file_at(path);
    [file refresh_status];
    print_series(loaded);
    printf("%-12s%u bytes\n", "raw size", [contents count]);
    printf("%-12s%llu bytes in %s\n", "stored size", (unsigned long long)[file size], path);
    const bool is_identical = [series is_identical_to:loaded];
    printf("%-12s%s\n", "came back", is_identical ? "identical, bit for bit" : "different");
    return is_identical;
}

int run(const char *csv_path, const char *store_path)
{
    Series *const series = [[[Series alloc] init] autorelease];
    const Csv_Outcome outcome = read_csv(csv_path, series);
    if (outcome == CSV_MISSING || !set_aside(store_path) || !store_and_compare(store_path, series))
        return failed;
    return outcome == CSV_READ_IN_PART ? lines_left_out : all_well;
}

} // namespace

int main(int count, const char **arguments)
{
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    const char *const csv_path = count > 1 ? arguments[1] : "examples/data/sunspots-monthly.csv";
    const char *const store_path = count > 2 ? arguments[2] : "sunspots.zeb";
    const int status = run(csv_path, store_path);
    [pool drain];
    return status;
}
