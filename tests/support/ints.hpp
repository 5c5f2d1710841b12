/// Arrays of integers, by their elements.
#pragma once

#import <Korvane_ZEB/Korvane_ZEB.h>

#include <initializer_list>

namespace support
{

inline ZEB_Int_Array *ints(std::initializer_list<int32_t> values)
{
    return [[[ZEB_Int_Array alloc] init_as_copy_of_ints:values.begin()
                                                  count:static_cast<uint32_t>(values.size())] autorelease];
}

} // namespace support
