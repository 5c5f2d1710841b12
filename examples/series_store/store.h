/*
 * Series in files: the header and two records of the external binary format, compressed.
 */
#import "series.h"

/** An autoreleased entry for a path. */
ZEB_File *file_at(const char *path);

/** The header and the records of a series, not yet compressed. Autoreleased. */
ZEB_String *encoded_series(Series *series);

/** Reads a stored series into an empty one. Answers null, or, when the file is no such store, what is
    wrong with it; nothing else is told. */
const char *load_series(const char *path, Series *series);

/** Writes encoded contents as the store at a path. Answers whether that went well; the framework has told
    what did not. */
BOOL store_contents(const char *path, ZEB_String *contents);
