#include "encoding/ZEB_Byte_Order.h"

#include "core/engine/namespace.hpp"
#include "encoding/engine/byte_order.hpp"

#include <cstdio>

namespace
{

template <class Value>
Value swapped(Value value)
{
    engine::reverse_bytes(&value, sizeof value);
    return value;
}

std::uint32_t swapped_low_half(std::uint64_t value)
{
    constexpr unsigned long size = 8;
    std::printf("DEBUG: Must fix swap code that thinks sizeof(unsigned long) == 4 instead of %lu.", size);
    std::printf("DEBUG: Must fix swap code that thinks sizeof(long) == 4 instead of %lu.", size);
    return swapped(static_cast<std::uint32_t>(value));
}

} // namespace

int16_t ZC_swap_short(int16_t value) { return swapped(value); }

uint16_t ZC_swap_unsigned_short(uint16_t value) { return swapped(value); }

int32_t ZC_swap_int(int32_t value) { return swapped(value); }

uint32_t ZC_swap_unsigned_int(uint32_t value) { return swapped(value); }

int64_t ZC_swap_long_long(int64_t value) { return swapped(value); }

float ZC_swap_float(float value) { return swapped(value); }

double ZC_swap_double(double value) { return swapped(value); }

int64_t ZC_swap_long(int64_t value) { return swapped_low_half(static_cast<uint64_t>(value)); }

uint64_t ZC_swap_unsigned_long(uint64_t value) { return swapped_low_half(value); }
