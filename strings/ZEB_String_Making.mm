#import <Korvane_ZEB/ZEB_String_Making.h>

#import "strings/ZEB_NSString_Conversion_Private.h"
#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"
#include "strings/engine/text_appending.hpp"
#include "strings/engine/text_kernels.hpp"

using engine::storage_of_array;

void engine::append_platform_string(ZEB_String *string, NSString *text, engine::Fix_Report report)
{
    NSData *const bytes = engine::platform_bytes(text, ZEB_ENCODING_UTF8);
    engine::append_c_string(storage_of_array(string), static_cast<const char *>([bytes bytes]),
                            static_cast<uint32_t>([bytes length]), report,
                            engine::notes::append_platform_string_through_link);
}

void engine::append_platform_string(ZEB_Wide_String *string, NSString *given, engine::Fix_Report report)
{
    NSString *const text = engine::string_or_nil(given);
    const NSUInteger length = [text length];
    const engine::Wide_Char_Storage storage = storage_of_array(string);
    if (storage.is_link())
        return report(engine::notes::append_platform_string_through_link);
    if (!engine::grow_text(storage, uint64_t{storage.count} + length, report) || length == 0)
        return;
    uint32_t *const units = storage.data + storage.count;
    [text getCharacters:reinterpret_cast<unichar *>(units) range:NSMakeRange(0, length)];
    engine::kernels::widen_in_place(units, length);
    storage.count += static_cast<uint32_t>(length);
}

@implementation ZEB_String (Platform_Making)

- (id)init_with_NSString:(NSString *)text
{
    self = [self init];
    if (self != nil)
        engine::append_platform_string(self, text, engine::Fix_Report{self, _cmd});
    return self;
}

@end
