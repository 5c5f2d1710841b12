#import <Korvane_ZEB/ZEB_Binary_String_Stream.h>

#import "core/ZEB_Stream_Private.h"
#import "encoding/ZEB_Extra_Element_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"

@implementation ZEB_Collection (Extra_Element)

- (void)send_element_past_end_to_stream:(ZEB_Stream *)stream
{
    (void)stream;
}

@end

@implementation ZEB_Binary_String_Stream

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (uint8_t)needs_swap
{
    return needs_swap;
}

- (void)set_needs_swap:(uint8_t)value
{
    needs_swap = value;
}

- (BOOL)put_raw:(const void *)value size:(uint32_t)size
{
    [self put_bytes:static_cast<const char *>(value) length:size];
    return YES;
}

- (void)ZEB_send_delimited_list:(ZEB_Collection *)list
{
    const uint32_t count = [list count];
    [self ZEB_send_list:list];
    if (count != 0)
        [list send_element_past_end_to_stream:self];
}

@end
