/*
 * Conversions between the framework's strings and NSString. Foundation decodes and encodes; what it cannot
 * decode is nil, and what it cannot encode gives an empty string. Returned NSStrings are autoreleased.
 *
 * Encoding types: 0 and 1 are ASCII, 2 and 4 UTF-8, 3 UTF-16. Any other type converts nothing.
 */
#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

#import <Foundation/Foundation.h>

ZEB_ASSUME_NONNULL_BEGIN

/** From 8-bit text. The bytes are copied. */
@interface ZEB_Char_Vector (NSString_Conversion)

/** Returns the text decoded as ASCII. */
- (NSString *ZEB_NULLABLE)NSString_value;

/** Return the text decoded as UTF-8, for general use and for paths. */
- (NSString *ZEB_NULLABLE)NSString_utf8_value;
- (NSString *ZEB_NULLABLE)NSString_path_value;

/** Return the text decoded by an encoding type. */
- (NSString *ZEB_NULLABLE)NSString_value_with_encoding_type:(ZEB_Encoding_Type)type;
- (NSMutableString *ZEB_NULLABLE)NSMutableString_value_with_encoding_type:(ZEB_Encoding_Type)type;

@end

/** To 8-bit text. Foundation replaces characters that the encoding does not have. */
@interface ZEB_String (NSString_Conversion)

/** Returns an autoreleased string with the encoded bytes of an NSString; empty if there are none. */
+ (ZEB_INSTANCE_OF(ZEB_String *))string_with_NSString:(NSString *ZEB_NULLABLE)text
                                                 type:(ZEB_Encoding_Type)type;

/** Initialises a string with the encoded bytes of an NSString and a capacity of their number. Without bytes
    it is empty and has no block. */
- (instancetype)init_with_NSString:(NSString *ZEB_NULLABLE)text type:(ZEB_Encoding_Type)type;

/** Replaces the contents with the encoded bytes of an NSString, as `set_chars:count:` does; a link becomes an
    owner. Without bytes the count becomes 0, also that of a link. */
- (void)set_from_NSString:(NSString *ZEB_NULLABLE)text type:(ZEB_Encoding_Type)type;

@end

/** From 32-bit text, each element a UTF-16 unit: only its low 16 bits count. */
@interface ZEB_Wide_Char_Vector (NSString_Conversion)

/** Return the text decoded as UTF-16; nil if allocation fails. */
- (NSString *ZEB_NULLABLE)NSString_value;
- (NSMutableString *ZEB_NULLABLE)NSMutableString_value;

@end

/** To 32-bit text: one element for each UTF-16 unit. */
@interface ZEB_Wide_String (NSString_Conversion)

/** Initialises a string with the units of an NSString and the capacity that `set_length:` chooses; an empty
    one for nil. */
- (instancetype)init_with_NSString:(NSString *ZEB_NULLABLE)text;

/** Replaces the contents with the units of an NSString, as `set_length:` does; with none for nil. A link
    reports "Cannot update length through link, no adjustment made." */
- (void)set_from_NSString:(NSString *ZEB_NULLABLE)text;

@end

ZEB_ASSUME_NONNULL_END
