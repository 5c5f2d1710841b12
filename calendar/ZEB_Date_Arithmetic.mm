#import "calendar/ZEB_Date_Private.h"

#include "calendar/engine/civil_date.hpp"
#include "calendar/engine/date_arithmetic.hpp"
#include "calendar/engine/daylight_saving.hpp"

using zeb::value_of;

@implementation ZEB_Date (Arithmetic)

- (int32_t)days_since:(ZEB_Date *)other
{
    return zeb::days_between(value_of(self), value_of(other));
}

- (uint8_t)is_equal_to_date:(ZEB_Date *)other
{
    return other != nil && zeb::is_equal(value_of(self), value_of(other));
}

- (uint8_t)is_at_or_before_date:(ZEB_Date *)other
{
    return zeb::is_at_or_before(value_of(self), value_of(other));
}

- (uint8_t)is_daylight_saving_time
{
    return zeb::is_daylight_saving_time(value_of(self));
}

- (void)add_time_units:(ZEB_Time_Unit)unit n:(uint32_t)n
{
    zeb::change(self, [=](zeb::Date_Time &value) { zeb::add_time_units(value, unit, n); });
}

- (void)add_months_clamped:(int32_t)months
{
    zeb::change(self, [=](zeb::Date_Time &value) { zeb::add_months_clamped(value, months); });
}

- (void)truncate_to_unit:(ZEB_Time_Unit)unit
{
    zeb::change(self, [=](zeb::Date_Time &value) { zeb::truncate_to_unit(value, unit); });
}

- (void)advance_to_unit_boundary:(ZEB_Time_Unit)unit
{
    zeb::change(self, [=](zeb::Date_Time &value) { zeb::advance_to_unit_boundary(value, unit); });
}

@end
