#import <Korvane_ZEB/ZEB_Thread.h>

#import "core/ZEB_Report_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "core/engine/platform_call.hpp"
#include "runtime/engine/runtime_notes.hpp"
#include "runtime/engine/sleeping.hpp"

#include <cmath>

/** What a time answers. */
@interface NSObject (ZEB_Instant)
- (double)seconds_since_1970;
@end

namespace
{

/// A forwarding object has a signature for what it does not implement itself.
bool performs(id target, SEL selector)
{
    return selector != NULL && target != nil && [target methodSignatureForSelector:selector] != nil;
}

void detach(engine::Fix_Report report, SEL selector, id target, id object)
{
    NSThread *thread = nil;
    const bool is_started = engine::runs_through([&] {
        if (!performs(target, selector))
            return;
        thread = [[NSThread alloc] initWithTarget:target selector:selector object:object];
        [thread start];
    });
    if (is_started && thread != nil)
        return [thread release];
    // Releasing one that was not started is not safe: GNUstep throws where it counts as active.
    report(engine::notes::no_thread);
}

uint8_t is_multi_threaded() { return [NSThread isMultiThreaded] ? 1 : 0; }

void sleep_for(uint64_t second, uint64_t nanosecond)
{
    engine::sleep_through(engine::duration_of(second, nanosecond));
}

/// The platform throws, and leaks, where the instant is not a number.
void sleep_until(id time)
{
    if (![time respondsToSelector:@selector(seconds_since_1970)])
        return;
    const double instant = [time seconds_since_1970];
    if (!std::isnan(instant))
        engine::runs_through(
            [instant] { [NSThread sleepUntilDate:[NSDate dateWithTimeIntervalSince1970:instant]]; });
}

} // namespace

@implementation ZEB_Thread

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

+ (NSThread *)current_thread
{
    return [NSThread currentThread];
}

+ (void)detach:(SEL)selector target:(id)target object:(id)object
{
    detach(engine::Fix_Report{self, _cmd}, selector, target, object);
}

+ (uint8_t)is_multi_threaded
{
    return is_multi_threaded();
}

+ (void)sleep_for:(uint64_t)second nanosecond:(uint64_t)nanosecond
{
    sleep_for(second, nanosecond);
}

+ (void)sleep_until:(id)time
{
    sleep_until(time);
}

+ (void)exit_thread
{
    [NSThread exit];
}

@end

@implementation NSThread (ZEB_Thread)

+ (NSThread *)current_thread
{
    return [NSThread currentThread];
}

+ (void)detach:(SEL)selector target:(id)target object:(id)object
{
    detach(engine::Fix_Report{self, _cmd}, selector, target, object);
}

+ (uint8_t)is_multi_threaded
{
    return is_multi_threaded();
}

+ (void)sleep_for:(uint64_t)second nanosecond:(uint64_t)nanosecond
{
    sleep_for(second, nanosecond);
}

+ (void)sleep_until:(id)time
{
    sleep_until(time);
}

+ (void)exit_thread
{
    [NSThread exit];
}

@end
