#import "arrays/ZEB_Platform_Numbers_Private.h"

#import <objc/runtime.h>

namespace zeb::engine
{

void Number_Reader::meet(Class other)
{
    last = other;
    is_number = [other isSubclassOfClass:[NSNumber class]];
    is_decimal = [other isSubclassOfClass:[NSDecimalNumber class]];
}

bool Number_Reader::read(id object, Any_Number &number)
{
    const Class named = object_getClass(object);
    if (named != last)
        meet(named);
    if (!is_number)
        return false;
    NSNumber *const any = object;
    switch (is_decimal ? 'd' : *[any objCType]) {
    case 'c':
    case 's':
    case 'i':
    case 'l':
    case 'q':
        number.form = Number_Form::integer;
        number.integer = [any longLongValue];
        return true;
    case 'B':
    case 'C':
    case 'S':
    case 'I':
    case 'L':
    case 'Q':
        number.form = Number_Form::natural;
        number.natural = [any unsignedLongLongValue];
        return true;
    case 'f':
    case 'd':
        number.form = is_decimal ? Number_Form::decimal : Number_Form::real;
        number.real = [any doubleValue];
        return true;
    default:
        return false;
    }
}

} // namespace zeb::engine
