/*
 * Hexadecimal text of 32-bit and 64-bit values.
 */
#ifndef ZEB_HEXADECIMAL_H
#define ZEB_HEXADECIMAL_H

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_ASSUME_NONNULL_BEGIN

ZEB_EXTERN_C_BEGIN

/** Writes eight upper-case digits and a terminating null. */
ZEB_EXPORT void ZEB_format_hex32(char *text, uint32_t value);

/** Reads a value from a terminated text, as scanf's "%08X" does: white space, an optional sign and "0x", and
    at most eight characters of digits. A text without a digit leaves the value unchanged. */
ZEB_EXPORT void ZEB_scan_hex32(uint32_t *value, const char *text);

/** Write lower-case digits without leading zeros ("0" for 0) and a terminating null, a pointer to which is
    returned. The text needs 9 or 17 bytes. */
ZEB_EXPORT char *ZEB_hex_digits32(char *text, uint32_t value);
ZEB_EXPORT char *ZEB_hex_digits64(char *text, uint64_t value);

ZEB_EXTERN_C_END

ZEB_ASSUME_NONNULL_END

#endif
