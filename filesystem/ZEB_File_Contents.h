/*
 * Whole contents of files, and setting a file aside.
 */
#import <Korvane_ZEB/ZEB_File.h>

/**
 * Each operation first asks the interceptor, `restore` excepted. Sizes are those of the snapshot: refresh
 * the status before reading.
 */
@interface ZEB_File (Contents)

/** Replaces the destination by the file's contents, decompressed when `contents_compressed` is set. On a
    failure the destination becomes empty: "Error opening file: ", "Error, zero content size for file: "
    for a snapshot without a size, "Error reading contents of file: ", or "Error: Decompress failed while
    reading contents of file: ". A file shorter than the snapshot's size is told as a warning; what is
    missing reads as zero. */
- (void)read_contents:(ZEB_Byte_Array *)destination;

/** The same operation under another name. */
- (void)load_contents:(ZEB_Byte_Array *)destination;

/** Makes `length` bytes the file's contents, compressed when `contents_compressed` is set. The file is
    made, or emptied at once, so that a failure behind that leaves it empty or short. Answers 1, or 0 after
    "Error opening file: ", "Error: Compress failed before writing contents of file: " (when errors are
    reported; else what could be compressed is written), or "Error writing contents to file: ". */
- (uint32_t)write_contents:(const void *)bytes length:(uint32_t)length;

/** Renames the file to its path with "~" appended, over what stood there. The entry then names the file
    set aside: its path grows by "~" and a null. Answers 1, or 0 after "Error backstoring file: ". */
- (uint32_t)backstore;

/** Renames the file set aside, the path with "~" appended, back to the path, which is to be the one
    before `backstore`. Answers 1, or 0 after "Error restoring file: ". */
- (uint32_t)restore;

@end
