/*
 * Series in files: the header and two records of the external binary format, compressed.
 */
#import "series.h"

/** What stands at the path of a store. */
typedef enum {
    STORE_MISSING,
    STORE_WHOLE,
    STORE_CUT_SHORT, /* empty, or the beginning of a store: its writing was interrupted */
    STORE_UNKNOWN    /* something else, or it cannot be read */
} Store_State;

/** The header and the records of a series, not yet compressed. Autoreleased. */
ZEB_String *encoded_series(Series *series);

/** Reads a stored series into an empty one and answers what was found. `fault` becomes null, or, unless the
    store is whole, says what is wrong with it; nothing else is told. */
Store_State load_series(const char *path, Series *series, const char **fault);

/** Writes encoded contents to a path, compressed. Answers null, or what went wrong. */
const char *write_store(const char *path, ZEB_String *contents);
