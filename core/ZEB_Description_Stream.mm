#import "core/ZEB_Description_Stream_Private.h"

#import "core/ZEB_Stream_Private.h"

#import <Korvane_ZEB/ZEB_String.h>
#import <Korvane_ZEB/ZEB_Wide_String.h>

#import "arrays/ZEB_Printing_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "strings/engine/utf.hpp"

namespace
{

/// Writes ISO Latin 1 text as UTF-8.
void put_latin_1(ZEB_Stream *stream, std::span<const char> text)
{
    for (const char character : text) {
        const auto code = static_cast<uint8_t>(character);
        const char utf8[] = {static_cast<char>(0xC0 | code >> 6), static_cast<char>(0x80 | (code & 0x3F))};
        if (code < 0x80)
            [stream put_bytes:&character length:1];
        else
            [stream put_bytes:utf8 length:2];
    }
}

} // namespace

/// Collects its output in its scratch string. Strings are written as text, not as lists of characters, also
/// as elements.
@interface ZEB_Description_Stream : ZEB_Stream

- (NSString *)text;

@end

@implementation ZEB_Description_Stream

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (void)write_object:(id)object
{
    if ([object isKindOfClass:[ZEB_Char_Vector class]])
        [self write_string:object];
    else if ([object isKindOfClass:[ZEB_Wide_Char_Vector class]])
        engine::print_element(self, static_cast<ZEB_Wide_String *>(object));
    else
        [super write_object:object];
}

- (void)write_string:(ZEB_String *)string
{
    const std::span<const char> text([string char_data], [string count]);
    if (engine::is_valid_utf8(text))
        [super write_string:string];
    else
        put_latin_1(self, text);
}

- (void)put_bytes:(const char *)bytes length:(uint32_t)length
{
    [scratch_string append_chars:bytes count:length];
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

namespace zeb::engine
{

NSString *description_of(id object)
{
    ZEB_Description_Stream *const stream = [[ZEB_Description_Stream alloc] init];
    [stream write_object:object];
    NSString *const text = [stream text];
    [stream release];
    return text;
}

} // namespace zeb::engine
