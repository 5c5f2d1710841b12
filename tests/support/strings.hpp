/// The framework's strings and byte arrays, to and from those of the standard library, and bytes of the format.
#pragma once

#import <Korvane_ZEB/Korvane_ZEB.h>

#include <string>

namespace support
{

inline ZEB_String *text(const std::string &characters)
{
    return [[[ZEB_String alloc] init_as_copy_of_chars:characters.data()
                                                count:static_cast<uint32_t>(characters.size())] autorelease];
}

inline std::string text_of(ZEB_Char_Vector *string) { return {[string char_data], [string count]}; }

inline ZEB_Wide_String *wide_text(const std::u32string &units)
{
    ZEB_Wide_String *const string = [[[ZEB_Wide_String alloc] init] autorelease];
    for (const char32_t unit : units)
        [string append_wide_char:unit];
    return string;
}

inline ZEB_Byte_Array *bytes(const std::string &characters)
{
    return
        [[[ZEB_Byte_Array alloc] init_as_copy_of_bytes:reinterpret_cast<const uint8_t *>(characters.data())
                                                 count:static_cast<uint32_t>(characters.size())] autorelease];
}

inline std::string text_of(ZEB_Byte_Vector *vector)
{
    return {reinterpret_cast<const char *>([vector byte_data]), [vector count]};
}

/// Words of the binary format, as a machine of this byte order has them in memory, or one of the other.
inline std::string words(std::initializer_list<uint32_t> values, bool swapped = false)
{
    std::string made;
    for (uint32_t value : values) {
        value = swapped ? __builtin_bswap32(value) : value;
        made.append(reinterpret_cast<const char *>(&value), sizeof value);
    }
    return made;
}

/// The header of a file.
inline std::string header(bool swapped = false)
{
    return "ZEB_EXTERNAL_BINARY_FORMAT_V1000" + words({0x50AB40CD, 0, 2, 4, 2, 1, 1}, swapped) + "1111";
}

} // namespace support
