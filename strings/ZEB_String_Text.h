/*
 * 8-bit strings set from and extended by C text.
 */
#import <Korvane_ZEB/ZEB_String.h>

ZEB_ASSUME_NONNULL_BEGIN

@interface ZEB_String (Text)

/** Replaces the contents with `length` bytes. A link reports "Cannot copy c string through link, no copy
    made." */
- (void)copy_c_string:(const char *ZEB_NULLABLE)bytes length:(uint32_t)length;

/** Appends `length` bytes. A link reports "Cannot append c string through link, no append made.", also for
    length 0. */
- (void)append_c_string:(const char *ZEB_NULLABLE)bytes length:(uint32_t)length;

/** Stores a null after the last character; the count does not change. A link reports "Cannot append null
    terminator through link, no append made." */
- (void)append_null_terminator;

@end

ZEB_ASSUME_NONNULL_END
