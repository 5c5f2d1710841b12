/*
 * Numbers as short text for a reader, and numbers out of counted characters.
 *
 * The writers put no needless digits. Each writes into the caller's buffer, ends the text with a null,
 * touches nothing after it, and returns a pointer to it, so that texts can be chained.
 *
 * The scanners read a counted array, of which they look at the first 31 characters. Each returns how many
 * characters it consumed (white space in front included) and stores the number; when no number stands there,
 * or length is 0, it returns 0 and leaves the result untouched. They answer what the C library answers in its
 * "C" locale.
 *
 * No locale changes anything: the decimal point is '.' in both directions. What the pretty and fixed writers
 * put, the scanners read.
 */
#ifndef ZEB_NUMBER_FUNCTIONS_H
#define ZEB_NUMBER_FUNCTIONS_H

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_EXTERN_C_BEGIN

/** Room for every text of the pretty, fixed and fraction writers. */
#define ZEB_NUMBER_TEXT_SIZE 32

/** Room for every text of the scientific form. */
#define ZEB_SCIENTIFIC_TEXT_SIZE 96

/** Writes a double: with fixed decimals from 0.0001 to below 1000000 (at most 12 decimals below 1, at most
    10 from there on), with an exponent and at most 15 significant digits outside. 0 is "0", infinity of
    either sign "Inf", not a number "NaN". The buffer needs ZEB_NUMBER_TEXT_SIZE bytes. */
ZEB_EXPORT char *ZC_pretty_format_double(char *buffer, double value);

/** Writes a float by the same rules: at most 4 decimals, or an exponent and at most 6 significant
    digits. */
ZEB_EXPORT char *ZC_pretty_format_float(char *buffer, float value);

/** Writes the decimal digits; the buffer needs 11 bytes. */
ZEB_EXPORT char *ZC_pretty_format_unsigned(char *buffer, uint32_t value);

/** Writes a double with at most so many decimals (above 13 count as 13), rounded by adding half a unit and
    cutting, without zeros at the end; what rounds to 0 is "0". A value too large for 64-bit digits (9.2e18
    divided by 10 to the decimals) takes the exponent form. The buffer needs ZEB_NUMBER_TEXT_SIZE bytes. */
ZEB_EXPORT char *ZC_format_fixed_double(char *buffer, uint32_t decimals, double value);

/** The same without sign and without the "0" before the point, and the empty text for what rounds to 0: the
    decimals to be put behind a whole number that stands already. */
ZEB_EXPORT char *ZC_format_fraction_double(char *buffer, uint32_t decimals, double value);

/** As ZC_format_fixed_double, for a float; the exponent form has 6 digits. */
ZEB_EXPORT char *ZC_format_fixed_float(char *buffer, uint32_t decimals, float value);

/** Writes mantissa, space, base and exponent: "1.23 106" is 1.23 * 10^6, its exponent to be shown raised;
    the base of Euler's number is "e". The mantissa has at most `precision` decimals; one that is cut to a
    single digit (with precision 0) is left out with its space. A magnitude of at most 1e-12 times
    zero_reference has the mantissa 0 and the exponent 1. `range` receives the offsets of the exponent's
    first and last character, `result_kind` 3; either may be null. "Inf", "NaN" and "Err" (a base of 0 or not
    finite, no finite logarithm, power or mantissa, or a part beyond 31 characters) set both to 0. The buffer
    needs ZEB_SCIENTIFIC_TEXT_SIZE bytes. */
ZEB_EXPORT char *ZC_format_scientific_double(char *buffer, uint32_t precision, uint32_t *result_kind,
                                             ZEB_Index_Range *range, double value, double base,
                                             double zero_reference);

/** Reals: decimal and hexadecimal digits with a fraction and an exponent, "inf", "infinity" and "nan" in any
    case; a sign may stand in front. A number too large becomes infinite. */
ZEB_EXPORT uint32_t ZC_assign_double_from_char_c_array(const char *chars, uint32_t length, double *result);
ZEB_EXPORT uint32_t ZC_assign_float_from_char_c_array(const char *chars, uint32_t length, float *result);

/** Decimal integers. A number beyond 64 bits becomes the nearest that fits; its lower 32 bits are
    stored. */
ZEB_EXPORT uint32_t ZC_assign_int_from_char_c_array(const char *chars, uint32_t length, int32_t *result);
ZEB_EXPORT uint32_t ZC_assign_unsigned_from_char_c_array(const char *chars, uint32_t length,
                                                         uint32_t *result);

/** Integers in a base of 2 to 36, or of their own prefix ("0x", "0") for base 0; any other base reads
    nothing. A number beyond 64 bits becomes the nearest that fits; a 32-bit scanner stores its lower 32
    bits. */
ZEB_EXPORT uint32_t ZC_assign_int_with_base_from_char_c_array(const char *chars, uint32_t length,
                                                              int32_t base, int32_t *result);
ZEB_EXPORT uint32_t ZC_assign_unsigned_with_base_from_char_c_array(const char *chars, uint32_t length,
                                                                   int32_t base, uint32_t *result);
ZEB_EXPORT uint32_t ZC_assign_int64_with_base_from_char_c_array(const char *chars, uint32_t length,
                                                                int32_t base, int64_t *result);
ZEB_EXPORT uint32_t ZC_assign_unsigned64_with_base_from_char_c_array(const char *chars, uint32_t length,
                                                                     int32_t base, uint64_t *result);

/** How many characters stand before the first "inf", "infinity" or "nan", in any case, that white space or
    the end of the array follows; the length when there is none. */
ZEB_EXPORT uint32_t ZC_find_special_value_in_char_c_array(const char *chars, uint32_t length);

ZEB_EXTERN_C_END

#endif
