/*
 * Files by C paths.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

/** An autoreleased entry for a path, which leaves it to its user to tell errors. */
ZEB_File *file_at(const char *path);

/** All that a regular file holds, autoreleased; none for an empty one. Answers nil where that cannot be had,
    and makes `fault` say why. */
ZEB_Byte_Array *contents_of(ZEB_File *file, const char **fault);

/** Tells on standard error what is wrong with a path. Answers false. */
bool complain(const char *path, const char *fault);
