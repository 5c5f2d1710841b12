#import "core/ZEB_Stream_Private.h"

#import <Korvane_ZEB/ZEB_Collection.h>
#import <Korvane_ZEB/ZEB_String.h>

#include "core/engine/formatted_text.hpp"
#include "core/engine/lists.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "core/engine/stream_formats.hpp"

#include <stdio.h>

namespace
{

void print_not_implemented(const char *line)
{
    fputs(line, stdout);
    fputc('\n', stdout);
}

/// Sends an object one of the messages by which it writes itself; an object that does not respond writes
/// nothing.
void send_if_responds(id object, SEL hook, ZEB_Stream *stream)
{
    if ([object respondsToSelector:hook])
        [object performSelector:hook withObject:stream];
}

} // namespace

namespace zeb::engine
{

bool put_printed(ZEB_Stream *stream, std::span<char> buffer, const char *format, va_list arguments)
{
    const Formatted_Text text(buffer, format, arguments);
    if (text.count() != 0)
        [stream put_bytes:text.characters() length:text.count()];
    return text.is_valid();
}

} // namespace zeb::engine

@implementation ZEB_Stream (Sink)

- (void)put_bytes:(const char *)bytes length:(uint32_t)length
{
    if (length != 0)
        fwrite(bytes, 1, length, stdout);
}

- (void)put_format:(const char *)format arguments:(va_list)arguments
{
    char buffer[engine::printing_size];
    engine::put_printed(self, buffer, format, arguments);
}

- (int)take_format:(const char *)format arguments:(va_list)arguments
{
    return vfscanf(stdin, format, arguments);
}

@end

@implementation ZEB_Stream (Raw_Values)

- (BOOL)put_raw:(const void *)value size:(uint32_t)size
{
    (void)value, (void)size;
    return NO;
}

- (BOOL)take_raw:(void *)value size:(uint32_t)size
{
    (void)value, (void)size;
    return NO;
}

@end

@implementation ZEB_Stream

+ (ZEB_Stream *)shared_stream
{
    static ZEB_Stream *shared = nil;
    if (shared == nil)
        shared = [[ZEB_Stream alloc] init];
    return shared;
}

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [super init];
    if (self == nil)
        return nil;
    char_format = engine::default_char_format;
    int_format = engine::default_int_format;
    unsigned_format = engine::default_unsigned_format;
    float_format = engine::default_float_format;
    double_format = engine::default_double_format;
    character_code_format = engine::default_character_code_format;
    unsigned_long_format = engine::default_unsigned_long_format;
    hex_format = engine::default_hex_format;
    date_format = engine::default_date_format;
    list_open_delimiter = engine::default_open_delimiter;
    list_close_delimiter = engine::default_close_delimiter;
    list_separator = engine::default_separator;
    scratch_string = [[ZEB_String alloc] init_with_capacity:0];
    return self;
}

- (void)dealloc
{
    [scratch_string release];
    [super dealloc];
}

- (void)reset
{
    failure_count = 0;
}

- (void)reset_failure_count
{
    [self reset];
}

- (uint32_t)failure_count
{
    return failure_count;
}

- (void)set_failure_count:(uint32_t)value
{
    failure_count = value;
}

- (void)write_bytes:(const char *)char_c_array length:(uint32_t)length
{
    [self put_bytes:char_c_array length:length];
}

- (void)write_string:(ZEB_String *)string
{
    [self put_bytes:[string char_data] length:[string count]];
}

- (void)write_object:(id)object
{
    send_if_responds(object, @selector(send_to_stream:), self);
}

- (void)write_object_with_format:(id)object format:(const char *)format
{
    (void)format;
    [self write_object:object];
}

- (void)write_value:(id)object
{
    [self write_object:object];
}

- (void)write_object_text:(id)object
{
    send_if_responds(object, @selector(send_text_to_stream:), self);
}

- (void)write_object_contents:(id)object
{
    send_if_responds(object, @selector(send_contents_to_stream:), self);
}

- (void)ZEB_send_delimited_list:(ZEB_Collection *)list
{
    ZEB_Stream *const stream = self;
    engine::write_delimited_list([list count], { list_open_delimiter, list_close_delimiter, list_separator },
                                 [=](ZEB_Char_Span delimiter) { engine::put(stream, delimiter); },
                                 [=](uint32_t index) { [list send_element_to_stream:index stream:stream]; });
}

- (void)ZEB_send_list:(ZEB_Collection *)list
{
    ZEB_Stream *const stream = self;
    engine::write_list([list count],
                       [=](uint32_t index) { [list send_element_to_stream:index stream:stream]; });
}

- (void)ZEB_receive_delimited_list:(ZEB_Collection *)list
{
    (void)list;
    print_not_implemented("Need to implement ZEB_receive_delimited_list:");
}

- (void)ZEB_receive_list:(ZEB_Collection *)list
{
    (void)list;
    print_not_implemented("Need to implement ZEB_receive_list:");
}

@end
