#include "calendar/ZEB_Calendar_Functions.h"

#include "calendar/engine/civil_date.hpp"
#include "calendar/engine/date_scanning.hpp"
#include "calendar/engine/instant.hpp"
#include "calendar/engine/iso8601.hpp"
#include "calendar/engine/julian_day.hpp"
#include "core/engine/namespace.hpp"

static_assert(ZEB_DATE_TEXT_SIZE == engine::iso8601_text_size);

int32_t ZC_map_gregorian_date_to_julian_day(ZEB_Gregorian_Date date)
{
    return engine::julian_day_from_date(date);
}

ZEB_Gregorian_Date ZC_map_julian_day_to_gregorian_date(int32_t julian_day)
{
    return engine::date_from_julian_day(julian_day);
}

char *ZC_pretty_format_gregorian_date_from_seconds(char *buffer, double seconds_since_1970)
{
    return engine::write_pretty_date(buffer, seconds_since_1970);
}

uint32_t ZC_skip_valid_gregorian_date_char_c_array(const char *chars, uint32_t length)
{
    engine::Scanned_Date scanned;
    return engine::scan_date(chars, length, scanned);
}

uint32_t ZC_assign_seconds_from_gregorian_date_char_c_array(const char *chars, uint32_t length,
                                                            double *seconds_since_1970)
{
    engine::Scanned_Date scanned;
    const uint32_t consumed = engine::scan_date(chars, length, scanned);
    if (consumed != 0)
        *seconds_since_1970 = engine::seconds_since_1970(scanned);
    return consumed;
}

ZEB_Gregorian_Date ZC_map_julian_day_to_civil_date(int64_t julian_day)
{
    return engine::has_civil_date(julian_day) ? engine::civil_date_from_day(julian_day)
                                              : ZEB_Gregorian_Date{0, 0, 0};
}

int64_t ZC_map_civil_date_to_julian_day(ZEB_Gregorian_Date date) { return engine::day_from_civil_date(date); }

int32_t ZC_days_in_month(int32_t year, int32_t month) { return engine::days_in_month(year, month); }

ZEB_Gregorian_Date ZC_add_months_clamped(ZEB_Gregorian_Date date, int32_t months)
{
    return engine::add_months_clamped(date, months);
}

char *ZC_format_iso8601_date(char *buffer, ZEB_Gregorian_Date date)
{
    return engine::write_iso8601_date(buffer, date);
}

char *ZC_format_iso8601_date_and_time(char *buffer, int64_t julian_day, ZEB_Time_Value time_of_day)
{
    return engine::write_iso8601(buffer, julian_day, time_of_day);
}

char *ZC_format_iso8601_from_seconds(char *buffer, double seconds_since_1970)
{
    return engine::write_iso8601_instant(buffer, seconds_since_1970);
}

uint32_t ZC_assign_date_from_iso8601_char_c_array(const char *chars, uint32_t length,
                                                  ZEB_Gregorian_Date *date, ZEB_Time_Value *time_of_day)
{
    ZEB_Time_Value unused_time;
    return engine::scan_iso8601(chars, length, *date, time_of_day ? *time_of_day : unused_time);
}

uint32_t ZC_assign_seconds_from_iso8601_char_c_array(const char *chars, uint32_t length,
                                                     double *seconds_since_1970)
{
    ZEB_Gregorian_Date date;
    ZEB_Time_Value time_of_day;
    const uint32_t consumed = engine::scan_iso8601(chars, length, date, time_of_day);
    if (consumed != 0)
        *seconds_since_1970 = engine::civil_seconds_since_1970(date, time_of_day);
    return consumed;
}
