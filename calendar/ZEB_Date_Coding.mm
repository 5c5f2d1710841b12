#import "calendar/ZEB_Date_Private.h"

#include <array>

namespace
{

/// The keys of an archived date's values, in the order of their writing.
NSString *const keys[] = {@"ZEB_date_nanosecond", @"ZEB_date_second", @"ZEB_date_day", @"ZEB_date_month",
                          @"ZEB_date_year"};

using Archived = std::array<int32_t, std::size(keys)>;

Archived archived(const zeb::Date_Time &value)
{
    return {static_cast<int32_t>(value.time.nanosecond), static_cast<int32_t>(value.time.second),
            value.date.day, value.date.month, value.date.year};
}

zeb::Date_Time restored(const Archived &values)
{
    zeb::Date_Time value =
        zeb::make_date_time({values[4], values[3], values[2]}, static_cast<uint32_t>(values[1]),
                            static_cast<uint32_t>(values[0]));
    zeb::update_date(value);
    return value;
}

void write_keyed(NSCoder *coder, const Archived &values)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        [coder encodeInt32:values[i] forKey:keys[i]];
}

/// A missing key leaves what stands.
void read_keyed(NSCoder *coder, Archived &values)
{
    // The wider reader accepts every integer, where the 32-bit one throws at what does not fit.
    for (std::size_t i = 0; i < values.size(); ++i)
        if ([coder containsValueForKey:keys[i]])
            values[i] = static_cast<int32_t>([coder decodeInt64ForKey:keys[i]]);
}

} // namespace

@implementation ZEB_Date (Coding)

- (void)encode:(NSCoder *)coder
{
    const Archived values = archived(zeb::value_of(self));
    if ([coder allowsKeyedCoding])
        write_keyed(coder, values);
    else
        [coder encodeArrayOfObjCType:@encode(int32_t) count:values.size() at:values.data()];
}

- (void)decode:(NSCoder *)coder
{
    Archived values = archived(zeb::value_of(self));
    if ([coder allowsKeyedCoding])
        read_keyed(coder, values);
    else
        [coder decodeArrayOfObjCType:@encode(int32_t) count:values.size() at:values.data()];
    zeb::set_value(self, restored(values));
}

@end
