#include "encoding/ZEB_Hexadecimal.h"

#include "core/engine/namespace.hpp"
#include "encoding/engine/hexadecimal.hpp"

#include <cinttypes>
#include <cstdio>

namespace
{

char *terminated(char *end)
{
    *end = '\0';
    return end;
}

} // namespace

void ZEB_format_hex32(char *text, uint32_t value)
{
    constexpr std::size_t size = 9;
    std::snprintf(text, size, "%08" PRIX32, value);
}

void ZEB_scan_hex32(uint32_t *value, const char *text) { std::sscanf(text, "%08" SCNx32, value); }

char *ZEB_hex_digits32(char *text, uint32_t value) { return terminated(engine::put_hex_digits(text, value)); }

char *ZEB_hex_digits64(char *text, uint64_t value) { return terminated(engine::put_hex_digits(text, value)); }
