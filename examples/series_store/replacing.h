/*
 * Replacing a store safely.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

/**
 * Stores an encoded series at a path, compressed. An existing store is first copied to its path with "~"
 * appended. Returns whether all steps succeeded; failures are reported.
 *
 * The store is replaced in one step: at every moment a complete store is at the path, or with "~", and an
 * interrupted run does not block the next one. A file that is not a store is never overwritten.
 */
bool replace_store(const char *path, ZEB_String *contents);
