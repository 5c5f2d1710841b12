#import <Korvane_ZEB/ZEB_Collection.h>

#import <Korvane_ZEB/ZEB_Error_Stream.h>

#import "core/ZEB_Description_Stream_Private.h"
#import "core/ZEB_Report_Private.h"

#include "core/engine/char_span.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"

@implementation ZEB_Collection

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (uint32_t)link_marker
{
    return link_marker;
}

- (void)set_link_marker:(uint32_t)marker
{
    link_marker = marker;
}

- (void)copy_settings_from:(ZEB_Collection *)other
{
    if ([other isKindOfClass:[ZEB_Collection class]])
        link_marker = [other link_marker];
}

- (uint32_t)count
{
    engine::report_need_to_overload(self, _cmd, engine::span_of("count needs subclassing"));
    return 0;
}

- (void)send_element_to_stream:(uint32_t)index stream:(ZEB_Stream *)stream
{
    (void)index;
    (void)stream;
    engine::report_need_to_overload(self, _cmd,
                                    engine::span_of("send_element_to_stream:stream: needs subclassing"));
}

- (void)send_to_stream:(ZEB_Stream *)stream
{
    [stream ZEB_send_delimited_list:self];
}

- (void)send_text_to_stream:(ZEB_Stream *)stream
{
    [stream ZEB_send_delimited_list:self];
}

- (void)send_contents_to_stream:(ZEB_Stream *)stream
{
    [stream ZEB_send_delimited_list:self];
}

- (void)send_list_to_stream:(ZEB_Stream *)stream
{
    [stream ZEB_send_list:self];
}

- (void)send_elements_to_stream:(ZEB_Stream *)stream
{
    [stream ZEB_send_list:self];
}

- (void)print_on_stream:(ZEB_Stream *)stream
{
    (void)stream;
    engine::report_need_to_overload(self, _cmd, engine::span_of("print_on_stream: needs subclassing"));
}

- (void)print
{
    ZEB_Stream *const stream = [ZEB_Error_Stream shared_error_stream];
    [stream write_bytes:"List contents:\n" length:15];
    [self print_on_stream:stream];
    [stream write_bytes:"\n" length:1];
}

- (NSString *)description
{
    return engine::description_of(self);
}

@end
