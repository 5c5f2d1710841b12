/*
 * Draws a series as a picture: series_chart SERIES PICTURE [TITLE [UNIT]].
 *
 * SERIES is a CSV file of `date,value` lines, or a store of series_store; PICTURE becomes an SVG file. An SVG
 * file that is there is replaced in one step; nothing else is. The title is the name of the series if none is
 * given. UNIT is a unit's name or abbreviation in the framework's catalog; else the header of the CSV file is
 * what the values are called, and their unit if it names one.
 *
 * The exit status is
 *   0  if the picture shows the series;
 *   2  if it does, but lines of the CSV, or points of the store without a date, were left out;
 *   1  if something failed; a picture that was there is then unchanged.
 */
#import "chart.h"
#import "csv_reading.h"
#import "files.h"
#import "preparing.h"
#import "store.h"
#import "texts.h"
#import "unit_names.h"

#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include <errno.h>
#include <stdio.h>
#include <string.h>

const char *const program_name = "series_chart";

namespace
{

enum Exit_Status { all_well = 0, failed = 1, points_left_out = 2 };

constexpr char picture_start[] = "<svg xmlns=\"http://www.w3.org/2000/svg\"";

/// Returns a file's name without its folder and extension.
ZEB_Wide_String *name_of(const char *path)
{
    const char *const slash = strrchr(path, '/'), *const name = slash != NULL ? slash + 1 : path;
    const char *const dot = strrchr(name, '.');
    return wide_text(name, static_cast<uint32_t>(dot != NULL && dot != name ? dot - name : strlen(name)));
}

Exit_Status read_series(const char *path, Series *series)
{
    const char *fault;
    ZEB_Byte_Array *const contents = [ZEB_Byte_Array array_with_capacity:0];
    bool is_read = read_file(path, contents, &fault) == FILE_READ;
    if (is_read && !begins_as_store(contents)) {
        const Csv_Outcome outcome = parse_csv(path, contents, series);
        if (outcome == CSV_FAILED)
            return failed;
        return outcome == CSV_READ_IN_PART ? points_left_out : all_well;
    }
    is_read = is_read && decode_store(contents, series, &fault) == STORE_WHOLE;
    if (!is_read)
        complain(path, fault);
    return is_read ? all_well : failed;
}

/// Returns what the values are called, and their unit; null after a complaint about an unknown one.
ZEB_Wide_String *title_of_values(Series *series, const char *unit_name)
{
    ZEB_String *const name = [series value_name];
    ZEB_Wide_String *const title = wide_text([name char_data], [name count]);
    for (uint32_t &character : zeb::elements(title))
        character = character == '_' ? ' ' : character;
    ZEB_Unit_Identity unit;
    if (find_unit(unit_name != NULL ? wide_text(unit_name) : title, &unit)) {
        ZEB_Unit_Identity own_unit;
        if (find_unit(title, &own_unit))
            [title clear];
        else if ([title is_not_empty])
            [title append_c_string:", " length:2];
        append_unit(title, unit);
    } else if (unit_name != NULL) {
        complain(unit_name, "the catalog has no unit of this name");
        return nil;
    }
    return title;
}

/// Whether nothing but a picture would be replaced.
bool may_be_replaced(const char *path)
{
    const char *fault;
    ZEB_Byte_Array *const contents = [ZEB_Byte_Array array_with_capacity:0];
    const File_Outcome outcome = read_file(path, contents, &fault);
    if (outcome == FILE_UNREADABLE)
        return complain(path, fault);
    const size_t length = sizeof picture_start - 1;
    if (outcome == FILE_MISSING || [contents is_empty] ||
        ([contents count] >= length && memcmp([contents byte_data], picture_start, length) == 0))
        return true;
    return complain(path, "it holds something else than a picture");
}

bool write_picture(const char *path, ZEB_String *picture)
{
    if (!may_be_replaced(path))
        return false;
    ZEB_File *const file = file_at(path);
    const uint32_t answer = [file replace_contents:[picture char_data] length:[picture count]];
    const int error = file != nil ? [file last_error] : ENOMEM;
    return (answer == 1 && error == 0) || complain(path, strerror(error));
}

/// Returns the picture of a series; null if there is no memory for all of it.
ZEB_String *picture_of(Series *series, ZEB_Wide_String *title, ZEB_Wide_String *values_title)
{
    ZEB_String *const picture = chart_of_series(series, title, values_title);
    // What the framework refused it reported and counted, and the picture lacks it.
    return [[ZEB_Error_Stream shared_error_stream] warning_count] == 0 ? picture : nil;
}

/// `arguments` are those of the command, null where there are none.
Exit_Status run(const char *const (&arguments)[4])
{
    const auto [series_path, picture_path, title, unit] = arguments;
    Series *const series = [[[Series alloc] init] autorelease];
    Exit_Status status = read_series(series_path, series);
    ZEB_Wide_String *const values_title = status != failed ? title_of_values(series, unit) : nil;
    if (values_title == nil)
        return failed;
    const uint32_t count = [[series instants] count];
    const bool is_prepared = prepare_series(series);
    if ([[series instants] count] != count) {
        complain(series_path, "points without a date are left out");
        status = points_left_out;
    }
    ZEB_Wide_String *const head = title != NULL ? wide_text(title) : name_of(series_path);
    ZEB_String *const picture = is_prepared ? picture_of(series, head, values_title) : nil;
    if (picture == nil)
        complain(picture_path, strerror(ENOMEM));
    return picture != nil && write_picture(picture_path, picture) ? status : failed;
}

} // namespace

int main(int count, const char **arguments)
{
    if (count < 3 || count > 5) {
        fprintf(stderr, "Usage: series_chart SERIES PICTURE [TITLE [UNIT]]\n");
        return failed;
    }
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    const char *given[4] = {};
    for (int i = 1; i < count; ++i)
        given[i - 1] = arguments[i];
    const Exit_Status status = run(given);
    [pool drain];
    return status;
}
