#import <Korvane_ZEB/ZEB_Date_Sorting.h>

#import "calendar/ZEB_Date_Private.h"
#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"

#include <tuple>

namespace
{

std::tuple<int32_t, uint64_t, uint64_t> place_of(ZEB_Date *date)
{
    const engine::Date_Time value = engine::value_of(date);
    return {value.julian_day, value.time.second, value.time.nanosecond};
}

std::tuple<uint64_t, uint64_t> place_of(ZEB_Time_Stamp *stamp)
{
    const ZEB_Time_Value time = stamp != nil ? stamp->time : ZEB_Time_Value{0, 0};
    return {time.second, time.nanosecond};
}

template <class Place>
NSComparisonResult order(const Place &own, const Place &given)
{
    if (own == given)
        return NSOrderedSame;
    return own < given ? NSOrderedAscending : NSOrderedDescending;
}

} // namespace

@implementation ZEB_Date (Sorting)

- (NSComparisonResult)platform_compare:(ZEB_Date *)other
{
    return order(place_of(self), place_of(engine::instance_or_nil<ZEB_Date>(other)));
}

@end

@implementation ZEB_Time_Stamp (Sorting)

- (NSComparisonResult)platform_compare:(ZEB_Time_Stamp *)other
{
    return order(place_of(self), place_of(engine::instance_or_nil<ZEB_Time_Stamp>(other)));
}

@end
