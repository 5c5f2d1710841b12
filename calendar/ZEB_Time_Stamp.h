/*
 * An instant by the wall clock.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Stream;

/** The seconds and nanoseconds since 1970-01-01 00:00 UTC. */
ZEB_EXPORT
@interface ZEB_Time_Stamp : ZEB_Object <NSCopying, NSCoding> {
    ZEB_PROTECTED
    ZEB_Time_Value time;
}

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Makes a stamp of the present instant. */
- (id)init;

/** Makes a stamp of a given instant; nothing is checked. */
- (id)init_with_time:(uint64_t)second nanosecond:(uint64_t)nanosecond;

/** A stamp of the same instant. */
- (id)copyWithZone:(NSZone *)zone;

/** Both fields in full, under keys where the coder has them; 0 for one that the archive lacks. */
- (void)encodeWithCoder:(NSCoder *)coder;
- (id)initWithCoder:(NSCoder *)coder;

/** Takes the present instant, to the microsecond. */
- (void)update_to_current_time;

/** The instant; setting it checks nothing. */
- (ZEB_Time_Value)time_value;
- (void)set_time_value:(uint64_t)second nanosecond:(uint64_t)nanosecond;

/** 1 when seconds and nanoseconds are the same; 0 for nil. */
- (uint8_t)is_equal_to:(ZEB_Time_Stamp *)other;

/** Writes the seconds, a point and the nanoseconds with nine digits, in one piece. */
- (void)send_to_stream:(ZEB_Stream *)stream;
- (void)send_text_to_stream:(ZEB_Stream *)stream;
- (void)send_contents_to_stream:(ZEB_Stream *)stream;

@end
