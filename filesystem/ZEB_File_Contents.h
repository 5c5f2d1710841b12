/*
 * Reading and writing whole files, and keeping a backup of a file.
 */
#import <Korvane_ZEB/ZEB_File.h>

/**
 * Each operation except `restore` first asks the interceptor. Sizes are those of the snapshot: refresh the
 * status before reading. After an operation `last_error` shows whether it fully succeeded, even if its result
 * does not. Nothing blocks: a FIFO without a partner, or a device without data, is a failure.
 */
@interface ZEB_File (Contents)

/** Replaces the contents of the destination with those of the file, decompressed if `contents_compressed` is
    set. A failure empties the destination and reports "Error opening file: ", "Error, zero content size for
    file: " (the snapshot has no size), "Error, contents too large for file: " (`greatest_contents_size`),
    "Error reading contents of file: ", or "Error: Decompress failed while reading contents of file: ". A file
    shorter than the snapshot's size is reported as a warning; the missing bytes are read as zero, and
    `last_error` is ENODATA. */
- (void)read_contents:(ZEB_Byte_Array *)destination;

/** The same operation under another name. */
- (void)load_contents:(ZEB_Byte_Array *)destination;

/** Replaces the contents of the file with `length` bytes, compressed if `contents_compressed` is set. The
    file is opened or created, then the bytes are compressed, and only then is the file emptied and written. A
    later failure leaves it empty or short: if the old contents matter, write another file and rename it.
    Returns 1, or 0 after reporting "Error opening file: ", "Error: Compress failed before writing contents of
    file: " (the old contents are then intact), or "Error writing contents to file: " (also if closing fails).

    In two cases bytes are lost although the result is 1; `last_error` is then not 0. The platform wrote fewer
    bytes without an error, which is reported as a warning; or compression failed while `report_errors` was
    not set, and the bytes compressed so far were written. */
- (uint32_t)write_contents:(const void *)bytes length:(uint32_t)length;

/** Renames the file to its path with "~" appended, replacing any file there. The entry then refers to the
    renamed file: "~" and a null are appended to its path. Returns 1, or 0 after reporting "Error backstoring
    file: ". */
- (uint32_t)backstore;

/** Renames the file at the path with "~" appended back to the path, which must be the one before `backstore`.
    Returns 1, or 0 after reporting "Error restoring file: ". */
- (uint32_t)restore;

@end
