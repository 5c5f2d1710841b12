/*
 * The root of every framework class.
 */
#import <Korvane_ZEB/ZEB_Root_Operations.h>

/* Fields are laid out for subclasses; the framework's own sources reach them from plain functions too,
   through which the engine sees them. */
#if defined(ZEB_BUILDING_FRAMEWORK)
#define ZEB_PROTECTED @public
#else
#define ZEB_PROTECTED @protected
#endif

/**
 * Answers the root operations under the framework's own names, as every object does; those below go to
 * the platform root's own operation, also where a subclass made something else of it. Adds no state.
 */
ZEB_EXPORT
@interface ZEB_Object : NSObject

/** A new, uninitialised instance, owned by the caller, from the platform root's `alloc`: one that a subclass
    overrides is not asked. */
+ (id)ZEB_alloc;

/** The proprietary notice: one constant text, the same for every class of the framework. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises as the platform root does, and answers the receiver. The class's own `init` does not run: of
    a class with fields of its own (a stream, an array) the instance is not ready for use. Send `init`. */
- (id)ZEB_init;

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
