/*
 * Values from a machine of the other byte order.
 */
#ifndef ZEB_BYTE_ORDER_H
#define ZEB_BYTE_ORDER_H

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_EXTERN_C_BEGIN

/** Each returns its argument with the bytes reversed. A float or double that comes out as a NaN keeps its
    bits where the machine passes them unchanged; to be safe swap those as integers. */
ZEB_EXPORT int16_t ZC_swap_short(int16_t value);
ZEB_EXPORT uint16_t ZC_swap_unsigned_short(uint16_t value);
ZEB_EXPORT int32_t ZC_swap_int(int32_t value);
ZEB_EXPORT uint32_t ZC_swap_unsigned_int(uint32_t value);
ZEB_EXPORT int64_t ZC_swap_long_long(int64_t value);
ZEB_EXPORT float ZC_swap_float(float value);
ZEB_EXPORT double ZC_swap_double(double value);

/** Return the low 32 bits with their four bytes reversed; the high 32 bits are lost. Each call prints two
    reminders of that to standard output, "DEBUG: Must fix swap code that thinks sizeof(unsigned long) == 4
    instead of 8." and the same for long, without a line break. For 64-bit values use `ZC_swap_long_long`. */
ZEB_EXPORT int64_t ZC_swap_long(int64_t value);
ZEB_EXPORT uint64_t ZC_swap_unsigned_long(uint64_t value);

ZEB_EXTERN_C_END

#endif
