#import <Korvane_ZEB/ZEB_Relay_Error_Stream.h>

#import <Korvane_ZEB/ZEB_Message_Text.h>
#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

#import "core/ZEB_Error_Stream_Private.h"
#import "core/ZEB_Stream_Private.h"

#include "core/engine/formatted_text.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "core/engine/stream_formats.hpp"

namespace
{

constexpr uint32_t scratch_capacity = 128;

void append_pieces(ZEB_String *string, engine::Message_Pieces pieces)
{
    for (const ZEB_Char_Span piece : pieces)
        [string append_chars:piece.char_c_array count:piece.length];
}

} // namespace

@interface ZEB_Relay_Error_Stream (Relay)

- (BOOL)is_listened_to;
- (void)relay_scratch;
- (void)relay:(const char *)bytes length:(uint32_t)length;
- (void)relay_formatted:(const char *)format, ...;

@end

@implementation ZEB_Relay_Error_Stream

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [super init];
    if (self == nil)
        return nil;
    [scratch_string ensure_capacity_greater_than:scratch_capacity - 1];
    wide_text = [[ZEB_Wide_String alloc] init_with_capacity:0];
    captured_text = [[ZEB_Message_Text alloc] init];
    [captured_text set_text:wide_text];
    echoes = 1;
    return self;
}

- (void)dealloc
{
    [captured_text release];
    [wide_text release];
    [super dealloc];
}

- (id<ZEB_Message_Listener>)listener
{
    return listener;
}

- (void)set_listener:(id<ZEB_Message_Listener>)object
{
    listener = object;
}

- (ZEB_Message_Text *)captured_text
{
    return captured_text;
}

- (void)set_captured_text:(ZEB_Message_Text *)holder
{
    [holder retain];
    [captured_text release];
    captured_text = holder;
}

- (uint8_t)echoes
{
    return echoes;
}

- (void)set_echoes:(uint8_t)value
{
    echoes = value;
}

- (uint8_t)captures_diagnostics
{
    return captures_diagnostics;
}

- (void)set_captures_diagnostics:(uint8_t)value
{
    captures_diagnostics = value;
}

- (void)put_bytes:(const char *)bytes length:(uint32_t)length
{
    if (echoes == 1)
        [super put_bytes:bytes length:length];
    [self relay:bytes length:length];
}

// Standard error gets the character as it is; the captured text passes through the stream's format.
- (void)write_char:(int)value
{
    const char character = static_cast<char>(value);
    if (echoes == 1)
        [super put_bytes:&character length:1];
    [self relay_formatted:engine::or_default(char_format, engine::default_char_format), value];
}

// The inherited writer writes to standard output.
- (void)write_unsigned_long_with_format:(uint64_t)value format:(const char *)format
{
    if (echoes == 1)
        [super write_unsigned_long_with_format:value format:format];
    [self relay_formatted:engine::or_default(format, engine::default_unsigned_long_format), value];
}

- (void)put_diagnostic:(engine::Message_Pieces)pieces
{
    // As if echoed, and not piece by piece.
    const uint8_t echoed = echoes;
    const uint8_t relaying = is_relaying;
    echoes = is_relaying = 1;
    [super put_diagnostic:pieces];
    echoes = echoed;
    is_relaying = relaying;
    if (captures_diagnostics != 1 || ![self is_listened_to])
        return;
    [scratch_string clear];
    append_pieces(scratch_string, pieces);
    [self relay_scratch];
}

@end

@implementation ZEB_Relay_Error_Stream (Relay)

- (BOOL)is_listened_to
{
    return listener != nil && !is_relaying;
}

- (void)relay_scratch
{
    [captured_text set_from_string:scratch_string];
    is_relaying = 1;
    [listener message_written:self];
    is_relaying = 0;
}

- (void)relay:(const char *)bytes length:(uint32_t)length
{
    if (![self is_listened_to])
        return;
    // The writers of names pass the scratch string itself.
    if (bytes != [scratch_string char_data] || length != [scratch_string count])
        [scratch_string set_chars:bytes count:length];
    [self relay_scratch];
}

- (void)relay_formatted:(const char *)format, ...
{
    va_list arguments;
    va_start(arguments, format);
    char buffer[engine::printing_size];
    const engine::Formatted_Text text(buffer, format, arguments);
    va_end(arguments);
    if (text.count() != 0)
        [self relay:text.characters() length:text.count()];
}

@end
