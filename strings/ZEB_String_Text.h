/*
 * What text needs on top of an array of characters.
 */
#import <Korvane_ZEB/ZEB_String.h>

@interface ZEB_String (Text)

/** Becomes exactly `length` bytes. A link reports "Cannot copy c string through link, no copy made." */
- (void)copy_c_string:(const char *)bytes length:(uint32_t)length;

/** Puts `length` bytes at the end. A link reports "Cannot append c string through link, no append made.",
    also for length 0. */
- (void)append_c_string:(const char *)bytes length:(uint32_t)length;

/** Puts a null behind the last character; the count does not change. A link reports "Cannot append null
    terminator through link, no append made." */
- (void)append_null_terminator;

@end
