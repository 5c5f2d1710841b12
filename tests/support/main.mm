/*
 * The main of every test program: each test runs inside an autorelease pool of its own, because without
 * one GNUstep complains on the standard error that the diagnostics use.
 */
#import <Foundation/Foundation.h>

#include "sanitizer.hpp"

#include <cstdlib>
#include <grp.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace
{

class Pool_Around_Each_Test : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo &) override { pool = [[NSAutoreleasePool alloc] init]; }
    void OnTestEnd(const testing::TestInfo &) override { [pool drain]; }

    NSAutoreleasePool *pool = nil;
};

/// Lets Foundation make what it keeps for the life of the process, before leaks are looked for.
void warm_up_foundation()
{
    const support::Leaks_Unwatched unwatched;
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    [NSUserDefaults standardUserDefaults];
    [NSBundle mainBundle];
    [NSString stringWithFormat:@"%@ %d %g", @"warm", 1, 1.0];
    [pool drain];
}

/// Gives up root's rights for those of the user whose number the environment has.
bool become_user()
{
    const char *const user = std::getenv("ZEB_TEST_USER");
    const unsigned number = user != nullptr ? static_cast<unsigned>(std::atoi(user)) : 0;
    return number == 0 || geteuid() != 0 ||
           (setgroups(0, nullptr) == 0 && setgid(number) == 0 && setuid(number) == 0);
}

} // namespace

int main(int count, char **arguments)
{
    if (!become_user())
        return 1;
    warm_up_foundation();
    testing::InitGoogleTest(&count, arguments);
    testing::UnitTest::GetInstance()->listeners().Append(new Pool_Around_Each_Test);
    return RUN_ALL_TESTS();
}
