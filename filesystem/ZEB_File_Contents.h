/*
 * Reading and writing whole files.
 */
#import <Korvane_ZEB/ZEB_File.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Each operation first asks the interceptor. Sizes are those of the snapshot: refresh the status before
 * reading. After an operation `last_error` shows whether it fully succeeded, even if its result does not.
 * Nothing blocks: a FIFO without a partner, or a device without data, is a failure.
 */
@interface ZEB_File (Contents)

/** Replaces the contents of the destination with those of the file, decompressed if `contents_compressed` is
    set. A failure empties the destination and reports "Error opening file: ", "Error, zero content size for
    file: " (the snapshot has no size), "Error, contents too large for file: " (`greatest_contents_size`),
    "Error reading contents of file: ", or "Error: Decompress failed while reading contents of file: ". A file
    shorter than the snapshot's size is reported as a warning; the missing bytes are read as zero, and
    `last_error` is ENODATA. */
- (void)read_contents:(ZEB_Byte_Array *ZEB_NULLABLE)destination;

/** The same operation under another name. */
- (void)load_contents:(ZEB_Byte_Array *ZEB_NULLABLE)destination;

/** Replaces the contents of the file with `length` bytes, compressed if `contents_compressed` is set. The
    file is opened or created, then the bytes are compressed, and only then is the file emptied and written. A
    later failure leaves it empty or short: if the old contents matter, use `replace_contents`.
    Returns 1, or 0 after reporting "Error opening file: ", "Error: Compress failed before writing contents of
    file: " (the old contents are then intact), or "Error writing contents to file: " (also if closing fails).

    In two cases bytes are lost although the result is 1; `last_error` is then not 0. The platform wrote fewer
    bytes without an error, which is reported as a warning; or compression failed while `report_errors` was
    not set, and the bytes compressed so far were written. */
- (uint32_t)write_contents:(const void *ZEB_NULLABLE)bytes length:(uint32_t)length;

/** Replaces the file by a new one with these contents, compressed if `contents_compressed` is set. The bytes
    are written beside the file, under a name that begins with ".zeb-", flushed to the storage device, and
    renamed over the path, and the directory is flushed. At every moment the path has the old or the new
    contents, whole, also if the process is killed; after a power failure as far as device and file system
    keep what they confirm. The interceptor is asked as for `write_contents`.

    The new file has the permission bits, the owner and the group of the old one. Where this process may not
    set the owner or the group, it has its own, and the group's rights are at most those of others. Other
    names of the old file (hard links) keep the old contents; access lists and extended attributes are not
    taken over. A symbolic link is followed, and stays.

    Returns 1, also if only flushing the directory failed: the file is then replaced, but may be the old one
    after a power failure, and `last_error` has the cause. Returns 0 after reporting a failure as
    `write_contents` does. What is not a regular file, a link that leads nowhere, and a file that may not be
    written cannot be opened. After a failure the old file is unchanged and the new one removed; only a
    process that is killed leaves it there. Null bytes with a length are refused with EFAULT, here and in
    `write_contents`, before the file is touched. */
- (uint32_t)replace_contents:(const void *ZEB_NULLABLE)bytes length:(uint32_t)length;

@end

ZEB_ASSUME_NONNULL_END
