/// Calendar arithmetic by unit codes.
///
/// Fields wrap around in their own width. A date field out of range is normalised through the day number, so
/// that 31 January plus one month is 2 or 3 March, and months beyond the 14th drift by days
/// (add_months_clamped does neither).
#pragma once

#include "calendar/engine/date_time.hpp"

namespace zeb::engine
{

/// Adds `count` units; the months of quarters and the seconds of hours are multiplied in 32 bits. Then one
/// second is carried out of the nanoseconds and one day out of the seconds, but no more: adding more than a
/// day of seconds leaves a second past the end of the day. A code that names no unit adds nothing. The date
/// is normalised after a carry into the day and for every code from 10 on.
void add_time_units(Date_Time &value, ZEB_Time_Unit unit, std::uint32_t count) noexcept;

/// Sets the date to the start of its second, minute, hour, day (also for a week), month, quarter or year.
/// Quarters begin in the months divisible by three: January and February go back to December of the year
/// before. Other codes change nothing, except that those from 10 on normalise the date.
void truncate_to_unit(Date_Time &value, ZEB_Time_Unit unit) noexcept;

/// Advances the date to the next start of a second, minute, hour, day, month, quarter or year, unless it is
/// at one. A week only clears the time of day; a second is not carried into the day, and a full minute or
/// hour keeps its nanoseconds. Every code normalises the date.
void advance_to_unit_boundary(Date_Time &value, ZEB_Time_Unit unit) noexcept;

} // namespace zeb::engine
