#import <Korvane_ZEB/Korvane_ZEB.h>

#include "tests/support/captured.hpp"
#include "tests/support/diagnostic.hpp"
#include "tests/support/failing_calls.h"

#include <gtest/gtest.h>

#include <cerrno>

TEST(Thread, that_the_platform_cannot_start_is_reported)
{
    NSMutableString *const target = [NSMutableString string];
    zeb_plan_failure("", "thread", 1, EAGAIN);
    const std::string told = support::standard_error_of(
        [=] { [ZEB_Thread detach:@selector(appendString:) target:target object:@"a"]; });
    const unsigned made = zeb_calls_made("thread");
    zeb_plan_failure("", "", 0, 0);
    if (made == 0)
        GTEST_SKIP() << "a sanitizer makes the threads";
    EXPECT_EQ(told, support::fix_line("detach:target:object:", "ZEB_Thread",
                                      "Cannot start thread, no selector performed."));
}
