/*
 * A lock between threads.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class NSLock;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * A lock that one thread holds at a time. The framework itself takes none.
 *
 * It is not recursive: a thread that locks it twice waits for ever. Every thread may use it at any time, as
 * long as the object lives.
 */
ZEB_EXPORT
@interface ZEB_Lock : ZEB_Object {
    ZEB_PROTECTED
    ZEB_UNRETAINED NSLock *ZEB_NULLABLE platform_lock;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises a lock that no thread holds. */
- (instancetype)init;

/** Waits until no other thread holds the lock, and takes it. */
- (void)lock;

/** Takes the lock if no thread holds it, and returns 1; returns 0 at once otherwise. */
- (uint8_t)try_lock;

/** Gives the lock back. A lock that this thread does not hold reports "Cannot lock or unlock, no change
    made." where the platform sees it. */
- (void)unlock;

@end

ZEB_ASSUME_NONNULL_END
