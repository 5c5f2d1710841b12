/*
 * The text of a message.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Char_Vector, ZEB_Stream, ZEB_Wide_String;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Keeps message text in a 32-bit string, as UTF-16 units, one per element.
 *
 * Different objects may be used on different threads; ZEB_Object.h says what may not.
 */
ZEB_EXPORT
@interface ZEB_Message_Text : ZEB_Object <NSCopying> {
    ZEB_PROTECTED
    ZEB_UNRETAINED ZEB_Wide_String *ZEB_NULLABLE text;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises a holder with an empty string of its own. */
- (instancetype)init;

/** Returns the string, which the holder owns. */
- (ZEB_Wide_String *ZEB_NULLABLE)text;

/** Makes another string the one in which text is kept, and retains it. Later text overwrites its contents. */
- (void)set_text:(ZEB_Wide_String *ZEB_NULLABLE)string;

/** Replaces the text with a string's characters, decoded as UTF-8; if they are not UTF-8, each byte becomes
    the character of its value. An empty or nil string empties the text. A text that is a link reports "Cannot
    update length through link, no adjustment made." */
- (void)set_from_string:(ZEB_Char_Vector *ZEB_NULLABLE)string;

/** Returns a holder with a copy of the text, owned by the caller. */
- (id)copyWithZone:(NSZone *ZEB_NULLABLE)zone;

/** Whether the other object is a message text with equal contents; `hash` agrees. */
- (BOOL)isEqual:(id ZEB_NULLABLE)other;
- (NSUInteger)hash;

/** Returns the text. */
- (NSString *)description;

/** Writes the text as UTF-8. */
- (void)send_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;

@end

ZEB_ASSUME_NONNULL_END
