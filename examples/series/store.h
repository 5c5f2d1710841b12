/*
 * Series in files: the header and two records of the external binary format, compressed.
 */
#import "series.h"

/** The state of a store's path. */
typedef enum {
    STORE_MISSING,
    STORE_WHOLE,
    STORE_CUT_SHORT, /* empty, or the beginning of a store: writing was interrupted */
    STORE_UNKNOWN    /* something else, or unreadable */
} Store_State;

/** Returns the header and the records of a series, not yet compressed; nil if there is no memory for them.
    Autoreleased. */
ZEB_String *encoded_series(Series *series);

/** Loads a stored series into an empty one and returns the state of the path. `fault` becomes null for a
    complete store, else the reason; nothing is printed. */
Store_State load_series(const char *path, Series *series, const char **fault);

/** The same for the bytes of a file that was read. */
Store_State decode_store(ZEB_Byte_Array *stored, Series *series, const char **fault);

/** Whether bytes begin as those of a store do, and not as text does. */
bool begins_as_store(ZEB_Byte_Array *stored);

/** Replaces the file at a path by encoded contents, compressed. Returns null, or the reason of a failure. */
const char *write_store(const char *path, ZEB_String *contents);
