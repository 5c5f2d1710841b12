#import <Korvane_ZEB/ZEB_NSString_Conversion.h>
#import <Korvane_ZEB/ZEB_String_Making.h>

#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"
#include "strings/engine/text_appending.hpp"

using engine::storage_of_array;

@implementation ZEB_T_Array (Making)

+ (ZEB_INSTANCE_OF(ZEB_T_Array *))string_with_c_string:(const char *)text
{
    return [[[self alloc] init_with_c_string:text] autorelease];
}

+ (ZEB_INSTANCE_OF(ZEB_T_Array *))string_with_NSString:(NSString *)text
{
    return [[[self alloc] init_with_NSString:text] autorelease];
}

+ (ZEB_INSTANCE_OF(ZEB_T_Array *))string_with_format:(const char *)format, ...
{
    ZEB_T_Array *const made = [[[self alloc] init] autorelease];
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
    engine::append_platform_string(self, text, engine::Fix_Report{self, _cmd});
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
