#import "calendar/ZEB_Date_Private.h"
#import "core/ZEB_Report_Private.h"

#include "core/engine/archive_notes.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/platform_call.hpp"

#include <array>

namespace
{

/// The keys of an archived date's values, in the order of writing.
NSString *const keys[] = {@"ZEB_date_nanosecond", @"ZEB_date_second", @"ZEB_date_day", @"ZEB_date_month",
                          @"ZEB_date_year"};
NSString *const day_number_key = @"ZEB_date_julian_day";

using Archived = std::array<int32_t, std::size(keys)>;

Archived archived(const engine::Date_Time &value)
{
    return {static_cast<int32_t>(value.time.nanosecond), static_cast<int32_t>(value.time.second),
            value.date.day, value.date.month, value.date.year};
}

/// Returns the archived fields with the day number computed from them.
engine::Date_Time restored(const Archived &values)
{
    return engine::make_date_time({values[4], values[3], values[2]}, static_cast<uint32_t>(values[1]),
                                  static_cast<uint32_t>(values[0]));
}

void write_keyed(NSCoder *coder, const Archived &values)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        [coder encodeInt32:values[i] forKey:keys[i]];
}

/// Leaves `value` unchanged if the key is missing.
void read_key(NSCoder *coder, NSString *key, int32_t &value)
{
    // The 64-bit reader accepts every integer; the 32-bit one throws if the value does not fit.
    if ([coder containsValueForKey:key])
        value = static_cast<int32_t>([coder decodeInt64ForKey:key]);
}

void read_keyed(NSCoder *coder, Archived &values)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        read_key(coder, keys[i], values[i]);
}

/// Returns what `encode:` wrote; fields of a missing key are those of `date`.
engine::Date_Time read_date(ZEB_Date *date, NSCoder *coder)
{
    Archived values = archived(engine::value_of(date));
    if ([coder allowsKeyedCoding])
        read_keyed(coder, values);
    else
        [coder decodeArrayOfObjCType:@encode(int32_t) count:values.size() at:values.data()];
    return restored(values);
}

/// Writes the day number, because the five values do not always determine it: not for a date never set, or
/// far out.
void write_day_number(NSCoder *coder, int32_t julian_day)
{
    if ([coder allowsKeyedCoding])
        [coder encodeInt32:julian_day forKey:day_number_key];
    else
        [coder encodeValueOfObjCType:@encode(int32_t) at:&julian_day];
}

void read_day_number(NSCoder *coder, int32_t &julian_day)
{
    if ([coder allowsKeyedCoding])
        read_key(coder, day_number_key, julian_day);
    else
        [coder decodeValueOfObjCType:@encode(int32_t) at:&julian_day];
}

/// Reads by `read`; false, after a report and with the date unchanged, where the platform throws: the archive
/// has another kind of value in the place of one, or ends before it.
template <class Read>
bool changes(ZEB_Date *date, SEL operation, Read read)
{
    engine::Date_Time value = engine::value_of(date);
    const bool is_through = engine::runs_through([&] { read(value); });
    if (is_through)
        engine::set_value(date, value);
    else
        engine::Fix_Report{date, operation}(engine::notes::archive_incomplete);
    return is_through;
}

} // namespace

@implementation ZEB_Date (Coding)

+ (BOOL)supportsSecureCoding
{
    return YES;
}

- (void)encode:(NSCoder *)coder
{
    const Archived values = archived(engine::value_of(self));
    if ([coder allowsKeyedCoding])
        write_keyed(coder, values);
    else
        [coder encodeArrayOfObjCType:@encode(int32_t) count:values.size() at:values.data()];
}

- (void)decode:(NSCoder *)coder
{
    changes(self, _cmd, [=](engine::Date_Time &value) {
        value = read_date(self, coder);
        engine::update_date(value);
    });
}

- (void)encodeWithCoder:(NSCoder *)coder
{
    [self encode:coder];
    write_day_number(coder, julian_day);
}

- (id)initWithCoder:(NSCoder *)coder
{
    self = [self init];
    const auto read = [=](engine::Date_Time &value) {
        value = read_date(self, coder);
        read_day_number(coder, value.julian_day);
    };
    if (self == nil || changes(self, _cmd, read))
        return self;
    [self release];
    return nil;
}

@end
