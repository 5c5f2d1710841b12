/*
 * Whole contents of files, and setting a file aside.
 */
#import <Korvane_ZEB/ZEB_File.h>

/**
 * Each operation first asks the interceptor, `restore` excepted. Sizes are those of the snapshot: refresh
 * the status before reading. `last_error` tells afterwards whether all went well, also where the answer does
 * not. Nothing waits: a FIFO without a partner, or a device that has nothing to say, is a failure.
 */
@interface ZEB_File (Contents)

/** Replaces the destination by the file's contents, decompressed when `contents_compressed` is set. On a
    failure the destination becomes empty: "Error opening file: ", "Error, zero content size for file: "
    for a snapshot without a size, "Error reading contents of file: ", or "Error: Decompress failed while
    reading contents of file: ". A file shorter than the snapshot's size is told as a warning; what is
    missing reads as zero, and `last_error` is ENODATA. */
- (void)read_contents:(ZEB_Byte_Array *)destination;

/** The same operation under another name. */
- (void)load_contents:(ZEB_Byte_Array *)destination;

/** Makes `length` bytes the file's contents, compressed when `contents_compressed` is set. The file is
    opened, or made; then the bytes are compressed; only then is it emptied and written, so that a failure
    from there on leaves it empty or short: write beside it, and rename, where the old contents matter.
    Answers 1, or 0 after "Error opening file: ", "Error: Compress failed before writing contents of file: "
    (the old contents are whole then), or "Error writing contents to file: ", which a failing close is too.

    The answer is 1 in two cases where bytes were lost, and `last_error` is not 0 then: the platform wrote
    fewer than it was given and named no error, which is told as a warning; or compression failed while
    `report_errors` is not set, and what could be compressed was written. */
- (uint32_t)write_contents:(const void *)bytes length:(uint32_t)length;

/** Renames the file to its path with "~" appended, over what stood there. The entry then names the file
    set aside: its path grows by "~" and a null. Answers 1, or 0 after "Error backstoring file: ". */
- (uint32_t)backstore;

/** Renames the file set aside, the path with "~" appended, back to the path, which is to be the one
    before `backstore`. Answers 1, or 0 after "Error restoring file: ". */
- (uint32_t)restore;

@end
