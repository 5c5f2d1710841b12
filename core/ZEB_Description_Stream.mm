#import "core/ZEB_Description_Stream_Private.h"

#import "core/ZEB_Stream_Private.h"

#import <Korvane_ZEB/ZEB_String.h>

/// Gathers what is written onto it in its scratch string.
@interface ZEB_Description_Stream : ZEB_Stream

- (NSString *)text;

@end

@implementation ZEB_Description_Stream

- (void)put_bytes:(const char *)bytes length:(uint32_t)length
{
    [scratch_string append_chars:bytes count:length];
}

- (void)put_format:(const char *)format arguments:(va_list)arguments
{
    va_list measured;
    va_copy(measured, arguments);
    const int length = vsnprintf(NULL, 0, format, measured);
    va_end(measured);
    if (length <= 0)
        return;
    const uint32_t count = [scratch_string count];
    const uint32_t produced = static_cast<uint32_t>(length);
    [scratch_string ensure_room_for:produced];
    // Capacity is past the count after growth, so the terminator has its place.
    if ([scratch_string capacity] - count <= produced)
        return;
    vsnprintf([scratch_string char_data] + count, size_t{produced} + 1, format, arguments);
    [scratch_string set_count:count + produced];
}

- (NSString *)text
{
    NSData *const bytes = [NSData dataWithBytes:[scratch_string char_data] length:[scratch_string count]];
    NSString *text = [[NSString alloc] initWithData:bytes encoding:NSUTF8StringEncoding];
    if (text == nil)
        text = [[NSString alloc] initWithData:bytes encoding:NSISOLatin1StringEncoding];
    return [text autorelease];
}

@end

namespace zeb
{

NSString *description_of(id object)
{
    ZEB_Description_Stream *const stream = [[ZEB_Description_Stream alloc] init];
    [stream write_object:object];
    NSString *const text = [stream text];
    [stream release];
    return text;
}

} // namespace zeb
