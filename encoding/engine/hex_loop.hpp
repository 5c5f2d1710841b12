/// The plain loop of the hexadecimal kernels.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zeb::engine::plain
{

inline constexpr char hex_digits[] = "0123456789abcdef";

/// For each byte its digits and the separator, four characters of which the last may not count.
using Byte_Texts = std::array<std::array<char, 4>, 256>;

constexpr Byte_Texts make_byte_texts() noexcept
{
    Byte_Texts texts{};
    for (unsigned value = 0; value < 256; ++value) {
        const char high = hex_digits[value / 16], low = hex_digits[value % 16];
        texts[value] = value >= 16 ? std::array{high, low, ',', ' '} : std::array{low, ',', ' ', ' '};
    }
    return texts;
}

inline constexpr Byte_Texts byte_texts = make_byte_texts();

/// Writes the digits of each value and ", ". A character behind the last one may be written.
inline char *put_separated_bytes(char *out, const std::uint8_t *values, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i) {
        // The length is not read from the table, for the next byte waits for it.
        std::memcpy(out, byte_texts[values[i]].data(), 4);
        out += values[i] >= 16 ? 4 : 3;
    }
    return out;
}

} // namespace zeb::engine::plain
