/*
 * The user defaults with keys and values in the framework's types.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Byte_Array, ZEB_String;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * The values of user defaults, by keys of UTF-8 text. NSUserDefaults offers these operations, and so do its
 * subclasses ZEB_Standard_Defaults and ZEB_Suite_Defaults, and ZEB_Defaults.
 *
 * A getter answers 0 or nil for a missing key, for a value of another kind, and for a key that is nil, empty,
 * or no well-formed UTF-8. Such a key given to a setter reports "Cannot use key, no change made."; a value
 * that is nil, ill-formed, or no property list reports "Cannot store value, no change made.".
 *
 * Numbers and booleans are read from platform numbers and from text alike. Values are kept in memory at once,
 * and for other processes and the next run as the platform does: latest with `synchronize`. GNUstep's files
 * do not keep all text: characters beyond U+FFFF, U+FFFE, and a "\U" in it come back changed in the next
 * process. Store such text as bytes.
 *
 * Defaults objects may be used on one thread at a time.
 */
@protocol ZEB_Default_Values

/** Returns 1 if "does_debug_logging" is on in these defaults, else 0, also for a missing key. */
- (uint8_t)debug_logging_enabled;

/** A boolean; for a text it is the platform that says which ones mean 1 ("1" and "YES" do). */
- (uint8_t)bool_for_key:(ZEB_String *ZEB_NULLABLE)key;
- (void)set_bool_for_key:(uint8_t)value key:(ZEB_String *ZEB_NULLABLE)key;

/** An integer. In the framework's suite only the low 32 bits are kept. */
- (NSInteger)integer_for_key:(ZEB_String *ZEB_NULLABLE)key;
- (void)set_integer_for_key:(NSInteger)value key:(ZEB_String *ZEB_NULLABLE)key;

/** A double. It is stored as the platform's text of the number, with a decimal point in every locale: with
    GNUstep some 15 digits come back, and what is not finite reads as 0. */
- (double)double_for_key:(ZEB_String *ZEB_NULLABLE)key;
- (void)set_double_for_key:(double)value key:(ZEB_String *ZEB_NULLABLE)key;

/** A platform object: a string, number, date, data, or an array or a dictionary, with strings as keys, of
    such. */
- (id ZEB_NULLABLE)object_for_key:(ZEB_String *ZEB_NULLABLE)key;
- (void)set_object_for_key:(id ZEB_NULLABLE)object key:(ZEB_String *ZEB_NULLABLE)key;

/** Returns a new autoreleased string; nil for a missing key. */
- (ZEB_String *ZEB_NULLABLE)string_for_key:(ZEB_String *ZEB_NULLABLE)key;

/** Sets the string to the text of the key by `set_from_NSString:type:`; empties it for a missing key. */
- (void)assign_string_for_key:(ZEB_String *ZEB_NULLABLE)string key:(ZEB_String *ZEB_NULLABLE)key;

/** Stores the string as text. */
- (void)set_string_for_key:(ZEB_String *ZEB_NULLABLE)string key:(ZEB_String *ZEB_NULLABLE)key;

/** Returns a new autoreleased array of the bytes, also of none; nil for a missing key. */
- (ZEB_Byte_Array *ZEB_NULLABLE)byte_array_for_key:(ZEB_String *ZEB_NULLABLE)key;

/** Stores a copy of the bytes, as data. */
- (void)set_byte_array_for_key:(ZEB_Byte_Array *ZEB_NULLABLE)bytes key:(ZEB_String *ZEB_NULLABLE)key;

/** Removes the value of the key, if there is one. */
- (void)remove_object_for_key:(ZEB_String *ZEB_NULLABLE)key;

@end

@interface NSUserDefaults (ZEB_Default_Values) <ZEB_Default_Values>
@end

ZEB_ASSUME_NONNULL_END
