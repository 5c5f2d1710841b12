#include "encoding/engine/hexadecimal.hpp"

#include <array>
#include <bit>
#include <cstring>

namespace zeb::engine
{
namespace
{

constexpr char digit_characters[] = "0123456789abcdef";

/// A byte's digits and the separator, four characters of which the last may not count.
struct Byte_Text {
    char text[4];
    std::uint8_t length;
};

constexpr std::array<Byte_Text, 256> make_byte_texts() noexcept
{
    std::array<Byte_Text, 256> texts{};
    for (unsigned value = 0; value < 256; ++value) {
        Byte_Text &row = texts[value];
        if (value >= 16)
            row.text[row.length++] = digit_characters[value / 16];
        row.text[row.length++] = digit_characters[value % 16];
        row.text[row.length++] = ',';
        row.text[row.length++] = ' ';
    }
    return texts;
}

constexpr std::array<Byte_Text, 256> byte_texts = make_byte_texts();

/// Writes a list whose values `put` writes, each with the separator behind it, the last of which becomes "}".
template <class Value, class Put>
char *put_list(char *out, const Value *values, std::size_t n, Put put) noexcept
{
    *out++ = '{';
    for (std::size_t i = 0; i + 1 < n; ++i)
        out = put(out, values[i]);
    // The room may end with the list.
    char last[24];
    const std::size_t length = static_cast<std::size_t>(put(last, values[n - 1]) - last) - 2;
    std::memcpy(out, last, length);
    out[length] = '}';
    return out + length + 1;
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
        const Byte_Text &row = byte_texts[value];
        std::memcpy(at, row.text, sizeof row.text);
        return at + row.length;
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
