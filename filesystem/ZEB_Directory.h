/*
 * A directory and what is in it.
 */
#import <Korvane_ZEB/ZEB_File.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * A file entry whose removal and access test go through the whole tree below its path. The names in a
 * directory are read before the first of them is used, and directories are opened relative to the one that
 * they are in, so that a tree that changes meanwhile does not lead elsewhere.
 *
 * Entries in the tree are handled with this directory's settings, and without its interceptor. For threads,
 * what ZEB_File.h says holds.
 */
ZEB_EXPORT
@interface ZEB_Directory : ZEB_File {
    ZEB_PROTECTED
    uint8_t recursive;
    uint8_t links_are_entries;
    ZEB_UNRETAINED ZEB_File *ZEB_NULLABLE child;
    ZEB_UNRETAINED ZEB_Directory *ZEB_NULLABLE sub_directory;
    ZEB_UNRETAINED ZEB_Directory *ZEB_NULLABLE parent_directory;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises a directory like a file entry, but executable by its owner, and with `recursive` and
    `links_are_entries` set. */
- (instancetype)init;

/** Initialises a directory below `parent`, which is not retained. */
- (instancetype)init_with_parent_directory:(ZEB_Directory *ZEB_NULLABLE)parent;

/** Whether the access test goes into the directories below; if not, they count as accessible. */
- (uint8_t)recursive;
- (void)set_recursive:(uint8_t)value;

/** Whether a symbolic link in the tree stands for itself: it is removed, or tested, as a link. If not, links
    to directories are gone into, and what they lead to is emptied. */
- (uint8_t)links_are_entries;
- (void)set_links_are_entries:(uint8_t)value;

/** The entry, owned by the directory, at which the last access test of this directory ended. */
- (ZEB_File *)child;

/** The directory below that the last access test went into; nil if it never did. Owned by this one. */
- (ZEB_Directory *ZEB_NULLABLE)sub_directory;

/** The directory above, for a sub-directory. */
- (ZEB_Directory *ZEB_NULLABLE)parent_directory;

/** Whether this process has every requested right to the directory, by its snapshot, and, by their status
    now, to the entries in it: the rights to write and read to all, that to execute to directories. Ends at
    the first that lacks one. Reports "Tested accessibility of directory: " for each directory that was read.
 */
- (uint8_t)has_access:(uint8_t)execute write:(uint8_t)write read:(uint8_t)read;

/** Removes the directory with all that is in it. Reports "Removed file: " and "Removed directory: ", or
    "Error removing file: " and "Error removing directory: ", for each entry; what can be removed is removed
    even if something else cannot. Returns 0 if the directory is still there, with the cause of the first
    failure in `last_error`; also after "Error removing nonexistent directory: ". A path that is a symbolic
    link itself is not removed, and what it leads to is not touched, unless `links_are_entries` is off. */
- (uint32_t)remove;

@end

/**
 * Paths that every application needs, null-terminated. Each is made on the first call, belongs to the
 * framework, and stays for the life of the process; the first calls must come from one thread.
 */
@interface ZEB_Directory (Standard_Paths)

/** Returns the directory for temporary files. */
+ (ZEB_String *)temporary_directory_path;

/** Returns the directory of the applications' resources: the text of "ZEB_path_for_resources" in the
    framework's suite of the user defaults, or "/Library/Korvane" if that is missing or empty. */
+ (ZEB_String *)ZEB_path_for_resources;

/** Return the user's home, library and documents directories; an empty path if the platform has none. */
+ (ZEB_String *)home_directory_path;
+ (ZEB_String *)library_directory_path;
+ (ZEB_String *)documents_directory_path;

@end

ZEB_ASSUME_NONNULL_END
