/*
 * Numbers formatted for display.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Stream;
@class ZEB_Wide_String;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Appends the texts of numbers to a wide string, and records the notation of the last one and where its
 * exponent stands. The decimal point is '.' in every locale.
 *
 * Different objects may be used on different threads; ZEB_Object.h says what may not.
 */
ZEB_EXPORT
@interface ZEB_Number_Format : ZEB_Object <NSCopying> {
    ZEB_PROTECTED
    uint32_t precision;
    double exponent_base;
    double zero_reference;
    uint32_t result_kind;
    uint32_t error_code;
    ZEB_Index_Range range;
    ZEB_UNRETAINED ZEB_Wide_String *ZEB_NULLABLE text;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises a format with precision 6, exponent base 10, zero reference 1 and an empty text. */
- (instancetype)init;

/** Returns a copy with the same settings and results, and a text of its own with the same characters. */
- (id)copyWithZone:(NSZone *ZEB_NULLABLE)zone;

/** Appends a number: "0" for a magnitude of at most 1e-12 times `zero_reference`; fixed notation from 0.0001
    to below 1000000, with at most 12 decimals below 1 and 10 above; else mantissa and power of
    `exponent_base`, as in "1.23 106" ("e" for Euler's number), whose exponent is meant to be raised. Infinity
    is "Inf", NaN is "NaN", and a number that this base cannot express "Err". */
- (void)format_value:(double)value;

/** Appends a number with exactly `precision` decimals. If the text exceeds 63 characters, nothing is appended
    and the error code is 201. */
- (void)format_fixed:(double)value;

/** The decimals of `format_fixed:`, and of the mantissa before its trailing zeros are removed. */
- (uint32_t)precision;
- (void)set_precision:(uint32_t)value;

/** The base of the power: 10, 2, Euler's number, ... */
- (double)exponent_base;
- (void)set_exponent_base:(double)value;

/** The typical size of the numbers formatted: magnitudes up to 1e-12 times this count as 0. */
- (double)zero_reference;
- (void)set_zero_reference:(double)value;

/** The notation of the last number: 0 not a number, 1 zero, 2 fixed notation, 3 with a power. */
- (uint32_t)result_kind;
- (void)set_result_kind:(uint32_t)value;

/** 201 if the last number was infinite or NaN, or too long for `format_fixed:`, else 0. For "Err" from
    `format_value:` the error code and `result_kind` are 0. */
- (uint32_t)error_code;
- (void)set_error_code:(uint32_t)value;

/** Zero-based offsets of the raised exponent's first and last character, from the start of the last number's
    text; 0 and 0 without an exponent. */
- (ZEB_Index_Range)range;
- (void)set_range:(ZEB_Index_Range)value;

/** The string to which texts are appended. Setting retains the new string and releases the old one; nil sets
    a new, empty string. */
- (ZEB_Wide_String *)text;
- (void)set_text:(ZEB_Wide_String *ZEB_NULLABLE)string;

/** Writes the text as UTF-8; nothing if a character is not a code point. */
- (void)send_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;
- (void)send_text_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;
- (void)send_contents_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;

@end

ZEB_ASSUME_NONNULL_END
