#import <Korvane_ZEB/ZEB_Lock.h>

#import "core/ZEB_Report_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "core/engine/platform_call.hpp"
#include "runtime/engine/runtime_notes.hpp"

namespace
{

/// The platform throws where it sees that a lock is not used as it must be.
template <class Work>
void use(engine::Fix_Report report, Work work)
{
    if (!engine::runs_through(work))
        report(engine::notes::no_lock);
}

} // namespace

@implementation ZEB_Lock

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [super init];
    if (self != nil)
        platform_lock = [[NSLock alloc] init];
    return self;
}

- (void)dealloc
{
    [platform_lock release];
    [super dealloc];
}

- (void)lock
{
    NSLock *const used = platform_lock;
    use(engine::Fix_Report{self, _cmd}, [used] { [used lock]; });
}

- (uint8_t)try_lock
{
    return [platform_lock tryLock] ? 1 : 0;
}

- (void)unlock
{
    NSLock *const used = platform_lock;
    use(engine::Fix_Report{self, _cmd}, [used] { [used unlock]; });
}

@end
