#include "tests/support/class_test.hpp"
#include <atomic>
#include <chrono>
#include <cmath>
#include <csignal>
#include <sys/time.h>
#include <thread>

namespace
{

template <class Condition>
bool comes_true(Condition condition)
{
    for (int turn = 0; turn < 20000 && !condition(); ++turn)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return condition();
}

template <class Work>
double seconds_of(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

constexpr int turns = 2000;
std::atomic<int> ended;
std::atomic<void *> given, thread; // clang has no atomic objects

} // namespace

/** What threads do. */
@interface Worker : NSObject {
@public
    ZEB_Lock *lock;
    int count; /* behind the lock */
    double instant;
}
- (void)count_behind_lock:(id)object;
- (void)exit_early:(id)object;
@end

@implementation Worker
- (double)seconds_since_1970
{
    return instant;
}

- (void)count_behind_lock:(id)object
{
    given = static_cast<void *>(object);
    thread = static_cast<void *>([ZEB_Thread current_thread]);
    for (int i = 0; i < turns; ++i) {
        [lock lock];
        ++count;
        [lock unlock];
    }
    ++ended;
}

- (void)exit_early:(id)object
{
    [static_cast<Class>(object) exit_thread];
    ++ended;
}
@end

TEST(Thread, runs_the_selector_and_releases_what_it_was_given)
{
    for (const Class named : {[ZEB_Thread class], [NSThread class]}) {
        ended = 0;
        Worker *const worker = [[[Worker alloc] init] autorelease];
        worker->lock = [[[ZEB_Lock alloc] init] autorelease];
        NSObject *const object = [[[NSObject alloc] init] autorelease];
        for (int i = 0; i < 4; ++i)
            [named detach:@selector(count_behind_lock:) target:worker object:object];
        EXPECT_TRUE(comes_true([] { return ended == 4; }));
        EXPECT_EQ(worker->count, 4 * turns);
        EXPECT_EQ(given, static_cast<void *>(object));
        EXPECT_NE(thread, static_cast<void *>([named current_thread]));
        EXPECT_EQ([named current_thread], [NSThread currentThread]);
        EXPECT_EQ([named is_multi_threaded], 1);
        [named detach:@selector(exit_early:) target:worker object:named];
        EXPECT_TRUE(comes_true([=] { return [worker retainCount] == 1 && [object retainCount] == 1; }));
        EXPECT_EQ(ended, 4);
    }
}

TEST(Thread, is_not_started_for_what_the_target_cannot_do)
{
    struct {
        SEL selector;
        id target;
    } const rows[] = {{NULL, @"a"}, {@selector(length), nil}, {@selector(unlock), @"a"}};
    for (const auto &row : rows)
        for (const Class named : {[ZEB_Thread class], [NSThread class]})
            EXPECT_EQ(standard_error_of([=] { [named detach:row.selector target:row.target object:nil]; }),
                      fix_line("detach:target:object:", class_getName(named),
                               "Cannot start thread, no selector performed."));
}

TEST(Thread, sleeps_as_long_as_it_is_told_through_signals)
{
    signal(SIGALRM, [](int) {});
    const itimerval every_5_ms{{0, 5000}, {0, 5000}}, never{};
    setitimer(ITIMER_REAL, &every_5_ms, nullptr);
    Worker *const later = [[[Worker alloc] init] autorelease];
    for (const Class named : {[ZEB_Thread class], [NSThread class]}) {
        EXPECT_GE(seconds_of([=] { [named sleep_for:0 nanosecond:60'000'000]; }), 0.06);
        later->instant = [[NSDate date] timeIntervalSince1970] + 0.06;
        EXPECT_GE(seconds_of([=] { [named sleep_until:later]; }), 0.05);
    }
    setitimer(ITIMER_REAL, &never, nullptr);
}

TEST(Thread, does_not_sleep_until_what_is_past_or_no_instant)
{
    Worker *const past = [[[Worker alloc] init] autorelease];
    for (const double instant : {0.0, -1e300, -HUGE_VAL, std::nan("")})
        for (const id time : {id(nil), id(@"a"), id(past), id([[[ZEB_Date alloc] init] autorelease])}) {
            past->instant = instant;
            EXPECT_LT(seconds_of([=] { [ZEB_Thread sleep_until:time]; }), 10);
        }
}

TEST(Lock, is_taken_by_one_thread_at_a_time)
{
    ZEB_Lock *const lock = [[[ZEB_Lock alloc] init] autorelease];
    const auto tried_elsewhere = [lock] {
        int answer = -1;
        std::thread([&] { (answer = [lock try_lock]) == 1 ? [lock unlock] : void(); }).join();
        return answer;
    };
    EXPECT_EQ([lock try_lock], 1);
    EXPECT_EQ(tried_elsewhere(), 0);
    [lock unlock];
    EXPECT_EQ(tried_elsewhere(), 1);
#if !defined(__SANITIZE_THREAD__) // which reports it itself
    EXPECT_EQ(standard_error_of([=] { [lock unlock]; }),
              fix_line("unlock", "ZEB_Lock", "Cannot lock or unlock, no change made."));
#endif
}
