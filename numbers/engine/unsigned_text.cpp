#include "numbers/engine/unsigned_text.hpp"

#include "numbers/engine/digits.hpp"

namespace zeb::engine
{
namespace
{

// Branches on the magnitude before producing digits, so that a misprediction discards no work.

inline char *put_up_to_two(char *out, std::uint32_t value) noexcept
{
    const std::uint32_t tens = value / 10;
    if (tens != 0)
        *out++ = static_cast<char>('0' + tens);
    *out++ = static_cast<char>('0' + value % 10);
    return out;
}

inline char *put_three_or_four(char *out, std::uint32_t value) noexcept
{
    const std::uint64_t text = eight_digits(value) >> 32 | ascii_zeros;
    const std::uint32_t skipped = value < 1000;
    store_low_bytes<std::uint16_t>(out, text >> 8 * skipped);
    store_low_bytes<std::uint16_t>(out + 2 - skipped, text >> 16);
    return out + 4 - skipped;
}

inline char *put_five_to_eight(char *out, std::uint32_t value) noexcept
{
    const std::uint64_t digits = eight_digits(value);
    const std::uint32_t skipped = leading_zero_digits(digits);
    store_low_bytes<std::uint32_t>(out, (digits | ascii_zeros) >> 8 * skipped);
    store_low_bytes<std::uint32_t>(out + 4 - skipped, (digits | ascii_zeros) >> 32);
    return out + 8 - skipped;
}

inline char *put_all_eight(char *out, std::uint32_t value) noexcept
{
    store_low_bytes<std::uint64_t>(out, eight_digits(value) | ascii_zeros);
    return out + 8;
}

} // namespace

char *put_unsigned(char *out, std::uint32_t value) noexcept
{
    if (value < 10000)
        return value < 100 ? put_up_to_two(out, value) : put_three_or_four(out, value);
    if (value < 100000000)
        return put_five_to_eight(out, value);
    const std::uint32_t upper = value / 100000000; // 1 to 42
    return put_all_eight(put_up_to_two(out, upper), value - upper * 100000000);
}

char *put_unsigned_64(char *out, std::uint64_t value) noexcept
{
    if (value < 100000000)
        return put_unsigned(out, static_cast<std::uint32_t>(value));
    const std::uint64_t upper = value / 100000000; // below 1.9 * 10^11
    if (upper < 100000000) {
        out = put_unsigned(out, static_cast<std::uint32_t>(upper));
    } else {
        out = put_unsigned(out, static_cast<std::uint32_t>(upper / 100000000));
        out = put_all_eight(out, static_cast<std::uint32_t>(upper % 100000000));
    }
    return put_all_eight(out, static_cast<std::uint32_t>(value % 100000000));
}

char *put_signed(char *out, std::int32_t value) noexcept
{
    std::uint32_t magnitude = static_cast<std::uint32_t>(value);
    if (value < 0) {
        *out++ = '-';
        magnitude = 0 - magnitude;
    }
    return put_unsigned(out, magnitude);
}

char *put_signed_64(char *out, std::int64_t value) noexcept
{
    std::uint64_t magnitude = static_cast<std::uint64_t>(value);
    if (value < 0) {
        *out++ = '-';
        magnitude = 0 - magnitude;
    }
    return put_unsigned_64(out, magnitude);
}

char *put_two_digits_at_least(char *out, std::uint64_t value) noexcept
{
    if (value >= 100)
        return put_unsigned_64(out, value);
    out[0] = static_cast<char>('0' + value / 10);
    out[1] = static_cast<char>('0' + value % 10);
    return out + 2;
}

char *put_zero_padded(char *out, std::uint64_t value, std::uint32_t digits) noexcept
{
    char text[20];
    const std::uint32_t length = static_cast<std::uint32_t>(put_unsigned_64(text, value) - text);
    for (std::uint32_t i = length; i < digits; ++i)
        *out++ = '0';
    std::memcpy(out, text, length);
    return out + length;
}

char *write_unsigned(char *buffer, std::uint32_t value) noexcept
{
    char *end = put_unsigned(buffer, value);
    *end = '\0';
    return end;
}

} // namespace zeb::engine
