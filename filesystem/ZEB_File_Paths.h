/*
 * Operations on the path of a file entry.
 */
#import <Korvane_ZEB/ZEB_File.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * These change the path alone, not the snapshot, and nothing on disk. Strings that are passed may be the
 * entry's own path or links to it. Every path ends in a null that is not counted; a counted null at the end
 * of an argument or of the path, as `backstore` leaves it, is dropped. If allocation fails the path becomes
 * empty, which every operation refuses, and `last_error` is ENOMEM.
 */
@interface ZEB_File (Paths)

/** Sets the path to the directory, "/" and the name. */
- (void)set_path_in_directory:(ZEB_String *ZEB_NULLABLE)directory name:(ZEB_String *ZEB_NULLABLE)name;

/** Append "/" and a name, "." and an extension, or "~". */
- (void)append_path_component:(ZEB_String *ZEB_NULLABLE)name;
- (void)append_path_extension:(ZEB_String *ZEB_NULLABLE)extension;
- (void)append_tilde;

/** Removes the last "/" and what follows it: "/a" becomes empty. A path without "/" becomes "/". */
- (void)remove_last_path_component;

/** Sets a string to the characters before the last "/" of the path; to "/" if it has none. A link reports
    "Cannot copy c string through link, no copy made." */
- (void)parent_path_into:(ZEB_String *ZEB_NULLABLE)string;

/** Sets a string to the characters after the last "/"; to the whole path if it has none. A link reports the
    same. */
- (void)last_path_component_into:(ZEB_String *ZEB_NULLABLE)string;

/** Returns a new string with the path and a capacity of its length + 1. Owned by the caller. */
- (ZEB_String *)copy_path;

/** Empties the path, and sets `exists` and `size` to 0. */
- (void)clear;

/** Whether both entries have the same path after Foundation's `stringByStandardizingPath`. Paths that are not
    UTF-8 are compared byte by byte. Nil is the same as nothing. */
- (uint8_t)is_same_path_as:(ZEB_File *ZEB_NULLABLE)other;

/** If the entry is a symbolic link (`refresh_link_status`), replaces the path with the link's target, as it
    stands there. A target longer than 1024 bytes, or another failure, changes nothing but `last_error`. */
- (void)resolve_symbolic_link;

/** Sets the path to a name in the directory at the path that does not exist yet: "/", the prefix, "_", the
    seconds, "_" and the microseconds of the current time, "." and the extension. Returns 1; after 4096 names
    that existed, 0, with an empty path. Then it reports, whatever `report_errors` is, "Maximum tries
   exceeded, the file name is not be unique. The last path name tried is:" and the last name. Another process
   may create the same name meanwhile. */
- (uint32_t)make_unique_path:(ZEB_String *ZEB_NULLABLE)prefix extension:(ZEB_String *ZEB_NULLABLE)extension;

@end

ZEB_ASSUME_NONNULL_END
