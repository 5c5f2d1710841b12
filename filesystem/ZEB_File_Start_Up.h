/*
 * Lazy start-up of the file system.
 */
#ifndef ZEB_FILE_START_UP_H
#define ZEB_FILE_START_UP_H

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_EXTERN_C_BEGIN

/** Reads the process's real user and group ids and creates the table of keys, on the first call; later calls
    do nothing. The first file entry calls it. */
ZEB_EXPORT void ZC_start_up_file_system(void);

ZEB_EXTERN_C_END

#endif
