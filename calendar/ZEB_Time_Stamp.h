/*
 * An instant of the wall clock.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Stream;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * The seconds and nanoseconds since 1970-01-01 00:00 UTC.
 *
 * Different objects may be used on different threads; ZEB_Object.h says what may not.
 */
ZEB_EXPORT
@interface ZEB_Time_Stamp : ZEB_Object <NSCopying, NSSecureCoding> {
    ZEB_PROTECTED
    ZEB_Time_Value time;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises a stamp of the current instant. */
- (instancetype)init;

/** Initialises a stamp of a given instant; nothing is checked. */
- (instancetype)init_with_time:(uint64_t)second nanosecond:(uint64_t)nanosecond;

/** Returns a stamp of the same instant. */
- (id)copyWithZone:(NSZone *ZEB_NULLABLE)zone;

/** Code both fields in full, under keys if the coder supports them; a missing key is read as 0. An archive
    that ends before they do, or has another kind of value in the place of one, reports "Archive lacks a value
    or has another kind of value in its place, no object made.", and no object comes back. */
+ (BOOL)supportsSecureCoding;
- (void)encodeWithCoder:(NSCoder *)coder;
- (instancetype ZEB_NULLABLE)initWithCoder:(NSCoder *)coder;

/** Sets the stamp to the current instant, to the microsecond. */
- (void)update_to_current_time;

/** The instant; nothing is checked. */
- (ZEB_Time_Value)time_value;
- (void)set_time_value:(uint64_t)second nanosecond:(uint64_t)nanosecond;

/** Returns the instant in seconds since 1970-01-01 00:00 UTC, rounded to a double. */
- (double)seconds_since_1970;

/** Returns 1 if seconds and nanoseconds are equal, else 0; 0 for nil. */
- (uint8_t)is_equal_to:(ZEB_Time_Stamp *ZEB_NULLABLE)other;

/** Writes the seconds, a point and the nanoseconds with nine digits, in one call. */
- (void)send_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;
- (void)send_text_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;
- (void)send_contents_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;

@end

ZEB_ASSUME_NONNULL_END
