#import <Korvane_ZEB/ZEB_Binary_File_Stream.h>

#import "core/ZEB_Stream_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "encoding/engine/byte_order.hpp"

#include <string.h>

@implementation ZEB_Binary_File_Stream

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

- (BOOL)take_raw:(void *)value size:(uint32_t)size
{
    if (file == NULL || fread(value, size, 1, file) != 1) {
        ++failure_count;
        memset(value, 0, size);
    } else if (needs_swap) {
        engine::reverse_bytes(value, size);
    }
    return YES;
}

@end
