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
 *   2  if it does, but lines of the CSV were skipped;
 *   1  if something failed; a picture that was there is then unchanged.
 */
#import "chart.h"
#import "csv_reading.h"
#import "files.h"
#import "preparing.h"
#import "store.h"
#import "unit_names.h"

#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include <errno.h>
#include <stdio.h>
#include <string.h>

const char *const program_name = "series_chart";

namespace
{

enum Exit_Status { all_well = 0, failed = 1, lines_left_out = 2 };

constexpr char picture_start[] = "<svg xmlns=\"http://www.w3.org/2000/svg\"";

/// Returns UTF-8 text as code points; byte by byte where it is none.
ZEB_Wide_String *wide_text(const char *chars, uint32_t length)
{
    ZEB_Wide_String *const text = [ZEB_Wide_String array_with_capacity:length + 1];
    if (![text set_code_points_from_utf8:[ZEB_String link_to_chars:const_cast<char *>(chars) count:length]])
        [text copy_c_string:chars length:length];
    return text;
}

ZEB_Wide_String *wide_text(const char *chars)
{
    return wide_text(chars, static_cast<uint32_t>(strlen(chars)));
}

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
        return outcome == CSV_READ_IN_PART ? lines_left_out : all_well;
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

/// `arguments` are those of the command, null where there are none.
Exit_Status run(const char *const (&arguments)[4])
{
    const auto [series_path, picture_path, title, unit] = arguments;
    Series *const series = [[[Series alloc] init] autorelease];
    const Exit_Status status = read_series(series_path, series);
    ZEB_Wide_String *const values_title = status != failed ? title_of_values(series, unit) : nil;
    if (values_title == nil)
        return failed;
    ZEB_String *const picture =
        prepare_series(series)
            ? chart_of_series(series, title != NULL ? wide_text(title) : name_of(series_path), values_title)
            : nil;
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
