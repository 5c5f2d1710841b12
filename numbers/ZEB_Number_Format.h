/*
 * Numbers as text for a reader, with what a chart's label needs to know of them.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Stream;
@class ZEB_Wide_String;

/**
 * Appends the texts of numbers to a wide string, and tells of the last one what kind of text it became. The
 * decimal point is '.' in every locale. A copy has a text of its own with the same characters.
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
    ZEB_Wide_String *text;
}

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Makes a format with precision 6, exponent base 10, zero reference 1 and an empty text. */
- (id)init;

/** A format with the same settings, results and characters. */
- (id)copyWithZone:(NSZone *)zone;

/** Appends a number: "0" for a magnitude of at most 1e-12 times `zero_reference`; fixed notation from
    0.0001 to below 1000000, with at most 12 decimals below 1 and 10 from there on; outside that "1.23 106",
    mantissa and power of `exponent_base` ("e" for Euler's number), whose exponent is to be shown raised.
    Infinite numbers are "Inf", what is not a number is "NaN", what this base cannot show is "Err". */
- (void)format_value:(double)value;

/** Appends a number with exactly `precision` decimals. A text of more than 63 characters is not made:
    nothing is appended and the error code is 201. */
- (void)format_fixed:(double)value;

/** Decimals of `format_fixed:`, and of the mantissa before its trailing zeros are dropped. */
- (uint32_t)precision;
- (void)set_precision:(uint32_t)value;

/** The base of the power: 10, 2, Euler's number, ... */
- (double)exponent_base;
- (void)set_exponent_base:(double)value;

/** The size of the numbers at hand, beside which 1e-12 of it counts as 0. */
- (double)zero_reference;
- (void)set_zero_reference:(double)value;

/** What the last number became: 0 not a number, 1 zero, 2 fixed notation, 3 with a power. */
- (uint32_t)result_kind;
- (void)set_result_kind:(uint32_t)value;

/** 0, or 201 when the last number was infinite or NaN, or `format_fixed:` could not make its text. What
    `format_value:` writes as "Err" leaves 0, and `result_kind` 0. */
- (uint32_t)error_code;
- (void)set_error_code:(uint32_t)value;

/** Zero-based offsets of the raised exponent's first and last character, from the start of the last
    number's own text; 0 and 0 where there is none. */
- (ZEB_Index_Range)range;
- (void)set_range:(ZEB_Index_Range)value;

/** The string that receives the texts. One that is set is retained in its place; nil sets a new,
    empty one. */
- (ZEB_Wide_String *)text;
- (void)set_text:(ZEB_Wide_String *)string;

/** Writes the text in UTF-8; nothing where a character is no code point. */
- (void)send_to_stream:(ZEB_Stream *)stream;
- (void)send_text_to_stream:(ZEB_Stream *)stream;
- (void)send_contents_to_stream:(ZEB_Stream *)stream;

@end
