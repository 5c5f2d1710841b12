#include "calendar/engine/date_text.hpp"

#include "calendar/engine/decimal_scan.hpp"
#include "numbers/engine/fixed_text.hpp"
#include "numbers/engine/unsigned_text.hpp"

namespace zeb::engine
{
namespace
{

constexpr std::uint32_t fraction_decimals = 12;

char *put_time(char *out, std::uint64_t second) noexcept
{
    *out++ = ' ';
    out = put_two_digits_at_least(out, second / 3600);
    *out++ = ':';
    out = put_two_digits_at_least(out, second / 60 % 60);
    *out++ = ':';
    return put_two_digits_at_least(out, second % 60);
}

} // namespace

char *write_slash_text(char *buffer, const Date_Time &value) noexcept
{
    char *end = put_slash_date(buffer, value.date);
    const double fraction = static_cast<double>(value.time.nanosecond) * 1e-9;
    if (value.time.second != 0) {
        end = put_time(end, value.time.second);
        if (value.time.nanosecond != 0)
            end = write_fraction(end, fraction_decimals, fraction);
    } else if (value.time.nanosecond != 0) {
        *end++ = ' ';
        end = write_fixed(end, fraction_decimals, fraction);
    }
    *end = '\0';
    return end;
}

char *write_time_stamp(char *buffer, ZEB_Time_Value time) noexcept
{
    char *end = put_unsigned_64(buffer, time.second);
    *end++ = '.';
    end = put_zero_padded(end, time.nanosecond, 9);
    *end = '\0';
    return end;
}

Date_Time read_spaced_text(const char *chars, std::uint32_t length) noexcept
{
    Text_Cursor cursor{chars, length, 0};
    ZEB_Gregorian_Date date{0, 0, 0};
    std::int32_t hours = 0, minutes = 0, seconds = 0, nanoseconds = 0;
    // Stops at the first missing piece.
    (void)(cursor.scan_decimal(date.month) && cursor.skip_spaced('/') && cursor.scan_decimal(date.day) &&
           cursor.skip_spaced('/') && cursor.scan_decimal(date.year) && cursor.scan_decimal(hours) &&
           cursor.skip_spaced(':') && cursor.scan_decimal(minutes) && cursor.skip_spaced(':') &&
           cursor.scan_decimal(seconds) && cursor.skip_spaced('.') && cursor.scan_decimal(nanoseconds));
    const std::int64_t second_of_day = std::int64_t{minutes} * 60 + std::int64_t{hours} * 3600 + seconds;
    Date_Time value = make_date_time(date, static_cast<std::uint64_t>(second_of_day),
                                     static_cast<std::uint64_t>(std::int64_t{nanoseconds}));
    update_date(value);
    return value;
}

char *put_slash_date(char *out, ZEB_Gregorian_Date date) noexcept
{
    out = put_signed(out, date.month);
    *out++ = '/';
    out = put_signed(out, date.day);
    *out++ = '/';
    return put_signed(out, date.year);
}

} // namespace zeb::engine
