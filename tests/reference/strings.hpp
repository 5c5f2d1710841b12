/// The forms of Unicode by their definitions, one character at a time, as slow as that is.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace reference
{

using std::uint32_t;

/// Whether it is a code point that is no surrogate.
inline bool is_scalar_value(uint32_t code_point)
{
    return code_point < 0xD800 || (code_point >= 0xE000 && code_point <= 0x10FFFF);
}

inline std::string utf8_of(uint32_t code_point)
{
    if (code_point < 0x80)
        return {static_cast<char>(code_point)};
    std::string bytes(code_point < 0x800 ? 2 : code_point < 0x10000 ? 3 : 4, ' ');
    for (size_t i = bytes.size() - 1; i > 0; --i, code_point /= 64)
        bytes[i] = static_cast<char>(0x80 + code_point % 64);
    // As many of the high bits are set as there are bytes.
    bytes[0] = static_cast<char>((0xFF00 >> bytes.size()) + code_point);
    return bytes;
}

inline std::vector<uint32_t> utf16_of(uint32_t code_point)
{
    if (code_point < 0x10000)
        return {code_point};
    return {0xD800 + (code_point - 0x10000) / 1024, 0xDC00 + (code_point - 0x10000) % 1024};
}

} // namespace reference
