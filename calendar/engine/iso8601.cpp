#include "calendar/engine/iso8601.hpp"

#include "calendar/engine/civil_date.hpp"
#include "calendar/engine/decimal_scan.hpp"
#include "calendar/engine/instant.hpp"
#include "numbers/engine/fixed_text.hpp"
#include "numbers/engine/unsigned_text.hpp"

namespace zeb::engine
{
namespace
{

constexpr std::uint64_t nanoseconds_per_second = 1000000000;
constexpr std::uint64_t seconds_per_whole_day = 86400;
constexpr std::uint32_t fraction_decimals = 9;

char *put_date(char *out, ZEB_Gregorian_Date date) noexcept
{
    const std::int64_t year = date.year;
    if (year < 0 || year > 9999)
        *out++ = year < 0 ? '-' : '+';
    out = put_zero_padded(out, static_cast<std::uint64_t>(year < 0 ? -year : year),
                          year < 0 || year > 9999 ? 6 : 4);
    *out++ = '-';
    out = put_two_digits_at_least(out, static_cast<std::uint32_t>(date.month));
    *out++ = '-';
    return put_two_digits_at_least(out, static_cast<std::uint32_t>(date.day));
}

char *put_time(char *out, std::uint64_t second, std::uint64_t nanosecond) noexcept
{
    *out++ = 'T';
    out = put_two_digits_at_least(out, second / 3600);
    *out++ = ':';
    out = put_two_digits_at_least(out, second / 60 % 60);
    *out++ = ':';
    out = put_two_digits_at_least(out, second % 60);
    return put_decimals(out, nanosecond, fraction_decimals);
}

/// Reads between `fewest` and `most` (at most 18) digits, and returns their number; 0 for too few.
std::uint32_t scan_digits(Text_Cursor &cursor, std::uint32_t fewest, std::uint32_t most,
                          std::int64_t &value) noexcept
{
    std::uint32_t count = 0;
    std::int64_t number = 0;
    while (count < most && cursor.position + count < cursor.length &&
           is_ascii_digit(cursor.chars[cursor.position + count]))
        number = number * 10 + (cursor.chars[cursor.position + count++] - '0');
    if (count < fewest)
        return 0;
    cursor.position += count;
    value = number;
    return count;
}

bool skip_character(Text_Cursor &cursor, char c) noexcept
{
    if (cursor.position >= cursor.length || cursor.chars[cursor.position] != c)
        return false;
    ++cursor.position;
    return true;
}

/// Reads the separator and two digits with a value up to `most`.
bool scan_field(Text_Cursor &cursor, char separator, std::int32_t most, std::int32_t &value) noexcept
{
    std::int64_t number = 0;
    if (!skip_character(cursor, separator) || scan_digits(cursor, 2, 2, number) == 0 || number > most)
        return false;
    value = static_cast<std::int32_t>(number);
    return true;
}

bool scan_year(Text_Cursor &cursor, std::int32_t &year) noexcept
{
    const bool negative = skip_character(cursor, '-');
    const bool has_sign = negative || skip_character(cursor, '+');
    std::int64_t number = 0;
    if (scan_digits(cursor, 4, has_sign ? 10 : 4, number) == 0)
        return false;
    year = static_cast<std::int32_t>(negative ? -number : number);
    return year == (negative ? -number : number); // else it does not fit
}

bool scan_date(Text_Cursor &cursor, ZEB_Gregorian_Date &date) noexcept
{
    return scan_year(cursor, date.year) && scan_field(cursor, '-', 12, date.month) &&
           scan_field(cursor, '-', days_in_month(date.year, date.month), date.day) && date.day >= 1;
}

/// Returns nine decimals as nanoseconds; the cursor moves past all decimals.
std::uint64_t scan_fraction(Text_Cursor &cursor) noexcept
{
    const std::uint32_t point = cursor.position;
    std::int64_t nanoseconds = 0;
    std::uint32_t count = 0;
    if (skip_character(cursor, '.') || skip_character(cursor, ','))
        count = scan_digits(cursor, 1, fraction_decimals, nanoseconds);
    if (count == 0) {
        cursor.position = point;
        return 0;
    }
    while (count++ < fraction_decimals)
        nanoseconds *= 10;
    while (cursor.position < cursor.length && is_ascii_digit(cursor.chars[cursor.position]))
        ++cursor.position;
    return static_cast<std::uint64_t>(nanoseconds);
}

bool scan_time(Text_Cursor &cursor, ZEB_Time_Value &time) noexcept
{
    std::int32_t hours = 0, minutes = 0, seconds = 0;
    if (cursor.position >= cursor.length)
        return false;
    const char separator = cursor.chars[cursor.position];
    if (separator != 'T' && separator != 't' && separator != ' ')
        return false;
    if (!scan_field(cursor, separator, 23, hours) || !scan_field(cursor, ':', 59, minutes))
        return false;
    std::uint64_t nanosecond = 0;
    if (cursor.position < cursor.length && cursor.chars[cursor.position] == ':') {
        if (!scan_field(cursor, ':', 59, seconds))
            return false;
        nanosecond = scan_fraction(cursor);
    }
    time = {static_cast<std::uint64_t>(hours * 3600 + minutes * 60 + seconds), nanosecond};
    return true;
}

} // namespace

char *write_iso8601_date(char *buffer, ZEB_Gregorian_Date date) noexcept
{
    char *end = put_date(buffer, date);
    *end = '\0';
    return end;
}

char *write_iso8601(char *buffer, std::int64_t julian_day, ZEB_Time_Value time) noexcept
{
    const std::uint64_t carried_seconds = time.nanosecond / nanoseconds_per_second;
    const std::uint64_t seconds = time.second % seconds_per_whole_day + carried_seconds;
    const std::int64_t days =
        static_cast<std::int64_t>(time.second / seconds_per_whole_day + seconds / seconds_per_whole_day);
    // No sum overflows: the quotients, and the days that have a date, are far below the limits of their
    // types.
    char *end = buffer;
    if (has_civil_date(julian_day) && has_civil_date(julian_day + days)) {
        end = put_date(end, civil_date_from_day(julian_day + days));
        end = put_time(end, seconds % seconds_per_whole_day, time.nanosecond % nanoseconds_per_second);
    }
    *end = '\0';
    return end;
}

char *write_iso8601_instant(char *buffer, double seconds_since_1970) noexcept
{
    Split_Instant split;
    if (!split_any_instant(seconds_since_1970, split)) {
        *buffer = '\0';
        return buffer;
    }
    const std::uint64_t second = static_cast<std::uint64_t>(split.remainder);
    const double fraction = split.remainder - static_cast<double>(second);
    const std::uint64_t nanosecond = std::uint64_t{1000} * rounded_microseconds(fraction);
    return write_iso8601(buffer, split.julian_day, {second, nanosecond});
}

std::uint32_t scan_iso8601(const char *chars, std::uint32_t length, ZEB_Gregorian_Date &date,
                           ZEB_Time_Value &time) noexcept
{
    Text_Cursor cursor{chars, length, 0};
    ZEB_Gregorian_Date scanned_date{0, 0, 0};
    if (!scan_date(cursor, scanned_date))
        return 0;
    Text_Cursor time_cursor = cursor;
    ZEB_Time_Value scanned_time{0, 0};
    if (scan_time(time_cursor, scanned_time))
        cursor = time_cursor;
    date = scanned_date;
    time = scanned_time;
    return cursor.position;
}

} // namespace zeb::engine
