/*
 * Moving files, and keeping a backup of a file.
 */
#import <Korvane_ZEB/ZEB_File.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Operations that rename. What is at the new path is replaced in one step. `move_to` and `backstore` first
 * ask the interceptor. If there is no memory for the entry's new path, nothing is renamed.
 */
@interface ZEB_File (Moving)

/** Renames the entry, and makes the destination its path. Returns 1, or 0 after reporting "Error moving
    file: ", also if the destination is on another file system (EXDEV). The destination may be the entry's
    own path, or a link onto it. */
- (uint32_t)move_to:(ZEB_String *ZEB_NULLABLE)destination;

/** Renames the file to its path with "~" appended, replacing any file there. The entry then refers to the
    renamed file: "~" and a null are appended to its path. Returns 1, or 0 after reporting "Error backstoring
    file: ". */
- (uint32_t)backstore;

/** Renames the file at the path with "~" appended back to the path, which must be the one before `backstore`.
    Returns 1, or 0 after reporting "Error restoring file: ". */
- (uint32_t)restore;

@end

ZEB_ASSUME_NONNULL_END
