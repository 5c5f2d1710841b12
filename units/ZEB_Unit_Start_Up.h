/*
 * Lazy start-up of the unit catalog.
 */
#ifndef ZEB_UNIT_START_UP_H
#define ZEB_UNIT_START_UP_H

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_ASSUME_NONNULL_BEGIN

ZEB_EXTERN_C_BEGIN

/** The number of flags in the catalog: one for the list of dimension names and one for each group of
    units. */
enum { ZEB_UNIT_FLAG_COUNT = 13 };

/** Sets every flag to 1 on the first call; later calls do nothing. */
ZEB_EXPORT void ZC_start_up_unit_catalog(void);

/** Returns the flags, one byte each, that of the dimension names first. A flag of 0 leaves its list empty in
    catalogs created later. */
ZEB_EXPORT uint8_t *ZC_unit_catalog_flags(void);

ZEB_EXTERN_C_END

ZEB_ASSUME_NONNULL_END

#endif
