/* What plain C has of the framework: c_program DAY MONTHS NUMBER, the day by ISO 8601, with or without a time
 */
#include <Korvane_ZEB/Korvane_ZEB_C.h>

#include <stdbool.h>
#include <stdio.h>
#include <string.h>

static uint32_t length_of(const char *text) { return (uint32_t)strlen(text); }

static bool print_day(const char *text, const char *count_of_months)
{
    ZEB_Gregorian_Date date;
    ZEB_Time_Value time = {0, 0};
    int32_t months;
    double seconds;
    const uint32_t length = length_of(text), digits = length_of(count_of_months);
    if (length == 0 || ZC_assign_date_from_iso8601_char_c_array(text, length, &date, &time) != length ||
        ZC_assign_seconds_from_iso8601_char_c_array(text, length, &seconds) != length || digits == 0 ||
        ZC_assign_int_from_char_c_array(count_of_months, digits, &months) != digits)
        return false;
    char day_text[ZEB_DATE_TEXT_SIZE], later_text[ZEB_DATE_TEXT_SIZE], pretty_text[ZEB_DATE_TEXT_SIZE];
    const int64_t day = ZC_map_civil_date_to_julian_day(date);
    ZC_format_iso8601_date_and_time(day_text, day, time);
    ZC_format_iso8601_date(later_text, ZC_add_months_clamped(date, months));
    ZC_pretty_format_gregorian_date_from_seconds(pretty_text, seconds);
    return printf("%s is %s, Julian day %lld, in a month of %d days\n", pretty_text, day_text, (long long)day,
                  ZC_days_in_month(date.year, date.month)) > 0 &&
           printf("%d months later: %s\n", months, later_text) > 0;
}

static bool print_number(const char *text)
{
    double number;
    const uint32_t length = length_of(text);
    if (length == 0 || ZC_assign_double_from_char_c_array(text, length, &number) != length)
        return false;
    char pretty_text[ZEB_NUMBER_TEXT_SIZE], fixed_text[ZEB_NUMBER_TEXT_SIZE];
    char power_text[ZEB_SCIENTIFIC_TEXT_SIZE], bits_text[17];
    uint32_t kind;
    ZEB_Index_Range raised;
    ZC_pretty_format_double(pretty_text, number);
    ZC_format_fixed_double(fixed_text, 2, number);
    ZC_format_scientific_double(power_text, 4, &kind, &raised, number, 10, 1);
    int64_t bits;
    memcpy(&bits, &number, sizeof bits);
    ZEB_hex_digits64(bits_text, (uint64_t)ZC_swap_long_long(bits));
    if (printf("%s, with two decimals %s, bytes reversed %s\n", pretty_text, fixed_text, bits_text) <= 0)
        return false;
    if (kind != 3)
        return printf("no power of ten: %s\n", power_text) > 0;
    const uint32_t raised_length = raised.end - raised.start + 1;
    return printf("%.*s to the power of %.*s\n", (int)raised.start, power_text, (int)raised_length,
                  power_text + raised.start) > 0;
}

int main(int count, char **arguments)
{
    const bool is_done = count == 4 && print_day(arguments[1], arguments[2]) && print_number(arguments[3]) &&
                         printf("%s\n", (const char *)Korvane_ZEBVersionString) > 0 &&
                         fflush(stdout) == 0;
    if (!is_done)
        fprintf(stderr,
                "c_program: usage: c_program DAY MONTHS NUMBER, such as 2024-02-29T12:30 12 1234.5\n");
    return is_done ? 0 : 1;
}
