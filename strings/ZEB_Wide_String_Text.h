/*
 * What text needs on top of an array of 32-bit characters.
 */
#import <Korvane_ZEB/ZEB_Wide_String.h>

@class ZEB_Char_Vector;

@interface ZEB_Wide_String (Text)

/** Becomes exactly `length` 8-bit characters, each a unit of its own: bytes from 0x80 on are sign-extended
    to 0xFFFFFF80 and more. Nothing is decoded. A link reports "Cannot copy c string through link, no copy
    made." */
- (void)copy_c_string:(const char *)bytes length:(uint32_t)length;

/** Puts `length` 8-bit characters at the end, in the same way. A link reports "Cannot append c string
    through link, no append made.", also for length 0. */
- (void)append_c_string:(const char *)bytes length:(uint32_t)length;

/** The same two under their other names. */
- (void)copy_chars:(const char *)bytes length:(uint32_t)length;
- (void)append_chars:(const char *)bytes length:(uint32_t)length;

@end

/** Whole code points, one in each element, beside the UTF-16 units that come from the platform. */
@interface ZEB_Wide_String (Code_Points)

/** Becomes the code points of UTF-8 text, and answers 1. Answers 0, and changes nothing, for ill-formed
    text and on a link, which reports "Cannot update length through link, no adjustment made." */
- (uint8_t)set_code_points_from_utf8:(ZEB_Char_Vector *)text;

/** Splits each code point past 0xFFFF to a surrogate pair, growing as needed. A link reports "Cannot
    update capacity through link, no adjustment made." */
- (void)split_to_surrogate_pairs;

@end
