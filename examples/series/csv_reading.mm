#import "csv_reading.h"

#import "files.h"

#include <algorithm>
#include <stdio.h>
#include <string.h>

namespace
{

constexpr char byte_order_mark[] = {'\xEF', '\xBB', '\xBF'};
constexpr uint32_t greatest_told_length = 80, greatest_told_count = 20;
constexpr double seconds_per_day = 86400;

struct Line {
    const char *text;
    uint32_t length;
};

/// Returns the line that begins at `at`, without its line break, and advances `at` to the next line.
Line next_line(const char *text, uint32_t length, uint32_t &at)
{
    const uint32_t start = at;
    while (at < length && text[at] != '\n' && text[at] != '\r')
        ++at;
    const Line line{text + start, at - start};
    at += length - at >= 2 && memcmp(text + at, "\r\n", 2) == 0 ? 2 : 1;
    return line;
}

bool begins_with_date(Line line)
{
    return ZC_skip_valid_gregorian_date_char_c_array(line.text, line.length) != 0;
}

bool is_below(int bound, int number) { return number >= 0 && number < bound; }

/// Reads a date, and a time after it, at the start of the line, and returns their length, or 0. The scanner
/// accepts 30 February as a day in March, and its day numbers before -4800 are not those of the civil
/// calendar; both are corrected here.
uint32_t read_instant(Line line, double &instant)
{
    const uint32_t length =
        ZC_assign_seconds_from_gregorian_date_char_c_array(line.text, line.length, &instant);
    char text[ZEB_DATE_TEXT_SIZE];
    snprintf(text, sizeof text, "%.*s", static_cast<int>(length), line.text);
    ZEB_Gregorian_Date date;
    int hour = 0, minute = 0, second = 0;
    if (sscanf(text, "%d / %d / %d %d : %d : %d", &date.month, &date.day, &date.year, &hour, &minute,
               &second) < 3)
        return 0;
    if (!is_below(ZC_days_in_month(date.year, date.month), date.day - 1) || !is_below(24, hour) ||
        !is_below(60, minute) || !is_below(60, second))
        return 0;
    const int64_t civil_day = ZC_map_civil_date_to_julian_day(date);
    instant += static_cast<double>(civil_day - ZC_map_gregorian_date_to_julian_day(date)) * seconds_per_day;
    return length;
}

/// Reads `date,value` to the end of the line.
bool append_row(Series *series, Line line)
{
    double instant;
    const uint32_t date_length = read_instant(line, instant);
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

void read_header(Series *series, Line line)
{
    const char *const comma = static_cast<const char *>(memchr(line.text, ',', line.length));
    if (comma != NULL)
        [[series value_name] set_chars:comma + 1
                                 count:static_cast<uint32_t>(line.text + line.length - comma - 1)];
}

void tell_unreadable(const char *path, uint32_t number, Line line)
{
    fprintf(stderr, "%s: %s, line %u cannot be read: %.*s\n", program_name, path, number,
            static_cast<int>(std::min(line.length, greatest_told_length)), line.text);
}

struct Lines_Read {
    uint32_t rows = 0;
    uint32_t unreadable = 0;
};

Lines_Read read_lines(const char *path, const char *text, uint32_t length, Series *series)
{
    Lines_Read read;
    const bool is_marked =
        length >= sizeof byte_order_mark && memcmp(text, byte_order_mark, sizeof byte_order_mark) == 0;
    uint32_t at = is_marked ? sizeof byte_order_mark : 0;
    for (uint32_t number = 1; at < length; ++number) {
        const Line line = next_line(text, length, at);
        if (line.length == 0)
            continue;
        if (number == 1 && !begins_with_date(line)) {
            read_header(series, line);
        } else if (append_row(series, line)) {
            ++read.rows;
        } else {
            if (read.unreadable++ < greatest_told_count)
                tell_unreadable(path, number, line);
        }
    }
    if (read.unreadable > greatest_told_count)
        fprintf(stderr, "%s: %s, more lines that cannot be read: %u\n", program_name, path,
                read.unreadable - greatest_told_count);
    return read;
}

/// Returns the fault of a file whose lines were read, or null.
const char *fault_of(Lines_Read read, uint32_t length, Series *series)
{
    // An array that could not grow reported it and skipped the element.
    if ([[series instants] count] != read.rows || [[series values] count] != read.rows)
        return "there is no memory for its rows";
    const bool may_be_empty = length == 0 || [[series value_name] is_not_empty];
    return read.rows == 0 && (read.unreadable != 0 || !may_be_empty) ? "no line of it can be read" : NULL;
}

} // namespace

Csv_Outcome parse_csv(const char *path, ZEB_Byte_Array *contents, Series *series)
{
    const char *const text = reinterpret_cast<const char *>([contents byte_data]);
    const Lines_Read read = read_lines(path, text, [contents count], series);
    const char *const fault = fault_of(read, [contents count], series);
    if (fault != NULL) {
        complain(path, fault);
        return CSV_FAILED;
    }
    if (read.rows == 0)
        return CSV_EMPTY;
    return read.unreadable == 0 ? CSV_READ : CSV_READ_IN_PART;
}

Csv_Outcome read_csv(const char *path, Series *series)
{
    const char *fault;
    ZEB_Byte_Array *const contents = [ZEB_Byte_Array array_with_capacity:0];
    if (read_file(path, contents, &fault) == FILE_READ)
        return parse_csv(path, contents, series);
    complain(path, fault);
    return CSV_FAILED;
}
