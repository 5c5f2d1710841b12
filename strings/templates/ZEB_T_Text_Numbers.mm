#import <Korvane_ZEB/ZEB_Text_Numbers.h>

#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"
#include "strings/engine/text_appending.hpp"

using engine::storage_of_array;

@implementation ZEB_T_Array (Numbers)

- (void)append_pretty_double:(double)value
{
    engine::append_pretty(storage_of_array(self), value, engine::Fix_Report{self, _cmd});
}

- (void)append_pretty_float:(float)value
{
    engine::append_pretty(storage_of_array(self), value, engine::Fix_Report{self, _cmd});
}

- (void)append_shortest_double:(double)value
{
    engine::append_shortest(storage_of_array(self), value, engine::Fix_Report{self, _cmd});
}

- (void)append_shortest_float:(float)value
{
    engine::append_shortest(storage_of_array(self), value, engine::Fix_Report{self, _cmd});
}

- (void)append_int64:(int64_t)value
{
    engine::append_integer(storage_of_array(self), value, engine::Fix_Report{self, _cmd});
}

- (void)append_uint64:(uint64_t)value
{
    engine::append_integer(storage_of_array(self), value, engine::Fix_Report{self, _cmd});
}

@end
