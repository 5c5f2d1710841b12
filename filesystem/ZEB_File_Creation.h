/*
 * Creating and removing entries.
 */
#import <Korvane_ZEB/ZEB_File.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Results: 0 for a failure, 1 if it was done, and for the creating operations 2 if something exists at the
 * path already, of whatever kind; then nothing changes. Relative paths are not created. Created entries
 * receive the entry's permissions, `uid` and `gid`; if only those cannot be set, the result is 1 and
 * `last_error` has the cause. All but `make_symbolic_link:target_path:` ask the interceptor first.
 */
@interface ZEB_File (Creation)

/** Creates an empty file. Reports "Created file with name: ", or "Cannot make relative file: " or "Error
    creating file with name: ". */
- (uint32_t)create_file;

/** Creates a directory; its owner has all rights. Reports "Created directory with name: ", or "Cannot make
    relative directory: ", or "Error creating directory with name: ", the path, "; because: " and the reason.
 */
- (uint32_t)create_directory;

/** Creates the directories that are missing before the last "/" of the path, from the outermost on. Reports
    for each "Created level ", its number from 1, " partial path: " and its path; "Cannot make relative
    directory: " and the directory; or "Error creating level ", the number, " partial path: " and its path,
    with the levels before it created. */
- (uint32_t)create_parent_directories;

/** Makes a symbolic link at `link_path` that leads to `target_path`, in place of one that is there. The
    entry's own path is not used. Returns 1 also if the link could not be made: then "Error making symbolic
    link: " with both paths is reported, and `last_error` has the cause. Returns 0 if something else is at
    `link_path` ("Cannot create a symbolic link entry over the regular file: ", on the standard-output stream
    if `log_actions` is set), or if the link there cannot be removed ("Error removing symbolic link entry: ").
    Successes are "Removed symbolic link entry: " and "Made symbolic link: ", with both paths. */
- (uint32_t)make_symbolic_link:(ZEB_String *ZEB_NULLABLE)link_path
                   target_path:(ZEB_String *ZEB_NULLABLE)target_path;

/** Removes the file, the link or the empty directory at the path. Reports "Removed file: " or "Error removing
    file: ". */
- (uint32_t)remove;

@end

ZEB_ASSUME_NONNULL_END
