/*
 * Start-up of the whole framework at once.
 */
#ifndef ZEB_START_UP_H
#define ZEB_START_UP_H

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_EXTERN_C_BEGIN

/** Runs every start-up routine that has not yet run, and creates every shared object: the streams, the
    defaults and the standard paths. Call it on one thread, with an autorelease pool, before others use the
    framework; without it each part starts up when it is first used. Reads the user's defaults. */
ZEB_EXPORT void ZC_start_up_framework(void);

ZEB_EXTERN_C_END

#endif
