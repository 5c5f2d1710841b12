#import "series.h"

#include <string.h>

namespace
{

bool are_identical(ZEB_Double_Array *left, ZEB_Double_Array *right)
{
    const size_t size = [left count] * sizeof(double);
    return [left count] == [right count] &&
           (size == 0 || memcmp([left double_data], [right double_data], size) == 0);
}

} // namespace

@implementation Series

- (id)init
{
    self = [super init];
    if (self != nil) {
        instants = [[ZEB_Double_Array alloc] init];
        values = [[ZEB_Double_Array alloc] init];
        value_name = [[ZEB_String alloc] init];
    }
    return self;
}

- (void)dealloc
{
    [instants release];
    [values release];
    [value_name release];
    [super dealloc];
}

- (ZEB_Double_Array *)instants
{
    return instants;
}

- (ZEB_Double_Array *)values
{
    return values;
}

- (ZEB_String *)value_name
{
    return value_name;
}

- (BOOL)is_identical_to:(Series *)other
{
    return are_identical(instants, [other instants]) && are_identical(values, [other values]);
}

@end
