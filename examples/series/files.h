/*
 * Whole files at C paths.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

/** The result of reading a file. */
typedef enum { FILE_READ, FILE_MISSING, FILE_UNREADABLE } File_Outcome;

/** Returns an autoreleased entry for a path, which does not report errors itself; nil if allocation fails. */
ZEB_File *file_at(const char *path);

/** Appends the contents of a regular file to an empty array. On failure `fault` is the reason, else null. */
File_Outcome read_file(const char *path, ZEB_Byte_Array *contents, const char **fault);

/** Returns a path with a suffix, valid until the pool is drained; null if allocation fails. */
const char *path_with_suffix(const char *path, const char *suffix);

/** What messages begin with: each program defines its own. */
extern const char *const program_name;

/** Reports a path's fault on standard error, and returns false. */
bool complain(const char *path, const char *fault);
