#import "calendar/ZEB_Date_Private.h"

#import "core/ZEB_Description_Stream_Private.h"

#include "calendar/engine/date_time.hpp"
#include "calendar/engine/local_time.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"

@implementation ZEB_Date

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [super init];
    if (self != nil)
        engine::set_value(self, engine::unset_date_time);
    return self;
}

- (id)init_with_date_and_time:(ZEB_Gregorian_Date)gregorian
                       second:(uint64_t)second
                   nanosecond:(uint64_t)nanosecond
{
    self = [self init];
    [self set_date_and_time:gregorian second:second nanosecond:nanosecond];
    return self;
}

- (id)init_with_date:(ZEB_Date *)other
{
    const engine::Date_Time value = engine::value_of(other);
    return [self init_with_date_and_time:value.date
                                  second:value.time.second
                              nanosecond:value.time.nanosecond];
}

- (id)init_with_current_time
{
    self = [self init];
    [self set_to_current_time];
    return self;
}

- (id)copyWithZone:(NSZone *)zone
{
    ZEB_Date *const made = [[[self class] allocWithZone:zone] init];
    [made assign_date:self];
    return made;
}

- (BOOL)isEqual:(id)other
{
    return [other isKindOfClass:[ZEB_Date class]] && [self is_equal_to_date:other];
}

- (NSUInteger)hash
{
    return engine::hash_of(engine::value_of(self));
}

- (NSString *)description
{
    return engine::description_of(self);
}

- (int32_t)year
{
    return date.year;
}

- (int32_t)month
{
    return date.month;
}

- (int32_t)day
{
    return date.day;
}

- (int32_t)julian_day
{
    return julian_day;
}

- (uint64_t)second
{
    return time.second;
}

- (uint64_t)nanosecond
{
    return time.nanosecond;
}

- (void)set_to_current_time
{
    engine::set_value(self, engine::current_local_date_time());
}

- (void)assign_date:(ZEB_Date *)other
{
    engine::set_value(self, engine::value_of(other));
}

- (void)set_date_and_time:(ZEB_Gregorian_Date)gregorian
                   second:(uint64_t)second
               nanosecond:(uint64_t)nanosecond
{
    engine::set_value(self, engine::make_date_time(gregorian, second, nanosecond));
}

- (void)update_date_from_julian_day
{
    engine::change(self, engine::update_date);
}

- (void)set_julian_day:(int32_t)day_number
{
    julian_day = day_number;
    [self update_date_from_julian_day];
}

- (void)set_seconds_since_1970:(double)seconds
{
    engine::change(self, [=](engine::Date_Time &value) { engine::set_seconds_since_1970(value, seconds); });
}

- (double)seconds_since_1970
{
    return engine::seconds_since_1970(engine::value_of(self));
}

@end
