/*
 * Formatting numbers as short text, and scanning numbers in counted characters. Every thread may call these.
 *
 * The writers omit needless digits. Each writes into the caller's buffer, terminates the text with a null,
 * writes nothing after it, and returns a pointer to it, so that texts can be chained.
 *
 * The scanners read at most the first 31 characters of a counted array. Each returns the number of characters
 * consumed, including leading white space, and stores the number; if there is no number, or length is 0, it
 * returns 0 and leaves the result unchanged. Results are those of the C library in its "C" locale.
 *
 * The locale has no effect: the decimal point is '.' in both directions. The scanners read what the pretty
 * and fixed writers write.
 */
#ifndef ZEB_NUMBER_FUNCTIONS_H
#define ZEB_NUMBER_FUNCTIONS_H

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_ASSUME_NONNULL_BEGIN

ZEB_EXTERN_C_BEGIN

/** Size of a buffer for every text of the pretty, fixed and fraction writers. */
#define ZEB_NUMBER_TEXT_SIZE 32

/** Size of a buffer for every text of the scientific form. */
#define ZEB_SCIENTIFIC_TEXT_SIZE 96

/** Writes a double: with decimals from 0.0001 to below 1000000 (at most 12 below 1, at most 10 above), else
    with an exponent and at most 15 significant digits. 0 is "0", infinity of either sign "Inf", NaN "NaN".
    The buffer needs ZEB_NUMBER_TEXT_SIZE bytes. */
ZEB_EXPORT char *ZC_pretty_format_double(char *buffer, double value);

/** Writes a float by the same rules, with at most 4 decimals, or an exponent and at most 6 significant
    digits. */
ZEB_EXPORT char *ZC_pretty_format_float(char *buffer, float value);

/** Writes an unsigned integer in decimal. The buffer needs 11 bytes. */
ZEB_EXPORT char *ZC_pretty_format_unsigned(char *buffer, uint32_t value);

/** Writes a double with at most `decimals` decimals (more than 13 count as 13), rounded by adding half a unit
    and truncating, without trailing zeros; a result of 0 is "0". A value too large for 64-bit digits (9.2e18
    divided by 10 to the decimals) takes the exponent form. The buffer needs ZEB_NUMBER_TEXT_SIZE bytes. */
ZEB_EXPORT char *ZC_format_fixed_double(char *buffer, uint32_t decimals, double value);

/** The same without a sign and without the "0" before the point, and an empty text for a result of 0: the
    decimals that follow a whole number already written. */
ZEB_EXPORT char *ZC_format_fraction_double(char *buffer, uint32_t decimals, double value);

/** Same as ZC_format_fixed_double, for a float; the exponent form has 6 digits. */
ZEB_EXPORT char *ZC_format_fixed_float(char *buffer, uint32_t decimals, float value);

/** Writes mantissa, space, base and exponent: "1.23 106" is 1.23 * 10^6, its exponent meant to be raised;
    Euler's number as base is "e". The mantissa has at most `precision` decimals; one that is reduced to a
    single digit (with precision 0) is omitted with its space. A magnitude of at most 1e-12 times
    zero_reference has the mantissa 0 and the exponent 1. `range` receives the offsets of the exponent's first
    and last character and `result_kind` 3; either may be null. "Inf", "NaN" and "Err" (a base that is 0 or
    not finite, no finite logarithm, power or mantissa, or a part longer than 31 characters) set both to 0.
    The buffer needs ZEB_SCIENTIFIC_TEXT_SIZE bytes. */
ZEB_EXPORT char *ZC_format_scientific_double(char *buffer, uint32_t precision,
                                             uint32_t *ZEB_NULLABLE result_kind,
                                             ZEB_Index_Range *ZEB_NULLABLE range, double value, double base,
                                             double zero_reference);

/** Scan a real number: decimal or hexadecimal digits with a fraction and an exponent, "inf", "infinity" or
    "nan" in any case, with an optional sign. A number too large becomes infinite. */
ZEB_EXPORT uint32_t ZC_assign_double_from_char_c_array(const char *ZEB_NULLABLE chars, uint32_t length,
                                                       double *result);
ZEB_EXPORT uint32_t ZC_assign_float_from_char_c_array(const char *ZEB_NULLABLE chars, uint32_t length,
                                                      float *result);

/** Scan a decimal integer. A number beyond 64 bits becomes the nearest that fits; its lower 32 bits are
    stored. */
ZEB_EXPORT uint32_t ZC_assign_int_from_char_c_array(const char *ZEB_NULLABLE chars, uint32_t length,
                                                    int32_t *result);
ZEB_EXPORT uint32_t ZC_assign_unsigned_from_char_c_array(const char *ZEB_NULLABLE chars, uint32_t length,
                                                         uint32_t *result);

/** Scan an integer in a base of 2 to 36, or, for base 0, the base of its prefix ("0x", "0"); any other base
    reads nothing. A number beyond 64 bits becomes the nearest that fits; a 32-bit scanner stores its lower 32
    bits. */
ZEB_EXPORT uint32_t ZC_assign_int_with_base_from_char_c_array(const char *ZEB_NULLABLE chars, uint32_t length,
                                                              int32_t base, int32_t *result);
ZEB_EXPORT uint32_t ZC_assign_unsigned_with_base_from_char_c_array(const char *ZEB_NULLABLE chars,
                                                                   uint32_t length, int32_t base,
                                                                   uint32_t *result);
ZEB_EXPORT uint32_t ZC_assign_int64_with_base_from_char_c_array(const char *ZEB_NULLABLE chars,
                                                                uint32_t length, int32_t base,
                                                                int64_t *result);
ZEB_EXPORT uint32_t ZC_assign_unsigned64_with_base_from_char_c_array(const char *ZEB_NULLABLE chars,
                                                                     uint32_t length, int32_t base,
                                                                     uint64_t *result);

/** Returns the number of characters before the first "inf", "infinity" or "nan", in any case, that is
    followed by white space or the end of the array; the length if there is none. */
ZEB_EXPORT uint32_t ZC_find_special_value_in_char_c_array(const char *ZEB_NULLABLE chars, uint32_t length);

ZEB_EXTERN_C_END

ZEB_ASSUME_NONNULL_END

#endif
