#import <Korvane_ZEB/ZEB_Text_Coding.h>

#import "encoding/ZEB_Archived_Records_Private.h"

#include "core/engine/namespace.hpp"

#include <array>
#include <cstring>

namespace
{

NSString *const text_key = @"ZEB_text";
NSString *const base_key = @"ZEB_exponent_base";
NSString *const reference_key = @"ZEB_zero_reference";

/// The fields of a number format that are whole numbers, and their keys.
struct Whole_Field {
    uint32_t &value;
    NSString *key;
};

std::array<Whole_Field, 5> whole_fields(ZEB_Number_Format *format)
{
    return {{{format->precision, @"ZEB_precision"},
             {format->result_kind, @"ZEB_result_kind"},
             {format->error_code, @"ZEB_error_code"},
             {format->range.start, @"ZEB_range_start"},
             {format->range.end, @"ZEB_range_end"}}};
}

void archive_double(NSCoder *coder, NSString *key, double value)
{
    int64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    engine::archive_integer(coder, key, bits);
}

bool unarchive_double(NSCoder *coder, NSString *key, double &value)
{
    int64_t bits;
    const bool is_there = engine::unarchive_integer(coder, key, bits);
    if (is_there)
        std::memcpy(&value, &bits, sizeof value);
    return is_there;
}

void archive_fields(ZEB_Number_Format *format, NSCoder *coder)
{
    for (const Whole_Field &field : whole_fields(format))
        engine::archive_integer(coder, field.key, field.value);
    archive_double(coder, base_key, format->exponent_base);
    archive_double(coder, reference_key, format->zero_reference);
}

bool unarchive_fields(ZEB_Number_Format *format, NSCoder *coder)
{
    bool are_there = true;
    for (const Whole_Field &field : whole_fields(format))
        are_there = are_there && engine::unarchive_unsigned(coder, field.key, field.value);
    return are_there && unarchive_double(coder, base_key, format->exponent_base) &&
           unarchive_double(coder, reference_key, format->zero_reference);
}

bool unarchive_text(ZEB_Wide_String *text, NSCoder *coder, engine::Fix_Report report)
{
    if (text == nil)
        report(engine::notes::allocate_failed);
    return text != nil && engine::unarchive_record(engine::storage_of_array(text), coder, text_key, report);
}

bool is_unarchived(ZEB_Number_Format *format, NSCoder *coder, engine::Fix_Report report)
{
    if (unarchive_fields(format, coder))
        return unarchive_text(format->text, coder, report);
    report(engine::notes::archive_incomplete);
    return false;
}

void archive_text(ZEB_Wide_String *text, NSCoder *coder, engine::Fix_Report report)
{
    ZEB_Wide_String *const some = text != nil ? text : [ZEB_Wide_String array_with_capacity:0];
    engine::archive_record(engine::storage_of_vector(some), coder, text_key, report);
}

} // namespace

@implementation ZEB_Number_Format (Coding)

+ (BOOL)supportsSecureCoding
{
    return YES;
}

- (void)encodeWithCoder:(NSCoder *)coder
{
    archive_fields(self, coder);
    archive_text(text, coder, engine::Fix_Report{self, _cmd});
}

- (id)initWithCoder:(NSCoder *)coder
{
    self = [self init];
    if (self == nil || is_unarchived(self, coder, engine::Fix_Report{self, _cmd}))
        return self;
    [self release];
    return nil;
}

@end

@implementation ZEB_Message_Text (Coding)

+ (BOOL)supportsSecureCoding
{
    return YES;
}

- (void)encodeWithCoder:(NSCoder *)coder
{
    archive_text(text, coder, engine::Fix_Report{self, _cmd});
}

- (id)initWithCoder:(NSCoder *)coder
{
    self = [self init];
    if (self == nil || unarchive_text(text, coder, engine::Fix_Report{self, _cmd}))
        return self;
    [self release];
    return nil;
}

@end
