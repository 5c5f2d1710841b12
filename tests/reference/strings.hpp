/// The forms of Unicode by their definitions, one character at a time, as slow as that is.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
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

/// The number in the payload bits of one sequence of bytes, well-formed or not.
inline uint32_t payload_of(std::string_view sequence)
{
    const unsigned mask = sequence.size() == 1 ? 0x7F : 0x7F >> sequence.size();
    uint32_t payload = static_cast<unsigned char>(sequence[0]) & mask;
    for (const char c : sequence.substr(1))
        payload = payload * 64 + static_cast<unsigned char>(c) % 64;
    return payload;
}

/// Whether the text is sequences that encode scalar values, each as that value is encoded.
inline bool is_valid_utf8(std::string_view text)
{
    for (size_t length = 1; length <= 4 && length <= text.size(); ++length) {
        const std::string_view sequence = text.substr(0, length);
        const uint32_t payload = payload_of(sequence);
        if (is_scalar_value(payload) && utf8_of(payload) == sequence)
            return is_valid_utf8(text.substr(length));
    }
    return text.empty();
}

} // namespace reference
