/*
 * The framework's names of the root operations, for every NSObject.
 */
#import <Foundation/Foundation.h>

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * The operations of ZEB_Object for every object, so that framework code can send them to objects of any
 * class. Each sends the platform's message to the receiver, so overrides take effect.
 */
@interface NSObject (ZEB_Root_Operations)

/** Returns 1 if the class itself responds to the selector, else 0. */
+ (uint8_t)ZEB_responds_to_selector:(SEL ZEB_NULLABLE)selector;

/** Returns 1 if instances of the class respond to the selector, else 0. */
+ (uint8_t)ZEB_instances_respond_to_selector:(SEL ZEB_NULLABLE)selector;

/** Returns the class. */
+ (Class)ZEB_class;

/** Returns a new, uninitialised instance, owned by the caller, from the runtime's plain allocation. */
+ (instancetype)ZEB_alloc NS_RETURNS_RETAINED;

/** Sends `init` and returns the receiver, even if `init` returns another object. */
- (instancetype)ZEB_init;

/** Returns a copy owned by the caller, for classes that adopt NSCopying. */
- (id)ZEB_copy NS_RETURNS_RETAINED;

/** Returns the receiver's class. */
- (Class)ZEB_class;

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
