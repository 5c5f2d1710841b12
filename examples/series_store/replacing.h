/*
 * A new store in the place of an old one.
 */
#import "series.h"

/**
 * Makes a series the store at a path; `contents` is the series encoded. The store that was there is set
 * aside, its path with "~" appended. Answers whether all went well; what did not is told.
 *
 * The new store is written beside the old one, with "~new" appended, and loaded back before anything is
 * renamed: at every moment the path, or else the path with "~", leads to a whole store, so that a run that
 * was interrupted loses nothing and hinders no other. What is no store is never written over.
 */
bool replace_store(const char *path, Series *series, ZEB_String *contents);
