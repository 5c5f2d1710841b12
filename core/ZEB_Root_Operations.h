/*
 * The framework's names of the root operations, for every object of the platform.
 */
#import <Foundation/Foundation.h>

#include <Korvane_ZEB/ZEB_Types.h>

/**
 * The operations of ZEB_Object, so that framework code can send them to any object, framework-made or
 * not. They are sent to the receiver itself, and so to whatever its class made of the platform's
 * operations.
 */
@interface NSObject (ZEB_Root_Operations)

/** 1 when the class itself answers the selector, else 0. */
+ (uint8_t)ZEB_responds_to_selector:(SEL)selector;

/** 1 when instances of the class answer the selector, else 0. */
+ (uint8_t)ZEB_instances_respond_to_selector:(SEL)selector;

/** The class. */
+ (Class)ZEB_class;

/** A new, uninitialised instance from the runtime's plain allocation, owned by the caller. */
+ (id)ZEB_alloc;

/** Sends `init` and answers the receiver, also where `init` answers another object. */
- (id)ZEB_init;

/** A copy owned by the caller, for classes that adopt NSCopying. */
- (id)ZEB_copy;

/** The receiver's class. */
- (Class)ZEB_class;

/** 1 when the receiver's class is `other` or descends from it, else 0. */
- (uint8_t)ZEB_is_kind_of_class:(Class)other;

/** 1 when the receiver answers the selector, else 0. */
- (uint8_t)ZEB_responds_to_selector:(SEL)selector;

/** Sends the selector to the receiver and answers what that answers; nil for a null selector. */
- (id)ZEB_perform_selector:(SEL)selector;

/** Sends the selector with one argument and answers what that answers; nil for a null selector. */
- (id)ZEB_perform_selector_with_object:(SEL)selector object:(id)object;

/** Adds a reference, and answers the receiver. */
- (id)ZEB_retain;

/** Drops a reference; the last one ends the receiver. */
- (void)ZEB_release;

@end
