#import "calendar/ZEB_Date_Private.h"

#include "calendar/engine/civil_date.hpp"
#include "calendar/engine/date_arithmetic.hpp"
#include "calendar/engine/daylight_saving.hpp"
#include "core/engine/namespace.hpp"

using engine::value_of;

@implementation ZEB_Date (Arithmetic)

- (int32_t)days_since:(ZEB_Date *)other
{
    return engine::days_between(value_of(self), value_of(other));
}

- (uint8_t)is_equal_to_date:(ZEB_Date *)other
{
    return other != nil && engine::is_equal(value_of(self), value_of(other));
}

- (uint8_t)is_at_or_before_date:(ZEB_Date *)other
{
    return engine::is_at_or_before(value_of(self), value_of(other));
}

- (uint8_t)is_daylight_saving_time
{
    return engine::is_daylight_saving_time(value_of(self));
}

- (void)add_time_units:(ZEB_Time_Unit)unit n:(uint32_t)n
{
    engine::change(self, [=](engine::Date_Time &value) { engine::add_time_units(value, unit, n); });
}

- (void)add_months_clamped:(int32_t)months
{
    engine::change(self, [=](engine::Date_Time &value) { engine::add_months_clamped(value, months); });
}

- (void)truncate_to_unit:(ZEB_Time_Unit)unit
{
    engine::change(self, [=](engine::Date_Time &value) { engine::truncate_to_unit(value, unit); });
}

- (void)advance_to_unit_boundary:(ZEB_Time_Unit)unit
{
    engine::change(self, [=](engine::Date_Time &value) { engine::advance_to_unit_boundary(value, unit); });
}

@end
