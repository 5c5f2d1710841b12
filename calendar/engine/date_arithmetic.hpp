#pragma once

#include "calendar/engine/date_time.hpp"

namespace zeb::engine
{

/// Calendar arithmetic by unit codes. Fields wrap around in their own width and never overflow; a date field
/// that leaves its range is brought back through the day number, so that a month after 31 January is 2 or 3
/// March, and months beyond the 14th drift by days (add_months_clamped does neither).

/// Adds `count` units; months in a quarter and seconds in an hour are multiplied in 32 bits. Afterwards one
/// second is carried out of the nanoseconds and one day out of the seconds, no more: adding more than a day's
/// worth of seconds leaves a second past the day's end. A code that names no unit adds nothing. The day
/// number is derived anew after a carry into the day and for every code from 10 on.
void add_time_units(Date_Time &value, ZEB_Time_Unit unit, std::uint32_t count) noexcept;

/// Sets back to the start of the second, minute, hour, day (week means the same), month, quarter or year.
/// Quarters start in the months that three divides: January and February go back to December of the year
/// before. Other codes change nothing, save that the day number is derived anew from 10 on.
void truncate_to_unit(Date_Time &value, ZEB_Time_Unit unit) noexcept;

/// Moves forward to the next start of a second, minute, hour, day, month, quarter or year, unless it is
/// there. A week only drops the time of day; a second is not carried into the day, and a full minute or hour
/// keeps its nanoseconds. The day number is derived anew for every code.
void advance_to_unit_boundary(Date_Time &value, ZEB_Time_Unit unit) noexcept;

} // namespace zeb::engine
