/*
 * Replacing a store safely.
 */
#import "series.h"

/**
 * Stores a series at a path; `contents` is the encoded series. An existing store is renamed to its path with
 * "~" appended. Returns whether all steps succeeded; failures are reported.
 *
 * The new store is written beside the old one, with "~new" appended, and loaded back before anything is
 * renamed. At every moment a complete store is at the path or at the path with "~", so an interrupted run
 * loses nothing and does not block the next one. A file that is not a store is never overwritten.
 */
bool replace_store(const char *path, Series *series, ZEB_String *contents);
