/*
 * The framework's strings to and from the platform's. The platform decodes and encodes; what it cannot
 * turn into text is nil, and what it cannot turn into bytes leaves an empty string. Strings that an
 * operation returns are autoreleased.
 *
 * Encoding types: 0 and 1 are ASCII, 2 and 4 UTF-8, 3 UTF-16. Any other converts nothing.
 */
#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

#import <Foundation/Foundation.h>

/** From 8-bit text. Its bytes are copied. */
@interface ZEB_Char_Vector (NSString_Conversion)

/** The text, read as ASCII. */
- (NSString *)NSString_value;

/** The text, read as UTF-8, for any use and for paths. */
- (NSString *)NSString_utf8_value;
- (NSString *)NSString_path_value;

/** The text, read by an encoding type. */
- (NSString *)NSString_value_with_encoding_type:(ZEB_Encoding_Type)type;
- (NSMutableString *)NSMutableString_value_with_encoding_type:(ZEB_Encoding_Type)type;

@end

/** To 8-bit text. Characters that the encoding does not have are replaced as the platform does it. */
@interface ZEB_String (NSString_Conversion)

/** An autoreleased string with the bytes of a platform string; empty where there are none. */
+ (ZEB_String *)string_with_NSString:(NSString *)text type:(ZEB_Encoding_Type)type;

/** Makes a string with the bytes of a platform string, its capacity their number; an empty one without a
    block where there are none. */
- (id)init_with_NSString:(NSString *)text type:(ZEB_Encoding_Type)type;

/** Becomes the bytes of a platform string, in the way of `set_chars:count:`, so that a link becomes an
    owner. Where there are none, the count becomes 0, a link's too. */
- (void)set_from_NSString:(NSString *)text type:(ZEB_Encoding_Type)type;

@end

/** From 32-bit text, of which each element is a UTF-16 unit: only its low 16 bits count. */
@interface ZEB_Wide_Char_Vector (NSString_Conversion)

- (NSString *)NSString_value;
- (NSMutableString *)NSMutableString_value;

@end

/** To 32-bit text: one element for each UTF-16 unit. */
@interface ZEB_Wide_String (NSString_Conversion)

/** Makes a string with the units of a platform string, its capacity that of `set_length:`; nil has
    none. */
- (id)init_with_NSString:(NSString *)text;

/** Becomes the units of a platform string, in the way of `set_length:`; nil has none. A link reports
    "Cannot update length through link, no adjustment made." */
- (void)set_from_NSString:(NSString *)text;

@end
