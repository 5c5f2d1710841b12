/*
 * Operations on threads, for ZEB_Thread and NSThread alike.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class NSThread;

ZEB_ASSUME_NONNULL_BEGIN

/** What ZEB_Thread and NSThread offer as class operations; every thread may use them at any time. */
@protocol ZEB_Thread_Operations

/** Returns the thread that calls. */
+ (NSThread *)current_thread;

/** Starts a thread that performs the selector on the target, with one argument, and ends. It retains target
    and object until then; nothing waits for it. The method makes an autorelease pool of its own: not every
    platform has one in a new thread. What it throws ends the process. Reports "Cannot start thread, no
    selector performed." for a null selector, a target that does not implement it (nil too), and where the
    platform has no thread left. */
+ (void)detach:(SEL ZEB_NULLABLE)selector target:(id ZEB_NULLABLE)target object:(id ZEB_NULLABLE)object;

/** Returns 1 if a thread was ever started beside the first one, else 0. */
+ (uint8_t)is_multi_threaded;

/** Sleeps for the duration; a signal that is handled meanwhile does not shorten it. Nanoseconds of a second
    and more count as seconds. */
+ (void)sleep_for:(uint64_t)second nanosecond:(uint64_t)nanosecond;

/** Sleeps until an instant: that of a ZEB_Time_Stamp, or of any object that answers `seconds_since_1970` with
    a double. Returns at once if that is past or NaN, and for nil and objects that do not answer it. A
    ZEB_Date answers by its own fields, without a time zone: one that was set from the local clock is off by
    the zone's offset. To wait for a while, use `sleep_for:nanosecond:`. */
+ (void)sleep_until:(id ZEB_NULLABLE)time;

/** Ends the thread that calls. */
+ (void)exit_thread;

@end

/** The operations on threads under the framework's name. */
ZEB_EXPORT
@interface ZEB_Thread : ZEB_Object <ZEB_Thread_Operations> {
    ZEB_PROTECTED
    ZEB_UNRETAINED NSThread *ZEB_NULLABLE platform_thread; /* for subclasses: nil at first, not retained */
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

@end

@interface NSThread (ZEB_Thread) <ZEB_Thread_Operations>
@end

ZEB_ASSUME_NONNULL_END
