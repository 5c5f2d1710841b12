#import <Korvane_ZEB/ZEB_Default_Values.h>

#import <Korvane_ZEB/ZEB_Byte_Array.h>
#import <Korvane_ZEB/ZEB_Defaults_Start_Up.h>
#import <Korvane_ZEB/ZEB_NSString_Conversion.h>

#import "core/ZEB_Report_Private.h"
#import "runtime/ZEB_Default_Values_Private.h"

#include "core/engine/c_locale.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/platform_call.hpp"
#include "runtime/engine/runtime_notes.hpp"

namespace zeb::engine
{
namespace
{

constexpr uint32_t deepest = 64;

bool is_property_list(id object, uint32_t depth);

bool are_property_lists(NSEnumerator *objects, uint32_t depth)
{
    for (id each = [objects nextObject]; each != nil; each = [objects nextObject])
        if (!is_property_list(each, depth))
            return false;
    return true;
}

bool are_strings(NSEnumerator *objects)
{
    for (id each = [objects nextObject]; each != nil; each = [objects nextObject])
        if (![each isKindOfClass:[NSString class]])
            return false;
    return true;
}

bool is_scalar(id object)
{
    return [object isKindOfClass:[NSString class]] || [object isKindOfClass:[NSNumber class]] ||
           [object isKindOfClass:[NSData class]] || [object isKindOfClass:[NSDate class]];
}

/// GNUstep takes a dictionary with other keys than strings, and then saves nothing at all.
bool is_property_list(id object, uint32_t depth)
{
    if (is_scalar(object))
        return true;
    if (depth == deepest)
        return false;
    if ([object isKindOfClass:[NSArray class]])
        return are_property_lists([object objectEnumerator], depth + 1);
    return [object isKindOfClass:[NSDictionary class]] && are_strings([object keyEnumerator]) &&
           are_property_lists([object objectEnumerator], depth + 1);
}

} // namespace

id property_list_or_nil(id object) { return is_property_list(object, 0) ? object : nil; }

NSString *text_of_number(NSNumber *number)
{
    const C_Locale_Scope scope;
    return [number stringValue];
}

} // namespace zeb::engine

namespace
{

/// Returns nil for an empty key too, which the platform does not take.
NSString *platform_text(id string)
{
    return [string isKindOfClass:[ZEB_Char_Vector class]] ? [string NSString_utf8_value] : nil;
}

NSString *platform_key(ZEB_String *key)
{
    NSString *const text = platform_text(key);
    return [text length] != 0 ? text : nil;
}

/// Returns the value of the key if it is of the class; nil otherwise.
template <class Value>
Value *value_of_class(NSUserDefaults *defaults, ZEB_String *key)
{
    NSString *const name = platform_key(key);
    const id value = name != nil ? [defaults objectForKey:name] : nil;
    return [value isKindOfClass:[Value class]] ? value : nil;
}

/// Calls `change` with the platform's key; the platform throws for what it cannot keep.
template <class Change>
void change_key(engine::Fix_Report report, ZEB_String *key, Change change)
{
    NSString *const name = platform_key(key);
    if (name == nil)
        report(engine::notes::unusable_key);
    else if (!engine::runs_through([&] { change(name); }))
        report(engine::notes::unusable_value);
}

/// A value that is nil is one that cannot be stored.
void store(engine::Fix_Report report, NSUserDefaults *defaults, id value, ZEB_String *key)
{
    if (value == nil)
        return report(engine::notes::unusable_value);
    change_key(report, key, [=](NSString *name) { [defaults setObject:value forKey:name]; });
}

NSData *platform_data(id bytes)
{
    return [bytes isKindOfClass:[ZEB_Byte_Vector class]]
               ? [NSData dataWithBytes:[bytes byte_data] length:[static_cast<ZEB_Byte_Vector *>(bytes) count]]
               : nil;
}

ZEB_Byte_Array *byte_array_of(NSData *data)
{
    if (data == nil || [data length] > UINT32_MAX)
        return nil;
    return [[[ZEB_Byte_Array alloc] init_as_copy_of_bytes:static_cast<const uint8_t *>([data bytes])
                                                    count:static_cast<uint32_t>([data length])] autorelease];
}

} // namespace

@implementation NSUserDefaults (ZEB_Default_Values)

- (uint8_t)debug_logging_enabled
{
    ZC_start_up_debug_logging();
    return [self boolForKey:ZC_debug_logging_key()] ? 1 : 0;
}

- (uint8_t)bool_for_key:(ZEB_String *)key
{
    NSString *const name = platform_key(key);
    return name != nil && [self boolForKey:name] ? 1 : 0;
}

- (void)set_bool_for_key:(uint8_t)value key:(ZEB_String *)key
{
    change_key(engine::Fix_Report{self, _cmd}, key,
               [=](NSString *name) { [self setBool:value != 0 forKey:name]; });
}

- (NSInteger)integer_for_key:(ZEB_String *)key
{
    NSString *const name = platform_key(key);
    return name != nil ? [self integerForKey:name] : 0;
}

- (void)set_integer_for_key:(NSInteger)value key:(ZEB_String *)key
{
    change_key(engine::Fix_Report{self, _cmd}, key,
               [=](NSString *name) { [self setInteger:value forKey:name]; });
}

- (double)double_for_key:(ZEB_String *)key
{
    const id value = [self object_for_key:key];
    return [value isKindOfClass:[NSNumber class]] || [value isKindOfClass:[NSString class]]
               ? [value doubleValue]
               : 0;
}

- (void)set_double_for_key:(double)value key:(ZEB_String *)key
{
    store(engine::Fix_Report{self, _cmd}, self, engine::text_of_number([NSNumber numberWithDouble:value]),
          key);
}

- (id)object_for_key:(ZEB_String *)key
{
    return value_of_class<NSObject>(self, key);
}

- (void)set_object_for_key:(id)object key:(ZEB_String *)key
{
    store(engine::Fix_Report{self, _cmd}, self, engine::property_list_or_nil(object), key);
}

- (ZEB_String *)string_for_key:(ZEB_String *)key
{
    NSString *const name = platform_key(key);
    NSString *const text = name != nil ? [self stringForKey:name] : nil;
    return text != nil ? [ZEB_String string_with_NSString:text type:ZEB_ENCODING_UTF8] : nil;
}

- (void)assign_string_for_key:(ZEB_String *)string key:(ZEB_String *)key
{
    NSString *const name = platform_key(key);
    [string set_from_NSString:name != nil ? [self stringForKey:name] : nil type:ZEB_ENCODING_UTF8];
}

- (void)set_string_for_key:(ZEB_String *)string key:(ZEB_String *)key
{
    store(engine::Fix_Report{self, _cmd}, self, platform_text(string), key);
}

- (ZEB_Byte_Array *)byte_array_for_key:(ZEB_String *)key
{
    return byte_array_of(value_of_class<NSData>(self, key));
}

- (void)set_byte_array_for_key:(ZEB_Byte_Array *)bytes key:(ZEB_String *)key
{
    store(engine::Fix_Report{self, _cmd}, self, platform_data(bytes), key);
}

- (void)remove_object_for_key:(ZEB_String *)key
{
    change_key(engine::Fix_Report{self, _cmd}, key, [=](NSString *name) { [self removeObjectForKey:name]; });
}

@end
