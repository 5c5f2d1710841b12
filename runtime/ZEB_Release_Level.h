/*
 * Levels that bound the life of temporary objects.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Object_Array;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * A level of a stack. It retains the objects that it is told to keep, and autoreleased objects live in its
 * pool; both go when the level is popped.
 *
 *     [ZEB_Release_Level push];
 *     ZEB_String *const text = [ZEB_String array_with_capacity:0]; // lives until the pop
 *     [ZEB_Release_Level keep:document];                           // stays until the pop
 *     [ZEB_Release_Level pop];
 *
 * There is one stack in the process, for one thread: each push is popped on the thread that pushed, and other
 * threads use autorelease pools.
 */
ZEB_EXPORT
@interface ZEB_Release_Level : ZEB_Object {
    ZEB_PROTECTED
    ZEB_UNRETAINED ZEB_Release_Level *ZEB_NULLABLE parent;
    ZEB_UNRETAINED ZEB_Release_Level *ZEB_NULLABLE child;
    ZEB_UNRETAINED ZEB_Object_Array *ZEB_NULLABLE kept_objects;
    ZEB_UNRETAINED id ZEB_NULLABLE platform_pool;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Opens a level inside the current one, or a root level if there is none, and makes it the current one. */
+ (void)push;

/** Closes the current level: its parent becomes the current one, and the level is released. Nothing happens
    without a level. */
+ (void)pop;

/** Retains the object until the current level is closed. Nothing happens without a level, or for nil. */
+ (void)keep:(id ZEB_NULLABLE)object;

/** The current level: nil if there is none. Setting it neither retains nor releases; a pop releases what is
    then the current one. Under automatic reference counting a level of your own making is handed over as
    ZEB_Ownership.h shows. */
+ (ZEB_Release_Level *ZEB_NULLABLE)current;
+ (void)set_current:(ZEB_Release_Level *ZEB_NULLABLE)level;

/** Returns 1 once a root level was initialised, else 0. */
+ (uint8_t)is_started;

/** Initialises a root level, without making it the current one. */
- (instancetype)init;

/** Initialises a level inside another, without making it the current one or the child of that. */
- (instancetype)init_with_parent:(ZEB_Release_Level *ZEB_NULLABLE)level;

/** The enclosing level, not retained: nil for a root level. */
- (ZEB_Release_Level *ZEB_NULLABLE)parent;
- (void)set_parent:(ZEB_Release_Level *ZEB_NULLABLE)level;

/** The level inside this one: not retained, but released with this one, which makes this one's parent the
    current level. Under automatic reference counting it is handed over as ZEB_Ownership.h shows. */
- (ZEB_Release_Level *ZEB_NULLABLE)child;
- (void)set_child:(ZEB_Release_Level *ZEB_NULLABLE)level;

/** The objects that the level keeps, in the order in which it was told; the level retains the array. */
- (ZEB_Object_Array *ZEB_NULLABLE)kept_objects;
- (void)set_kept_objects:(ZEB_Object_Array *ZEB_NULLABLE)objects;

@end

ZEB_ASSUME_NONNULL_END
