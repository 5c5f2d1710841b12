/*
 * Dates at the boundaries of units of time.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

/** So many units of time: milliseconds to hours, days, months or years. */
typedef struct {
    ZEB_Time_Unit unit;
    uint32_t n;
} Date_Step;

/** The seconds of the shortest step of its kind: months of 28 days, years of 365. */
double least_seconds(Date_Step step);

/** Sets a date to an instant, in seconds since 1970-01-01 00:00, to the microsecond. Its fields are those of
    the civil calendar, also before Julian day 0. */
void set_instant(ZEB_Date *date, double instant);

/** Returns the instant of a date's fields in the civil calendar. */
double instant_of(ZEB_Date *date);

/** Advances a date to the next boundary of its step, unless it is at one: to a multiple of n units within the
    next larger ones, of n days from a Monday on, or of n years. */
void advance_to_step(ZEB_Date *date, Date_Step step);

/** Adds a step. */
void add_step(ZEB_Date *date, Date_Step step);
