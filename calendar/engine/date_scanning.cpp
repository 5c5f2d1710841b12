#include "calendar/engine/date_scanning.hpp"

#include "calendar/engine/decimal_scan.hpp"
#include "calendar/engine/julian_day.hpp"
#include "calendar/engine/wrapping.hpp"
#include "core/engine/c_locale.hpp"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace zeb::engine
{
namespace
{

constexpr std::uint32_t longest_date_text = 1023;

constexpr double powers_of_ten[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                    1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// Reads digits and at most one point, if a single exact division gives the correctly rounded value. Returns
/// false, with the cursor unchanged, for any other text.
bool scan_plain_seconds(Text_Cursor &cursor, double &seconds) noexcept
{
    const char *chars = cursor.chars;
    std::uint32_t index = cursor.position;
    std::uint64_t digits = 0;
    std::uint32_t digit_count = 0, decimals = 0;
    bool after_point = false;
    for (; index < cursor.length; ++index) {
        const char c = chars[index];
        if (is_ascii_digit(c)) {
            digits = digits * 10 + static_cast<std::uint64_t>(c - '0');
            decimals += after_point;
            if (++digit_count > 15) // more may not fit in a double
                return false;
        } else if (c == '.' && !after_point) {
            after_point = true;
        } else {
            break;
        }
    }
    if (digit_count == 0)
        return false;
    if (index < cursor.length) {
        const char next = ascii_lower(chars[index]);
        if (next == 'e' || next == 'x') // an exponent, or a hexadecimal number
            return false;
    }
    seconds = static_cast<double>(digits) / powers_of_ten[decimals];
    cursor.position = index;
    return true;
}

bool scan_seconds_with_c_library(Text_Cursor &cursor, double &seconds) noexcept
{
    char text[longest_date_text + 1];
    const std::uint32_t length = cursor.length - cursor.position;
    std::memcpy(text, cursor.chars + cursor.position, length);
    text[length] = '\0';
    int consumed = 0;
    const C_Locale_Scope in_c_locale;
    if (std::sscanf(text, "%lf%n", &seconds, &consumed) != 1 || consumed <= 0)
        return false;
    cursor.position += static_cast<std::uint32_t>(consumed);
    return true;
}

bool scan_seconds(Text_Cursor &cursor, double &seconds) noexcept
{
    cursor.skip_spaces();
    if (cursor.position >= cursor.length)
        return false;
    return scan_plain_seconds(cursor, seconds) || scan_seconds_with_c_library(cursor, seconds);
}

} // namespace

std::uint32_t scan_date(const char *chars, std::uint32_t length, Scanned_Date &result) noexcept
{
    const std::uint32_t skipped = leading_spaces(chars, length);
    Text_Cursor cursor{chars + skipped, std::min(length - skipped, longest_date_text), 0};
    Scanned_Date scanned{{0, 0, 0}, 0, 0, 0.0};
    if (!(cursor.scan_decimal(scanned.date.month) && cursor.skip_spaced('/') &&
          cursor.scan_decimal(scanned.date.day) && cursor.skip_spaced('/') &&
          cursor.scan_decimal(scanned.date.year)))
        return 0;
    const std::uint32_t date_end = cursor.position;
    if (!(cursor.scan_decimal(scanned.hours) && cursor.skip_spaced(':') &&
          cursor.scan_decimal(scanned.minutes) && cursor.skip_spaced(':') &&
          scan_seconds(cursor, scanned.seconds))) {
        scanned.hours = scanned.minutes = 0;
        scanned.seconds = 0.0;
        cursor.position = date_end;
    }
    result = scanned;
    return skipped + cursor.position;
}

double seconds_since_1970(const Scanned_Date &scanned) noexcept
{
    const std::int32_t days = wrapping_subtract(julian_day_from_date(scanned.date), julian_day_of_1970);
    return days * 86400.0 + scanned.hours * 3600.0 + scanned.minutes * 60.0 + scanned.seconds;
}

} // namespace zeb::engine
