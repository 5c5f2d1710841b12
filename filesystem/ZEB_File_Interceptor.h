/*
 * The protocol of objects that act in place of a file entry.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Byte_Array, ZEB_File, ZEB_String;

ZEB_ASSUME_NONNULL_BEGIN

/** The actions on which an interceptor decides. */
typedef uint32_t ZEB_File_Action;
enum {
    ZEB_FILE_REFRESH_STATUS = 0,
    ZEB_FILE_CREATE_FILE,
    ZEB_FILE_CREATE_DIRECTORY,
    ZEB_FILE_CREATE_PARENT_DIRECTORIES,
    ZEB_FILE_REMOVE,
    ZEB_FILE_READ_CONTENTS,
    ZEB_FILE_WRITE_CONTENTS,
    ZEB_FILE_COPY,
    ZEB_FILE_MOVE,
    ZEB_FILE_BACKSTORE
};

/** The decisions of an interceptor. With any other value the entry acts as if it had no interceptor. */
enum {
    ZEB_INTERCEPT_REFUSE = 0,     /* the action does nothing and returns 0 */
    ZEB_INTERCEPT_ACT = 2,        /* the interceptor acts, and its result is the action's */
    ZEB_INTERCEPT_ACT_AND_RUN = 3 /* the interceptor acts, then the entry (not on refresh and read) */
};

/**
 * Asked before each action of an entry whose interceptor it is. It has one operation for each action, which
 * takes the entry and the action's arguments and returns the action's result; it may set the entry's
 * `last_error` to the cause of a failure. Each operation is optional: the entry acts itself if the
 * interceptor does not implement the decision, or the operation that it decided on.
 */
@protocol ZEB_File_Interceptor
@optional

/** Returns the decision on an action. */
- (uint32_t)decide_action:(ZEB_File_Action)action file:(ZEB_File *)file;

/** Perform an action in place of the entry. */
- (uint32_t)intercept_refresh_status:(ZEB_File *)file;
- (uint32_t)intercept_create_file:(ZEB_File *)file;
- (uint32_t)intercept_create_directory:(ZEB_File *)file;
- (uint32_t)intercept_create_parent_directories:(ZEB_File *)file;
- (uint32_t)intercept_remove:(ZEB_File *)file;
- (uint32_t)intercept_read_contents:(ZEB_File *)file destination:(ZEB_Byte_Array *ZEB_NULLABLE)destination;
- (uint32_t)intercept_write_contents:(ZEB_File *)file
                               bytes:(const void *ZEB_NULLABLE)bytes
                              length:(uint32_t)length;
- (uint32_t)intercept_copy_to:(ZEB_File *)file destination:(ZEB_String *ZEB_NULLABLE)destination;
- (uint32_t)intercept_move_to:(ZEB_File *)file destination:(ZEB_String *ZEB_NULLABLE)destination;
- (uint32_t)intercept_backstore:(ZEB_File *)file;

@end

ZEB_ASSUME_NONNULL_END
