#import <Korvane_ZEB/ZEB_Message_Text.h>

#import <Korvane_ZEB/ZEB_Stream.h>

#import "arrays/ZEB_Printing_Private.h"
#import "core/ZEB_Description_Stream_Private.h"
#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "strings/engine/transcoding.hpp"

@implementation ZEB_Message_Text

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    self = [super init];
    if (self != nil)
        text = [[ZEB_Wide_String alloc] init_with_capacity:0];
    return self;
}

- (void)dealloc
{
    [text release];
    [super dealloc];
}

- (ZEB_Wide_String *)text
{
    return text;
}

- (void)set_text:(ZEB_Wide_String *)string
{
    [string retain];
    [text release];
    text = string;
}

- (void)set_from_string:(ZEB_Char_Vector *)string
{
    if (text != nil)
        engine::set_to_utf16_or_bytes(engine::storage_of_array(text), engine::text_of(string),
                                      engine::Fix_Report{self, _cmd});
}

- (id)copyWithZone:(NSZone *)zone
{
    ZEB_Message_Text *const made = [[[self class] allocWithZone:zone] init];
    if (made != nil)
        [made->text set_contents_of_array:text];
    return made;
}

- (BOOL)isEqual:(id)other
{
    if (![other isKindOfClass:[ZEB_Message_Text class]])
        return NO;
    ZEB_Wide_String *const others = [static_cast<ZEB_Message_Text *>(other) text];
    return text == others || [text isEqual:others];
}

- (NSUInteger)hash
{
    return [text hash];
}

- (NSString *)description
{
    return engine::description_of(self);
}

- (void)send_to_stream:(ZEB_Stream *)stream
{
    engine::print_element(stream, text);
}

@end
