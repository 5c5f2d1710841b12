/*
 * Whole files, by C paths.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

/** What came of reading a file. */
typedef enum { FILE_READ, FILE_MISSING, FILE_UNREADABLE } File_Outcome;

/** An autoreleased entry for a path, which leaves it to its user to tell errors; nil where memory is short.
 */
ZEB_File *file_at(const char *path);

/** Appends all that a regular file holds to an empty array. Unless that is done, `fault` says why not. */
File_Outcome read_file(const char *path, ZEB_Byte_Array *contents, const char **fault);

/** A path with a suffix, valid until the pool is drained; null where memory is short. */
const char *path_with_suffix(const char *path, const char *suffix);

/** Tells on standard error what is wrong with a path. Answers false. */
bool complain(const char *path, const char *fault);
