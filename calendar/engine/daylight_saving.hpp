#pragma once

#include "calendar/engine/date_time.hpp"

namespace zeb::engine
{

/// Whether daylight saving time is in force by the rule of the United States, which changed with 2007: from
/// April's first Sunday to October's last until 2006; from March's second Sunday since then. The clock
/// switches at second 7200 of the switching day. From 2007 on, November is answered as March is: false before
/// its first Sunday, true after it.
bool is_daylight_saving_time(const Date_Time &value) noexcept;

} // namespace zeb::engine
