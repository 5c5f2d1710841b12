/*
 * Strings made from, and extended by, C strings, platform strings and printf formats.
 *
 * A C string ends at its first null. A null pointer, nil and an object of another class count as empty text.
 * Text that lies in the receiver's own block is read as if copied first.
 *
 * Formats are those of printf in the "C" locale, whatever locale is in force; the text may be of any length.
 * Nothing checks at run time that the arguments are what the format asks for. Text that the C library cannot
 * print, and a null format, append nothing.
 *
 * A link refuses every append with the message given, also an empty one, and stays unchanged. If an
 * allocation fails, "Runtime error in reallocate macro" is reported ("Runtime error in allocate macro" where
 * the string has no block yet), and the string is unchanged; a new one is then empty.
 */
#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

#import <Foundation/Foundation.h>

#include <stdarg.h>

ZEB_ASSUME_NONNULL_BEGIN

/** 8-bit strings. Text is not decoded: bytes are copied as they are. */
@interface ZEB_String (Making)

/** Return an autoreleased string with the bytes of a C string, the UTF-8 of an NSString, or a formatted
    text. */
+ (ZEB_INSTANCE_OF(ZEB_String *))string_with_c_string:(const char *ZEB_NULLABLE)text;
+ (ZEB_INSTANCE_OF(ZEB_String *))string_with_NSString:(NSString *ZEB_NULLABLE)text;
+ (ZEB_INSTANCE_OF(ZEB_String *))string_with_format:(const char *ZEB_NULLABLE)format,
                                                    ... __attribute__((format(printf, 1, 2)));

/** Initialise an owner in the same way. The capacity is the one that appending to an empty string chooses. */
- (instancetype)init_with_c_string:(const char *ZEB_NULLABLE)text;
- (instancetype)init_with_format:(const char *ZEB_NULLABLE)format, ... __attribute__((format(printf, 1, 2)));

/** Appends a C string without its null. A link reports "Cannot append c string through link, no append
    made." */
- (void)append_c_string:(const char *ZEB_NULLABLE)text;

/** Appends the UTF-8 of an NSString, in which Foundation replaces what UTF-8 does not have. A link reports
    "Cannot append platform string through link, no append made." */
- (void)append_NSString:(NSString *ZEB_NULLABLE)text;

/** Append a formatted text without its null. A link reports "Cannot append formatted text through link, no
    append made." */
- (void)append_format:(const char *ZEB_NULLABLE)format, ... __attribute__((format(printf, 1, 2)));
- (void)append_format:(const char *ZEB_NULLABLE)format
            arguments:(va_list)arguments __attribute__((format(printf, 1, 0)));

@end

@interface ZEB_String (Platform_Making)

/** Initialises an owner with the UTF-8 of an NSString. That of 32-bit strings is in
    ZEB_NSString_Conversion.h. */
- (instancetype)init_with_NSString:(NSString *ZEB_NULLABLE)text;

@end

/**
 * 32-bit strings of UTF-16 units, as ZEB_Wide_String_Converter makes them; `join_surrogate_pairs` makes code
 * points of those. C strings and formatted texts are decoded as UTF-8; of text that is not UTF-8 each byte
 * becomes one unit, 0 to 255, so that none is lost. A byte-order mark stays.
 */
@interface ZEB_Wide_String (Making)

/** Return an autoreleased string with the text of a C string, of an NSString, or of a format. */
+ (ZEB_INSTANCE_OF(ZEB_Wide_String *))string_with_c_string:(const char *ZEB_NULLABLE)text;
+ (ZEB_INSTANCE_OF(ZEB_Wide_String *))string_with_NSString:(NSString *ZEB_NULLABLE)text;
+ (ZEB_INSTANCE_OF(ZEB_Wide_String *))string_with_format:(const char *ZEB_NULLABLE)format,
                                                         ... __attribute__((format(printf, 1, 2)));

/** Initialise an owner in the same way. */
- (instancetype)init_with_c_string:(const char *ZEB_NULLABLE)text;
- (instancetype)init_with_format:(const char *ZEB_NULLABLE)format, ... __attribute__((format(printf, 1, 2)));

/** Appends a decoded C string; `append_c_string:length:`, on the other hand, decodes nothing. A link reports
    "Cannot append c string through link, no append made." */
- (void)append_c_string:(const char *ZEB_NULLABLE)text;

/** Appends the UTF-16 units of an NSString. A link reports "Cannot append platform string through link, no
    append made." */
- (void)append_NSString:(NSString *ZEB_NULLABLE)text;

/** Append a decoded formatted text. A link reports "Cannot append formatted text through link, no append
    made." */
- (void)append_format:(const char *ZEB_NULLABLE)format, ... __attribute__((format(printf, 1, 2)));
- (void)append_format:(const char *ZEB_NULLABLE)format
            arguments:(va_list)arguments __attribute__((format(printf, 1, 0)));

@end

ZEB_ASSUME_NONNULL_END
