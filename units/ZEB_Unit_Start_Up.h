/*
 * The unit catalog's part of the framework's lazy start-up.
 */
#ifndef ZEB_UNIT_START_UP_H
#define ZEB_UNIT_START_UP_H

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_EXTERN_C_BEGIN

/** How many flags the catalog has: one for the list of dimension names, one for each group of units. */
enum { ZEB_UNIT_FLAG_COUNT = 13 };

/** Sets every flag to 1 on first need; a later call does nothing. */
ZEB_EXPORT void ZC_start_up_unit_catalog(void);

/** The flags, one byte each, the dimension names' first: 0 leaves a list of later catalogs empty. */
ZEB_EXPORT uint8_t *ZC_unit_catalog_flags(void);

ZEB_EXTERN_C_END

#endif
