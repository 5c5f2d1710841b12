#import <Korvane_ZEB/ZEB_T_Stream.h>

#import <Korvane_ZEB/ZEB_String_Text.h>
#import <Korvane_ZEB/ZEB_Wide_String_Text.h>

#import "core/ZEB_Stream_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"

#include <stdlib.h>
#include <type_traits>

namespace
{

constexpr uint32_t first_capacity = 1024;
constexpr size_t buffer_size = 1024;

template <class String>
String *new_string()
{
    return [[String alloc] init_with_capacity:first_capacity];
}

} // namespace

@implementation ZEB_T_Stream

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [self init_with_string:new_string<std::remove_pointer_t<ZEB_T_Element>>()];
    if (self != nil)
        owns_target = 1;
    return self;
}

- (id)init_with_string:(ZEB_T_Element)string
{
    self = [super init];
    if (self == nil)
        return nil;
    target = string;
    formatting_buffer = static_cast<char *>(malloc(buffer_size));
    return self;
}

- (void)dealloc
{
    if (owns_target)
        [target release];
    free(formatting_buffer);
    [super dealloc];
}

- (void)set_string:(ZEB_T_Element)string
{
    read_position = 0;
    if (string == target)
        return;
    if (owns_target)
        [target release];
    target = string;
    owns_target = 0;
}

- (ZEB_T_Element)target
{
    return target;
}

- (void)set_target:(ZEB_T_Element)string
{
    [self set_string:string];
}

- (uint8_t)owns_target
{
    return owns_target;
}

- (void)set_owns_target:(uint8_t)value
{
    owns_target = value;
}

- (uint32_t)read_position
{
    return read_position;
}

- (void)set_read_position:(uint32_t)value
{
    read_position = value;
}

- (char *)formatting_buffer
{
    return formatting_buffer;
}

- (void)set_formatting_buffer:(char *)buffer
{
    if (buffer == formatting_buffer)
        return;
    free(formatting_buffer);
    formatting_buffer = buffer;
}

- (void)reset
{
    [super reset];
    [target clear];
    read_position = 0;
}

- (void)put_bytes:(const char *)bytes length:(uint32_t)length
{
    const uint32_t expected = [target count] + length;
    [target append_c_string:bytes length:length];
    if (target == nil || [target count] != expected)
        ++failure_count;
}

- (void)put_format:(const char *)format arguments:(va_list)arguments
{
    const std::span<char> buffer(formatting_buffer, formatting_buffer != NULL ? buffer_size : 0);
    if (!engine::put_printed(self, buffer, format, arguments))
        ++failure_count;
}

@end
