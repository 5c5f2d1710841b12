#include "tests/support/class_test.hpp"
#include "tests/support/failing_calls.h"
#include "tests/support/sanitizer.hpp"

#include <cerrno>

// The sanitizers make the threads themselves, or see what the platform leaves behind then.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST(Thread, that_the_platform_cannot_start_is_reported)
{
    NSMutableString *const target = [NSMutableString string];
    zeb_plan_failure("", "thread", 1, EAGAIN);
    const std::string told = support::standard_error_of(
        [=] { [ZEB_Thread detach:@selector(appendString:) target:target object:@"a"]; });
    zeb_plan_failure("", "", 0, 0);
    EXPECT_EQ(told, support::fix_line("detach:target:object:", "ZEB_Thread",
                                      "Cannot start thread, no selector performed."));
}
#endif
