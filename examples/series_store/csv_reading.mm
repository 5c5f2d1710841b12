#import "csv_reading.h"

#import "store.h"

#include <stdio.h>
#include <string.h>

namespace
{

struct Line {
    const char *text;
    uint32_t length;
};

bool is_blank(Line line) { return line.length == 0; }

/// Reads `date,value` to the end of the line.
bool append_row(Series *series, Line line)
{
    double instant;
    const uint32_t date_length =
        ZC_assign_seconds_from_gregorian_date_char_c_array(line.text, line.length, &instant);
    if (date_length == 0 || date_length >= line.length || line.text[date_length] != ',')
        return false;
    const uint32_t at = date_length + 1;
    double value;
    const uint32_t value_length =
        ZC_assign_double_from_char_c_array(line.text + at, line.length - at, &value);
    if (value_length == 0 || at + value_length != line.length)
        return false;
    [[series instants] append_double:instant];
    [[series values] append_double:value];
    return true;
}

/// The line that begins at `at`, its line break left out; moves `at` behind it.
Line next_line(const char *text, uint32_t length, uint32_t &at)
{
    const char *const start = text + at;
    const char *const found = static_cast<const char *>(memchr(start, '\n', length - at));
    uint32_t size = found != NULL ? static_cast<uint32_t>(found - start) : length - at;
    at += size + (found != NULL ? 1 : 0);
    if (size != 0 && start[size - 1] == '\r')
        --size;
    return {start, size};
}

bool begins_with_date(Line line)
{
    return ZC_skip_valid_gregorian_date_char_c_array(line.text, line.length) != 0;
}

} // namespace

Csv_Outcome read_csv(const char *path, Series *series)
{
    ZEB_File *const file = file_at(path);
    [file refresh_status];
    if (![file exists] || [file kind] != ZEB_FILE_KIND_REGULAR) {
        fprintf(stderr, "series_store: there is no file %s\n", path);
        return CSV_MISSING;
    }
    ZEB_Byte_Array *const contents = [ZEB_Byte_Array array_with_capacity:0];
    if ([file size] != 0)
        [file read_contents:contents];
    const char *const text = reinterpret_cast<const char *>([contents byte_data]);
    Csv_Outcome outcome = CSV_READ;
    uint32_t at = 0;
    for (uint32_t number = 1; at < [contents count]; ++number) {
        const Line line = next_line(text, [contents count], at);
        if (is_blank(line) || (number == 1 && !begins_with_date(line)) || append_row(series, line))
            continue;
        fprintf(stderr, "series_store: %s, line %u cannot be read: %.*s\n", path, number,
                static_cast<int>(line.length), line.text);
        outcome = CSV_READ_IN_PART;
    }
    return outcome;
}
