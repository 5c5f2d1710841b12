#import <Korvane_ZEB/ZEB_NSDate_Conversion.h>

#import "calendar/ZEB_Date_Private.h"
#import "core/ZEB_Report_Private.h"

#include "calendar/engine/calendar_notes.hpp"
#include "calendar/engine/reference_instant.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/platform_call.hpp"

namespace
{

bool is_zone(NSTimeZone *zone) { return zone == nil || [zone isKindOfClass:[NSTimeZone class]]; }

/// Returns an NSDate; nil if the platform cannot make one.
NSDate *platform_date(engine::Exact_Instant instant)
{
    const NSTimeInterval seconds = engine::reference_time(instant);
    NSDate *made = nil;
    engine::runs_through([&] { made = [NSDate dateWithTimeIntervalSinceReferenceDate:seconds]; });
    return made;
}

/// Returns the seconds by which the clocks of a zone are ahead at an instant.
int64_t offset_at(NSTimeZone *zone, int64_t second)
{
    return zone != nil ? [zone secondsFromGMTForDate:platform_date({second, 0})] : 0;
}

bool split(NSDate *date, engine::Exact_Instant &instant)
{
    return [date isKindOfClass:[NSDate class]] &&
           engine::split_reference_time([date timeIntervalSinceReferenceDate], instant);
}

/// Sets what the clocks of a zone show; false if it is refused.
bool set_to_platform_date(ZEB_Date *date, NSDate *given, NSTimeZone *zone)
{
    engine::Exact_Instant instant;
    if (!split(given, instant) || !is_zone(zone) ||
        !engine::runs_through([&] { instant.second += offset_at(zone, instant.second); }))
        return false;
    engine::Date_Time value;
    const bool is_in_range = engine::set_to_instant(value, instant);
    if (is_in_range)
        engine::set_value(date, value);
    return is_in_range;
}

/// Returns the instant at which the clocks of a zone show a date; nil if there is none.
NSDate *instant_in_zone(ZEB_Date *date, NSTimeZone *zone)
{
    engine::Exact_Instant instant;
    if (!is_zone(zone) || !engine::get_instant(engine::value_of(date), instant))
        return nil;
    const bool is_through = engine::runs_through([&] {
        instant = engine::instant_of_local_time(instant, [=](int64_t at) { return offset_at(zone, at); });
    });
    return is_through ? platform_date(instant) : nil;
}

NSDate *instant_of(ZEB_Time_Value time)
{
    engine::Exact_Instant instant;
    return engine::get_instant(time, instant) ? platform_date(instant) : nil;
}

bool set_to_platform_date(ZEB_Time_Value &time, NSDate *given)
{
    engine::Exact_Instant instant;
    if (!split(given, instant) || instant.second < 0)
        return false;
    time = {static_cast<uint64_t>(instant.second), instant.nanosecond};
    return true;
}

NSDate *made_or_reported(NSDate *made, engine::Fix_Report report)
{
    if (made == nil)
        report(engine::notes::no_instant_made);
    return made;
}

uint8_t done_or_reported(bool is_done, engine::Fix_Report report)
{
    if (!is_done)
        report(engine::notes::no_instant_given);
    return is_done ? 1 : 0;
}

} // namespace

@implementation ZEB_Date (NSDate_Conversion)

- (NSDate *)NSDate_value_in_time_zone:(NSTimeZone *)zone
{
    return made_or_reported(instant_in_zone(self, zone), engine::Fix_Report{self, _cmd});
}

- (uint8_t)set_from_NSDate:(NSDate *)instant time_zone:(NSTimeZone *)zone
{
    return done_or_reported(set_to_platform_date(self, instant, zone), engine::Fix_Report{self, _cmd});
}

@end

@implementation ZEB_Time_Stamp (NSDate_Conversion)

- (NSDate *)NSDate_value
{
    return made_or_reported(instant_of(time), engine::Fix_Report{self, _cmd});
}

- (uint8_t)set_from_NSDate:(NSDate *)instant
{
    return done_or_reported(set_to_platform_date(time, instant), engine::Fix_Report{self, _cmd});
}

@end
