#import <Korvane_ZEB/ZEB_NSString_Conversion.h>

#import "strings/ZEB_NSString_Conversion_Private.h"
#import "strings/ZEB_Text_Private.h"

#include "arrays/engine/storage/resizing.hpp"
#include "core/engine/namespace.hpp"
#include "strings/engine/text_kernels.hpp"

#include <stdlib.h>

namespace zeb::engine
{

NSStringEncoding platform_encoding(ZEB_Encoding_Type type)
{
    static const NSStringEncoding encodings[] = {NSASCIIStringEncoding, NSASCIIStringEncoding,
                                                 NSUTF8StringEncoding, NSUnicodeStringEncoding,
                                                 NSUTF8StringEncoding};
    return type < sizeof encodings / sizeof *encodings ? encodings[type] : no_encoding;
}

NSString *string_or_nil(id text) { return [text isKindOfClass:[NSString class]] ? text : nil; }

NSData *platform_bytes(NSString *text, ZEB_Encoding_Type type)
{
    const NSStringEncoding encoding = platform_encoding(type);
    if (encoding == no_encoding)
        return nil;
    NSData *const bytes = [string_or_nil(text) dataUsingEncoding:encoding allowLossyConversion:YES];
    return [bytes length] <= UINT32_MAX ? bytes : nil;
}

} // namespace zeb::engine

namespace
{

uint32_t length_of(NSData *bytes) { return static_cast<uint32_t>([bytes length]); }

/// Returns the low halves of the units, for an NSString that frees them; null if allocation fails.
unichar *new_low_halves(std::span<const uint32_t> units)
{
    unichar *const halves = static_cast<unichar *>(malloc(units.size() * sizeof(unichar)));
    if (halves != NULL)
        engine::kernels::narrow(units.data(), units.size(), halves);
    return halves;
}

/// Returns an autoreleased NSString of the units, which must not be empty; nil if allocation fails.
template <class Made>
Made *platform_string_of(std::span<const uint32_t> units)
{
    unichar *const halves = new_low_halves(units);
    if (halves == NULL)
        return nil;
    return [[[Made alloc] initWithCharactersNoCopy:halves length:units.size() freeWhenDone:YES] autorelease];
}

/// A text too long for a string is reported as a failed allocation.
void set_units(ZEB_Wide_String *string, NSString *given, engine::Fix_Report report)
{
    NSString *const text = engine::string_or_nil(given);
    const NSUInteger length = [text length];
    if (length > UINT32_MAX)
        return report(engine::notes::allocate_failed);
    engine::set_length(engine::storage_of_array(string), static_cast<uint32_t>(length), report);
    if (length == 0 || string->count != length || engine::storage_of_array(string).is_link())
        return;
    [text getCharacters:reinterpret_cast<unichar *>(string->data) range:NSMakeRange(0, length)];
    engine::kernels::widen_in_place(string->data, length);
}

} // namespace

@implementation ZEB_Char_Vector (NSString_Conversion)

- (NSString *)NSString_value
{
    return [self NSString_value_with_encoding_type:ZEB_ENCODING_ASCII];
}

- (NSString *)NSString_utf8_value
{
    return [self NSString_value_with_encoding_type:ZEB_ENCODING_UTF8];
}

- (NSString *)NSString_path_value
{
    return [self NSString_value_with_encoding_type:ZEB_ENCODING_UTF8];
}

- (NSString *)NSString_value_with_encoding_type:(ZEB_Encoding_Type)type
{
    return [engine::new_platform_string<NSString>(data, count, type) autorelease];
}

- (NSMutableString *)NSMutableString_value_with_encoding_type:(ZEB_Encoding_Type)type
{
    return [engine::new_platform_string<NSMutableString>(data, count, type) autorelease];
}

@end

@implementation ZEB_String (NSString_Conversion)

+ (ZEB_INSTANCE_OF(ZEB_String *))string_with_NSString:(NSString *)text type:(ZEB_Encoding_Type)type
{
    return [[[self alloc] init_with_NSString:text type:type] autorelease];
}

- (id)init_with_NSString:(NSString *)text type:(ZEB_Encoding_Type)type
{
    NSData *const bytes = engine::platform_bytes(text, type);
    self = [self init_with_capacity:length_of(bytes)];
    if (self != nil && capacity != 0) {
        memcpy(data, [bytes bytes], capacity);
        count = capacity;
    }
    return self;
}

- (void)set_from_NSString:(NSString *)text type:(ZEB_Encoding_Type)type
{
    NSData *const bytes = engine::platform_bytes(text, type);
    if (length_of(bytes) != 0)
        [self set_chars:static_cast<const char *>([bytes bytes]) count:length_of(bytes)];
    else
        [self set_count:0];
}

@end

@implementation ZEB_Wide_Char_Vector (NSString_Conversion)

- (NSString *)NSString_value
{
    if (count == 0)
        return [NSString stringWithCString:"" encoding:NSASCIIStringEncoding];
    return platform_string_of<NSString>(engine::text_of(self));
}

- (NSMutableString *)NSMutableString_value
{
    if (count == 0)
        return [[[NSMutableString alloc] initWithCapacity:0] autorelease];
    return platform_string_of<NSMutableString>(engine::text_of(self));
}

@end

@implementation ZEB_Wide_String (NSString_Conversion)

- (id)init_with_NSString:(NSString *)text
{
    self = [self init];
    if (self != nil)
        set_units(self, text, engine::Fix_Report{self, _cmd});
    return self;
}

- (void)set_from_NSString:(NSString *)text
{
    set_units(self, text, engine::Fix_Report{self, _cmd});
}

@end
