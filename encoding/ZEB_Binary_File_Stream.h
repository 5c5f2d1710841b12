/*
 * Raw values written to a file, and read from one.
 */
#import <Korvane_ZEB/ZEB_File_Stream.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Writes each value's bytes as they are in memory: 8 for a double and an unsigned long, 4 for an int, an
 * unsigned, a float, a character code and a hexadecimal number, 1 for a char. Strings are written as they
 * are; formats are ignored. The delimiters of a delimited list are text, also here.
 *
 * A reader reads the same number of bytes and reverses them if `needs_swap` is set. Where fewer are left, it
 * returns 0 and increments `failure_count`.
 *
 * Different objects may be used on different threads; ZEB_Object.h says what may not.
 */
ZEB_EXPORT
@interface ZEB_Binary_File_Stream : ZEB_File_Stream {
    ZEB_PROTECTED
    uint8_t needs_swap;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Whether the file was written on a machine of the other byte order: 1 for yes, 0 at first. */
- (uint8_t)needs_swap;
- (void)set_needs_swap:(uint8_t)value;

@end

ZEB_ASSUME_NONNULL_END
