#import <Korvane_ZEB/ZEB_Defaults.h>

#import <Korvane_ZEB/ZEB_Standard_Defaults.h>
#import <Korvane_ZEB/ZEB_Suite_Defaults.h>

#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "core/engine/one_time.hpp"

namespace
{

uint8_t suite_is_made;
ZEB_Defaults *suite_defaults;
uint8_t standard_is_made;
ZEB_Defaults *standard_defaults;

ZEB_Defaults *new_synchronised(NSUserDefaults *held)
{
    ZEB_Defaults *const made = [[ZEB_Defaults alloc] init_with_defaults:held];
    [made synchronize];
    return made;
}

} // namespace

@implementation ZEB_Defaults

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

+ (ZEB_Defaults *)shared_suite
{
    engine::run_once(suite_is_made, [] { suite_defaults = new_synchronised([ZEB_Suite_Defaults shared]); });
    return suite_defaults;
}

+ (ZEB_Defaults *)shared_standard
{
    engine::run_once(standard_is_made,
                     [] { standard_defaults = new_synchronised([ZEB_Standard_Defaults shared]); });
    return standard_defaults;
}

- (id)init_with_defaults:(NSUserDefaults *)held
{
    self = [super init];
    if (self != nil)
        defaults = [held retain];
    return self;
}

- (void)dealloc
{
    [defaults release];
    [super dealloc];
}

- (NSUserDefaults *)platform_defaults
{
    return defaults;
}

- (BOOL)synchronize
{
    return [defaults synchronize];
}

- (uint8_t)debug_logging_enabled
{
    return [defaults debug_logging_enabled];
}

- (uint8_t)bool_for_key:(ZEB_String *)key
{
    return [defaults bool_for_key:key];
}

- (void)set_bool_for_key:(uint8_t)value key:(ZEB_String *)key
{
    [defaults set_bool_for_key:value key:key];
}

- (NSInteger)integer_for_key:(ZEB_String *)key
{
    return [defaults integer_for_key:key];
}

- (void)set_integer_for_key:(NSInteger)value key:(ZEB_String *)key
{
    [defaults set_integer_for_key:value key:key];
}

- (double)double_for_key:(ZEB_String *)key
{
    return defaults != nil ? [defaults double_for_key:key] : 0; // nil answers no double on the gcc runtime
}

- (void)set_double_for_key:(double)value key:(ZEB_String *)key
{
    [defaults set_double_for_key:value key:key];
}

- (id)object_for_key:(ZEB_String *)key
{
    return [defaults object_for_key:key];
}

- (void)set_object_for_key:(id)object key:(ZEB_String *)key
{
    [defaults set_object_for_key:object key:key];
}

- (ZEB_String *)string_for_key:(ZEB_String *)key
{
    return [defaults string_for_key:key];
}

- (void)assign_string_for_key:(ZEB_String *)string key:(ZEB_String *)key
{
    [defaults assign_string_for_key:string key:key];
}

- (void)set_string_for_key:(ZEB_String *)string key:(ZEB_String *)key
{
    [defaults set_string_for_key:string key:key];
}

- (ZEB_Byte_Array *)byte_array_for_key:(ZEB_String *)key
{
    return [defaults byte_array_for_key:key];
}

- (void)set_byte_array_for_key:(ZEB_Byte_Array *)bytes key:(ZEB_String *)key
{
    [defaults set_byte_array_for_key:bytes key:key];
}

- (void)remove_object_for_key:(ZEB_String *)key
{
    [defaults remove_object_for_key:key];
}

@end
