#import <Korvane_ZEB/ZEB_String_Making.h>

#import <Korvane_ZEB/ZEB_NSString_Conversion.h>

#import "strings/ZEB_NSString_Conversion_Private.h"
#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"
#include "strings/engine/text_appending.hpp"
#include "strings/engine/text_kernels.hpp"

using engine::storage_of_array;

namespace
{

void append_platform_string(ZEB_String *string, NSString *text, engine::Fix_Report report)
{
    NSData *const bytes = engine::platform_bytes(text, ZEB_ENCODING_UTF8);
    engine::append_c_string(storage_of_array(string), static_cast<const char *>([bytes bytes]),
                            static_cast<uint32_t>([bytes length]), report,
                            engine::notes::append_platform_string_through_link);
}

void append_platform_string(ZEB_Wide_String *string, NSString *given, engine::Fix_Report report)
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

} // namespace

@implementation ZEB_String (Making)

+ (ZEB_String *)string_with_c_string:(const char *)text
{
    return [[[self alloc] init_with_c_string:text] autorelease];
}

+ (ZEB_String *)string_with_NSString:(NSString *)text
{
    return [[[self alloc] init_with_NSString:text] autorelease];
}

+ (ZEB_String *)string_with_format:(const char *)format, ...
{
    ZEB_String *const made = [[[self alloc] init] autorelease];
    if (made == nil)
        return nil;
    va_list arguments;
    va_start(arguments, format);
    engine::append_formatted(storage_of_array(made), format, arguments, engine::Fix_Report{made, _cmd});
    va_end(arguments);
    return made;
}

- (id)init_with_c_string:(const char *)text
{
    self = [self init];
    if (self != nil)
        engine::append_null_terminated(storage_of_array(self), text, engine::Fix_Report{self, _cmd});
    return self;
}

- (id)init_with_NSString:(NSString *)text
{
    self = [self init];
    if (self != nil)
        append_platform_string(self, text, engine::Fix_Report{self, _cmd});
    return self;
}

- (id)init_with_format:(const char *)format, ...
{
    self = [self init];
    if (self == nil)
        return nil;
    va_list arguments;
    va_start(arguments, format);
    engine::append_formatted(storage_of_array(self), format, arguments, engine::Fix_Report{self, _cmd});
    va_end(arguments);
    return self;
}

- (void)append_c_string:(const char *)text
{
    engine::append_null_terminated(storage_of_array(self), text, engine::Fix_Report{self, _cmd});
}

- (void)append_NSString:(NSString *)text
{
    append_platform_string(self, text, engine::Fix_Report{self, _cmd});
}

- (void)append_format:(const char *)format, ...
{
    va_list arguments;
    va_start(arguments, format);
    engine::append_formatted(storage_of_array(self), format, arguments, engine::Fix_Report{self, _cmd});
    va_end(arguments);
}

- (void)append_format:(const char *)format arguments:(va_list)arguments
{
    engine::append_formatted(storage_of_array(self), format, arguments, engine::Fix_Report{self, _cmd});
}

@end

@implementation ZEB_Wide_String (Making)

+ (ZEB_Wide_String *)string_with_c_string:(const char *)text
{
    return [[[self alloc] init_with_c_string:text] autorelease];
}

+ (ZEB_Wide_String *)string_with_NSString:(NSString *)text
{
    return [[[self alloc] init_with_NSString:text] autorelease];
}

+ (ZEB_Wide_String *)string_with_format:(const char *)format, ...
{
    ZEB_Wide_String *const made = [[[self alloc] init] autorelease];
    if (made == nil)
        return nil;
    va_list arguments;
    va_start(arguments, format);
    engine::append_formatted(storage_of_array(made), format, arguments, engine::Fix_Report{made, _cmd});
    va_end(arguments);
    return made;
}

- (id)init_with_c_string:(const char *)text
{
    self = [self init];
    if (self != nil)
        engine::append_null_terminated(storage_of_array(self), text, engine::Fix_Report{self, _cmd});
    return self;
}

- (id)init_with_format:(const char *)format, ...
{
    self = [self init];
    if (self == nil)
        return nil;
    va_list arguments;
    va_start(arguments, format);
    engine::append_formatted(storage_of_array(self), format, arguments, engine::Fix_Report{self, _cmd});
    va_end(arguments);
    return self;
}

- (void)append_c_string:(const char *)text
{
    engine::append_null_terminated(storage_of_array(self), text, engine::Fix_Report{self, _cmd});
}

- (void)append_NSString:(NSString *)text
{
    append_platform_string(self, text, engine::Fix_Report{self, _cmd});
}

- (void)append_format:(const char *)format, ...
{
    va_list arguments;
    va_start(arguments, format);
    engine::append_formatted(storage_of_array(self), format, arguments, engine::Fix_Report{self, _cmd});
    va_end(arguments);
}

- (void)append_format:(const char *)format arguments:(va_list)arguments
{
    engine::append_formatted(storage_of_array(self), format, arguments, engine::Fix_Report{self, _cmd});
}

@end
