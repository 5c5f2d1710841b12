/*
 * The root class of the framework.
 */
#import <Korvane_ZEB/ZEB_Root_Operations.h>

ZEB_ASSUME_NONNULL_BEGIN

/* Instance variables are protected for users and public inside the framework, whose plain functions pass them
   to the engine. */
#if defined(ZEB_BUILDING_FRAMEWORK)
#define ZEB_PROTECTED @public
#else
#define ZEB_PROTECTED @protected
#endif

/**
 * Provides the root operations under the framework's own names. The methods below call NSObject's
 * implementation even if a subclass overrides it. Adds no state.
 *
 * Threads: the framework locks nothing. Once start-up is finished on one thread (`ZC_start_up_framework`),
 * different objects may be used on different threads at once, one object on one thread at a time. What the
 * process or a class has one of is for one thread: the shared streams and defaults, the release levels,
 * growth seeds. That holds for the reports of refused operations too, which are written onto the shared error
 * stream.
 */
ZEB_EXPORT
@interface ZEB_Object : NSObject

/** Returns a new, uninitialised instance, owned by the caller. Calls NSObject's `alloc` even if a subclass
    overrides it. */
+ (instancetype)ZEB_alloc NS_RETURNS_RETAINED;

/** Returns the proprietary notice: one constant text, the same for every class of the framework. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Calls NSObject's `init` and returns the receiver. The class's own `init` does not run, so an instance of a
    class with fields of its own (a stream, an array) is not ready for use: send `init` instead. */
- (instancetype)ZEB_init;

/** Returns 1 if the receiver's class is `other` or descends from it, else 0. */
- (uint8_t)ZEB_is_kind_of_class:(Class ZEB_NULLABLE)other;

/** Returns 1 if the receiver responds to the selector, else 0. */
- (uint8_t)ZEB_responds_to_selector:(SEL ZEB_NULLABLE)selector;

/** Sends the selector to the receiver and returns its result; nil for a null selector. */
- (id ZEB_NULLABLE)ZEB_perform_selector:(SEL ZEB_NULLABLE)selector;

/** Sends the selector with one argument and returns its result; nil for a null selector. */
- (id ZEB_NULLABLE)ZEB_perform_selector_with_object:(SEL ZEB_NULLABLE)selector object:(id ZEB_NULLABLE)object;

/** Adds a reference and returns the receiver. */
- (instancetype)ZEB_retain;

/** Drops a reference; the last one deallocates the receiver. */
- (void)ZEB_release;

@end

ZEB_ASSUME_NONNULL_END
