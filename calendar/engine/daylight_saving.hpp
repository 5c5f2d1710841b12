/// Daylight saving time in the United States.
#pragma once

#include "calendar/engine/date_time.hpp"

namespace zeb::engine
{

/// Whether daylight saving time is in force by the rules of the United States: until 2006 from the first
/// Sunday of April to the last of October, from 2007 on from the second Sunday of March. The clock changes at
/// second 7200 of the day. From 2007 on November follows the rule of March: false before its first Sunday,
/// true after it.
bool is_daylight_saving_time(const Date_Time &value) noexcept;

} // namespace zeb::engine
