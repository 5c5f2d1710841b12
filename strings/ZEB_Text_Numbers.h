/*
 * Numbers appended to strings as text.
 */
#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

/**
 * The decimal point is '.' in every locale. What is appended here the scanners of ZEB_Number_Functions.h read.
 *
 * A link reports "Cannot append number through link, no append made."; a failed allocation "Runtime error in
 * reallocate macro", or "Runtime error in allocate macro" where the string has no block yet. The string is
 * unchanged then.
 */
@interface ZEB_String (Numbers)

/** Append a number for display, as ZC_pretty_format_double and ZC_pretty_format_float write it: with decimals
    from 0.0001 to below 1000000, else with an exponent, and no more digits than a reader wants. Reading the
    text back may give another number. */
- (void)append_pretty_double:(double)value;
- (void)append_pretty_float:(float)value;

/** Append the shortest text that reads back as the same double, or the same float: of all decimals that do,
    the one with the fewest digits and, of those, the nearest. From 0.0001 to below 1e+16 without an exponent
    ("0.1", "1234567"), else with one of a sign and at least two digits ("1e+16", "1.5e-07"); never more than
    24 characters. Zero is "0", or "-0" with a sign; infinity "Inf" or "-Inf", NaN "NaN". */
- (void)append_shortest_double:(double)value;
- (void)append_shortest_float:(float)value;

/** Append an integer in decimal. */
- (void)append_int64:(int64_t)value;
- (void)append_uint64:(uint64_t)value;

@end

/** The same texts in 32-bit strings. */
@interface ZEB_Wide_String (Numbers)

- (void)append_pretty_double:(double)value;
- (void)append_pretty_float:(float)value;
- (void)append_shortest_double:(double)value;
- (void)append_shortest_float:(float)value;
- (void)append_int64:(int64_t)value;
- (void)append_uint64:(uint64_t)value;

@end
