#import <Korvane_ZEB/ZEB_Time_Stamp.h>

#import <Korvane_ZEB/ZEB_Stream.h>

#import "core/ZEB_Description_Stream_Private.h"
#import "core/ZEB_Report_Private.h"

#include "calendar/engine/date_text.hpp"
#include "calendar/engine/date_time.hpp"
#include "calendar/engine/local_time.hpp"
#include "core/engine/archive_notes.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "core/engine/platform_call.hpp"

namespace
{

NSString *const second_key = @"ZEB_time_stamp_second";
NSString *const nanosecond_key = @"ZEB_time_stamp_nanosecond";

void write_time(NSCoder *coder, uint64_t second, uint64_t nanosecond)
{
    if ([coder allowsKeyedCoding]) {
        [coder encodeInt64:static_cast<int64_t>(second) forKey:second_key];
        [coder encodeInt64:static_cast<int64_t>(nanosecond) forKey:nanosecond_key];
    } else {
        [coder encodeValueOfObjCType:@encode(uint64_t) at:&second];
        [coder encodeValueOfObjCType:@encode(uint64_t) at:&nanosecond];
    }
}

ZEB_Time_Value read_time(NSCoder *coder)
{
    ZEB_Time_Value time{0, 0};
    if ([coder allowsKeyedCoding]) {
        time.second = static_cast<uint64_t>([coder decodeInt64ForKey:second_key]);
        time.nanosecond = static_cast<uint64_t>([coder decodeInt64ForKey:nanosecond_key]);
    } else {
        [coder decodeValueOfObjCType:@encode(uint64_t) at:&time.second];
        [coder decodeValueOfObjCType:@encode(uint64_t) at:&time.nanosecond];
    }
    return time;
}

} // namespace

@implementation ZEB_Time_Stamp

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [super init];
    [self update_to_current_time];
    return self;
}

- (id)init_with_time:(uint64_t)second nanosecond:(uint64_t)nanosecond
{
    self = [super init];
    [self set_time_value:second nanosecond:nanosecond];
    return self;
}

- (id)copyWithZone:(NSZone *)zone
{
    return [[[self class] allocWithZone:zone] init_with_time:time.second nanosecond:time.nanosecond];
}

+ (BOOL)supportsSecureCoding
{
    return YES;
}

- (void)encodeWithCoder:(NSCoder *)coder
{
    write_time(coder, time.second, time.nanosecond);
}

- (id)initWithCoder:(NSCoder *)coder
{
    ZEB_Time_Value archived{0, 0};
    if (engine::runs_through([&] { archived = read_time(coder); }))
        return [self init_with_time:archived.second nanosecond:archived.nanosecond];
    engine::Fix_Report{self, _cmd}(engine::notes::archive_incomplete);
    [self release];
    return nil;
}

- (BOOL)isEqual:(id)other
{
    return [other isKindOfClass:[ZEB_Time_Stamp class]] && [self is_equal_to:other];
}

- (NSUInteger)hash
{
    return engine::hash_of(time);
}

- (NSString *)description
{
    return engine::description_of(self);
}

- (void)update_to_current_time
{
    time = engine::current_time_value();
}

- (ZEB_Time_Value)time_value
{
    return time;
}

- (void)set_time_value:(uint64_t)second nanosecond:(uint64_t)nanosecond
{
    time = {second, nanosecond};
}

- (double)seconds_since_1970
{
    return static_cast<double>(time.second) + static_cast<double>(time.nanosecond) / 1e9;
}

- (uint8_t)is_equal_to:(ZEB_Time_Stamp *)other
{
    return other != nil && time.second == other->time.second && time.nanosecond == other->time.nanosecond;
}

- (void)send_to_stream:(ZEB_Stream *)stream
{
    char text[engine::time_stamp_text_size];
    const char *const end = engine::write_time_stamp(text, time);
    [stream write_bytes:text length:static_cast<uint32_t>(end - text)];
}

- (void)send_text_to_stream:(ZEB_Stream *)stream
{
    [self send_to_stream:stream];
}

- (void)send_contents_to_stream:(ZEB_Stream *)stream
{
    [self send_to_stream:stream];
}

@end
