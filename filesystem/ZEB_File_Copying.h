/*
 * Copying files.
 */
#import <Korvane_ZEB/ZEB_File.h>

ZEB_ASSUME_NONNULL_BEGIN

@interface ZEB_File (Copying)

/** Copies as many bytes as the snapshot has size to another path, as they are stored, and replaces the
    contents of a file there. First asks the interceptor. Memory does not grow with the size.

    A destination that existed, or any if `load_details` is set, then gets the permission bits, the owner and
    the group of this entry; a new one is created with no more rights than those. If that fails, as the owner
    does for most users where it is another, the result stays 1 and `last_error` has the cause.

    Returns 1, or 0 after reporting "Error opening source file for copying: ", "Error copying to file: "
    (also, with EINVAL and nothing changed, if both paths lead to one file), "Error copying contents from
    file: " (the destination is then empty), or "Error copying contents to file: " (also if closing fails; the
    destination is then incomplete). A source that is shorter than the size, or bytes that the platform did
    not write without an error, are reported as warnings; the result is 1 and `last_error` ENODATA or EIO. */
- (uint32_t)copy_to:(ZEB_String *ZEB_NULLABLE)destination;

@end

ZEB_ASSUME_NONNULL_END
