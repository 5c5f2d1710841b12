/*
 * Archiving number formats and message texts.
 */
#import <Korvane_ZEB/ZEB_Message_Text.h>
#import <Korvane_ZEB/ZEB_Number_Format.h>

ZEB_ASSUME_NONNULL_BEGIN

/*
 * Archives of NSKeyedArchiver and of NSArchiver, which name no class but that of the object. A text is
 * archived as a string is (ZEB_Wide_Char_Coding.h), and belongs to the object that comes back alone. Archives
 * that lack something, or have another kind of value in its place, are refused with the reports of
 * ZEB_Wide_Char_Coding.h, the receiver being released.
 */

@interface ZEB_Number_Format (Coding) <NSSecureCoding>

+ (BOOL)supportsSecureCoding;

/** Writes the settings, the results of the last number and the text. Doubles are archived as their bits: the
    platform's archives in XML have other ones for the greatest. */
- (void)encodeWithCoder:(NSCoder *)coder;

/** Initialises a format with archived fields; nil for an archive that is refused. */
- (instancetype ZEB_NULLABLE)initWithCoder:(NSCoder *)coder;

@end

@interface ZEB_Message_Text (Coding) <NSSecureCoding>

+ (BOOL)supportsSecureCoding;

/** Writes the text; an empty one for an object without a string. */
- (void)encodeWithCoder:(NSCoder *)coder;

/** Initialises an object with an archived text in a string of its own; nil for an archive that is refused. */
- (instancetype ZEB_NULLABLE)initWithCoder:(NSCoder *)coder;

@end

ZEB_ASSUME_NONNULL_END
