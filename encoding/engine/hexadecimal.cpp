#include "encoding/engine/hexadecimal.hpp"

#include <array>
#include <bit>
#include <cstring>

namespace zeb::engine
{
namespace
{

constexpr char digit_characters[] = "0123456789abcdef";

/// For each byte its digits and the separator, four characters of which the last may not count.
using Byte_Texts = std::array<std::array<char, 4>, 256>;

constexpr Byte_Texts make_byte_texts() noexcept
{
    Byte_Texts texts{};
    for (unsigned value = 0; value < 256; ++value) {
        const char high = digit_characters[value / 16], low = digit_characters[value % 16];
        texts[value] = value >= 16 ? std::array{high, low, ',', ' '} : std::array{low, ',', ' ', ' '};
    }
    return texts;
}

constexpr Byte_Texts byte_texts = make_byte_texts();

/// Writes a list whose values `put` writes, each with the separator after it, the last of which becomes "}".
template <class Value, class Put>
char *put_list(char *out, const Value *values, std::size_t n, Put put) noexcept
{
    *out++ = '{';
    for (std::size_t i = 0; i + 1 < n; ++i)
        out = put(out, values[i]);
    if (n != 0) {
        // The room may end with the list.
        char last[24];
        const std::size_t length = static_cast<std::size_t>(put(last, values[n - 1]) - last) - 2;
        std::memcpy(out, last, length);
        out += length;
    }
    *out = '}';
    return out + 1;
}

char *put_separated(char *out, std::uint64_t value) noexcept
{
    out = put_hex_digits(out, value);
    *out++ = ',';
    *out++ = ' ';
    return out;
}

} // namespace

char *put_hex_digits(char *out, std::uint64_t value) noexcept
{
    const int digits = (static_cast<int>(std::bit_width(value | 1)) + 3) / 4;
    for (int at = digits; at-- > 0; value >>= 4)
        out[at] = digit_characters[value & 15];
    return out + digits;
}

char *put_hex_list(char *out, const std::uint8_t *values, std::size_t n) noexcept
{
    return put_list(out, values, n, [](char *at, std::uint8_t value) {
        // The length is not read from the table, for the next byte waits for it.
        std::memcpy(at, byte_texts[value].data(), 4);
        return at + (value >= 16 ? 4 : 3);
    });
}

char *put_hex_list(char *out, const std::uint32_t *values, std::size_t n) noexcept
{
    return put_list(out, values, n, [](char *at, std::uint32_t value) { return put_separated(at, value); });
}

char *put_hex_list(char *out, void *const *values, std::size_t n) noexcept
{
    return put_list(out, values, n, [](char *at, const void *value) {
        return put_separated(at, reinterpret_cast<std::uintptr_t>(value));
    });
}

} // namespace zeb::engine
