/// Calendar arithmetic by message.
#include "benchmarks/calendar/calendar_rows.hpp"
#include "benchmarks/common/rows.hpp"

#include <chrono>

#import <Korvane_ZEB/Korvane_ZEB.h>

/// What a message costs that does nothing.
@interface ZEB_Date (Empty_Message)
- (void)take_nothing_from:(ZEB_Time_Unit)unit n:(uint32_t)n;
@end
@implementation ZEB_Date (Empty_Message)
- (void)take_nothing_from:(ZEB_Time_Unit)unit n:(uint32_t)n
{
    (void)unit;
    (void)n;
}
@end

namespace zeb_bench
{
namespace
{

using namespace std::chrono;

constexpr int steps = 20000;

/// Month steps of a date by the standard library, each with an empty message before it.
int chrono_steps(ZEB_Date *message_taker)
{
    year_month_day date = year{1900} / 1 / 15;
    for (int i = 0; i < steps; ++i) {
        [message_taker take_nothing_from:ZEB_UNIT_MONTH n:1];
        date += months{1};
        date = sys_days{date};
        benchmark::DoNotOptimize(date);
    }
    return sys_days{date}.time_since_epoch().count();
}

} // namespace

void add_message_rows()
{
    ZEB_Date *const moved = [[ZEB_Date alloc] init];
    Row("month steps by message", Measure::Items, steps)
        .framework([=] {
            [moved set_date_and_time:ZEB_Gregorian_Date{1900, 1, 15} second:0 nanosecond:0];
            for (int i = 0; i < steps; ++i)
                [moved add_time_units:ZEB_UNIT_MONTH n:1];
            return [moved julian_day];
        })
        .peer("empty message + std::chrono", [=] { return chrono_steps(moved); })
        .goal(1 / 1.5);
}

} // namespace zeb_bench
