/// Dates by their fields, and what they are.
#pragma once

#include "tests/support/class_test.hpp"

inline ZEB_Date *date_of(ZEB_Gregorian_Date date, uint64_t second = 0, uint64_t nanosecond = 0)
{
    return [[[ZEB_Date alloc] init_with_date_and_time:date second:second nanosecond:nanosecond] autorelease];
}

inline std::string slash_text(ZEB_Date *date)
{
    ZEB_String *const string = support::text("");
    [date write_text:string];
    return support::text_of(string);
}
