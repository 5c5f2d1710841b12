#import <Korvane_ZEB/ZEB_Binary_Header.h>

#include "core/engine/namespace.hpp"
#include "encoding/engine/binary_header.hpp"

static_assert(ZEB_BINARY_HEADER_SIZE == engine::binary_header_size, "one size on both floors");

void ZEB_write_binary_header(ZEB_String *buffer)
{
    if ([buffer count] < ZEB_BINARY_HEADER_SIZE)
        [buffer set_length:ZEB_BINARY_HEADER_SIZE];
    if ([buffer count] >= ZEB_BINARY_HEADER_SIZE)
        engine::write_binary_header([buffer char_data]);
}

void ZEB_read_binary_header(ZEB_Char_Vector *buffer, uint8_t *needs_swap)
{
    *needs_swap = engine::binary_header_needs_swap([buffer char_data], [buffer count]) ? 1 : 0;
}
