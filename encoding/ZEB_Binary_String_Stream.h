/*
 * Raw values appended to a string.
 */
#import <Korvane_ZEB/ZEB_String_Stream.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Appends each value's bytes as they are in memory: 8 for a double and an unsigned long, 4 for an int, an
 * unsigned, a float, a character code and a hexadecimal number, 1 for a char. Strings are appended as they
 * are; formats are ignored.
 *
 * A list has no delimiters, in either form. A delimited list that is not empty is followed by one more
 * element: what the slot after its last element holds, or a zero value (nothing for strings and objects)
 * where the list is a link or its block ends there.
 *
 * Different objects may be used on different threads; ZEB_Object.h says what may not.
 */
ZEB_EXPORT
@interface ZEB_Binary_String_Stream : ZEB_String_Stream {
    ZEB_PROTECTED
    uint8_t needs_swap;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** A flag for applications that read the target, 0 at first; no operation here uses it. */
- (uint8_t)needs_swap;
- (void)set_needs_swap:(uint8_t)value;

@end

ZEB_ASSUME_NONNULL_END
