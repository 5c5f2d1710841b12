#import "date_steps.h"

#include <cmath>

namespace
{

constexpr uint64_t seconds_per_day = 86400;
constexpr int64_t epoch_day = 2440588; // the Julian day of 1970-01-01
constexpr int32_t last_year_of_days = 1000000;
constexpr uint64_t nanoseconds_per_second = 1000000000, nanoseconds_per_millisecond = 1000000;

ZEB_Gregorian_Date fields_of(ZEB_Date *date) { return {[date year], [date month], [date day]}; }

int64_t civil_day_of(ZEB_Date *date) { return ZC_map_civil_date_to_julian_day(fields_of(date)); }

/// Whether the date's arithmetic by day numbers agrees with the civil calendar: on Julian day 0 and after it.
bool counts_days(ZEB_Date *date) { return civil_day_of(date) >= 0 && [date year] < last_year_of_days; }

bool is_of_months(ZEB_Time_Unit unit) { return unit == ZEB_UNIT_MONTH || unit == ZEB_UNIT_YEAR; }

/// Sets the fields to those of a civil day; what is past the end of a second or the day is carried.
void set_civil(ZEB_Date *date, int64_t day, uint64_t second, uint64_t nanosecond)
{
    const uint64_t seconds = second + nanosecond / nanoseconds_per_second;
    [date set_date_and_time:ZC_map_julian_day_to_civil_date(day +
                                                            static_cast<int64_t>(seconds / seconds_per_day))
                     second:seconds % seconds_per_day
                 nanosecond:nanosecond % nanoseconds_per_second];
}

void normalise(ZEB_Date *date) { set_civil(date, civil_day_of(date), [date second], [date nanosecond]); }

/// Adds units of a fixed length by the civil calendar.
void add_civil(ZEB_Date *date, ZEB_Time_Unit unit, uint32_t n)
{
    if (unit == ZEB_UNIT_MILLISECOND)
        set_civil(date, civil_day_of(date), [date second],
                  [date nanosecond] + uint64_t{n} * nanoseconds_per_millisecond);
    else
        set_civil(date, civil_day_of(date), [date second] + static_cast<uint64_t>(least_seconds({unit, n})),
                  [date nanosecond]);
}

void add_units(ZEB_Date *date, ZEB_Time_Unit unit, uint32_t n)
{
    if (is_of_months(unit)) {
        // Months that are added as a unit drift by days beyond the next February.
        [date add_months_clamped:static_cast<int32_t>(unit == ZEB_UNIT_YEAR ? 12 * n : n)];
    } else if (counts_days(date)) {
        [date add_time_units:unit n:n];
        normalise(date);
    } else {
        add_civil(date, unit, n);
    }
}

/// Returns the next multiple of a size.
uint64_t rounded_up(uint64_t number, uint64_t size) { return (number + size - 1) / size * size; }

/// Advances a date to a full second, or millisecond.
void advance_to_whole(ZEB_Date *date, ZEB_Time_Unit unit)
{
    const uint64_t size = unit == ZEB_UNIT_MILLISECOND ? nanoseconds_per_millisecond : nanoseconds_per_second;
    set_civil(date, civil_day_of(date), [date second], rounded_up([date nanosecond], size));
}

/// The same for a boundary of a larger unit, by the civil calendar.
void advance_civil(ZEB_Date *date, ZEB_Time_Unit unit)
{
    if (!is_of_months(unit)) {
        const auto size = static_cast<uint64_t>(least_seconds({unit, 1}));
        set_civil(date, civil_day_of(date), rounded_up([date second], size), 0);
        return;
    }
    const ZEB_Gregorian_Date start{[date year], unit == ZEB_UNIT_YEAR ? 1 : [date month], 1};
    const bool is_at_boundary = [date second] == 0 && [date day] == 1 && [date month] == start.month;
    [date set_date_and_time:start second:0 nanosecond:0];
    if (!is_at_boundary)
        add_units(date, unit, 1);
}

/// Returns the number of a unit, counted in what the steps begin anew with.
int64_t number_of(ZEB_Date *date, ZEB_Time_Unit unit)
{
    switch (unit) {
    case ZEB_UNIT_MILLISECOND:
        return static_cast<int64_t>([date nanosecond] / nanoseconds_per_millisecond);
    case ZEB_UNIT_SECOND:
        return static_cast<int64_t>([date second] % 60);
    case ZEB_UNIT_MINUTE:
        return static_cast<int64_t>([date second] / 60 % 60);
    case ZEB_UNIT_HOUR:
        return static_cast<int64_t>([date second] / 3600);
    case ZEB_UNIT_DAY:
        return civil_day_of(date); // Julian day 0 was a Monday
    case ZEB_UNIT_MONTH:
        return [date month] - 1;
    default:
        return [date year];
    }
}

} // namespace

double least_seconds(Date_Step step)
{
    switch (step.unit) {
    case ZEB_UNIT_MILLISECOND:
        return step.n / 1000.0;
    case ZEB_UNIT_SECOND:
        return step.n;
    case ZEB_UNIT_MINUTE:
        return 60.0 * step.n;
    case ZEB_UNIT_HOUR:
        return 3600.0 * step.n;
    case ZEB_UNIT_DAY:
        return 86400.0 * step.n;
    case ZEB_UNIT_MONTH:
        return 28 * 86400.0 * step.n;
    default:
        return 365 * 86400.0 * step.n;
    }
}

void set_instant(ZEB_Date *date, double instant)
{
    const double day = std::floor(instant / seconds_per_day), time = instant - day * seconds_per_day;
    const double second = std::floor(time), microsecond = std::round((time - second) * 1e6);
    set_civil(date, epoch_day + static_cast<int64_t>(day), static_cast<uint64_t>(second),
              static_cast<uint64_t>(microsecond) * 1000);
}

double instant_of(ZEB_Date *date)
{
    return static_cast<double>((civil_day_of(date) - epoch_day) * static_cast<int64_t>(seconds_per_day)) +
           static_cast<double>([date second]) + static_cast<double>([date nanosecond]) / 1e9;
}

void advance_to_step(ZEB_Date *date, Date_Step step)
{
    advance_to_whole(date, step.unit);
    if (step.unit != ZEB_UNIT_MILLISECOND && counts_days(date)) {
        [date advance_to_unit_boundary:step.unit];
        normalise(date);
    } else if (step.unit != ZEB_UNIT_MILLISECOND) {
        advance_civil(date, step.unit);
    }
    const int64_t n = step.n, beyond = (number_of(date, step.unit) % n + n) % n;
    if (beyond != 0)
        add_units(date, step.unit, static_cast<uint32_t>(n - beyond));
}

void add_step(ZEB_Date *date, Date_Step step) { add_units(date, step.unit, step.n); }
