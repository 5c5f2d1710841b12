/*
 * The engine's access to dates.
 */
#import <Korvane_ZEB/ZEB_Date.h>

#include "calendar/engine/date_time.hpp"

namespace zeb::engine
{

/// Returns the fields of a date; those of one never set for nil.
inline Date_Time value_of(ZEB_Date *date)
{
    return date != nil ? Date_Time{date->date, date->julian_day, date->time} : unset_date_time;
}

inline void set_value(ZEB_Date *date, const Date_Time &value)
{
    date->date = value.date;
    date->julian_day = value.julian_day;
    date->time = value.time;
}

/// Applies `work` to the fields of a date.
template <class Work>
void change(ZEB_Date *date, Work work)
{
    Date_Time value = value_of(date);
    work(value);
    set_value(date, value);
}

} // namespace zeb::engine
