/// Decimal digits, computed eight at a time in a 64-bit word. The first digit of the text is the lowest byte
/// of the word; the stores write it first on every machine.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace zeb::engine
{

inline constexpr std::uint64_t ascii_zeros = 0x3030303030303030;

/// Returns the eight digits of a value below 10^8 as numbers 0 to 9, with leading zeros.
constexpr std::uint64_t eight_digits(std::uint32_t value) noexcept
{
    // Two groups of four digits, then four of two, then eight of one; each step divides all groups at once.
    const std::uint64_t fours = value / 10000 | std::uint64_t{value % 10000} << 32;
    const std::uint64_t hundreds = ((fours * 10486) >> 20) & 0x0000007F0000007F;
    const std::uint64_t twos = hundreds | (fours - 100 * hundreds) << 16;
    const std::uint64_t tens = ((twos * 103) >> 10) & 0x000F000F000F000F;
    return tens | (twos - 10 * tens) << 8;
}

/// Returns the number of leading zero digits (8 if all are zero).
constexpr std::uint32_t leading_zero_digits(std::uint64_t digits) noexcept
{
    return static_cast<std::uint32_t>(std::countr_zero(digits)) / 8;
}

/// Returns the number of trailing zero digits (8 if all are zero).
constexpr std::uint32_t trailing_zero_digits(std::uint64_t digits) noexcept
{
    return static_cast<std::uint32_t>(std::countl_zero(digits)) / 8;
}

/// Stores the lowest bytes of a word, the lowest first.
template <class Unsigned>
inline void store_low_bytes(char *out, std::uint64_t word) noexcept
{
    Unsigned bytes = static_cast<Unsigned>(word);
    if constexpr (std::endian::native == std::endian::big) {
        Unsigned reversed = 0;
        for (unsigned i = 0; i < sizeof bytes; ++i)
            reversed = static_cast<Unsigned>(reversed << 8 | ((bytes >> 8 * i) & 0xFF));
        bytes = reversed;
    }
    std::memcpy(out, &bytes, sizeof bytes);
}

/// Stores exactly the `count` lowest bytes (0 to 8) and returns the position after them.
inline char *store_bytes(char *out, std::uint64_t word, std::uint32_t count) noexcept
{
    // Two overlapping stores cover each range of counts without touching a byte beyond.
    if (count >= 4) {
        store_low_bytes<std::uint32_t>(out, word);
        store_low_bytes<std::uint32_t>(out + count - 4, word >> (8 * count - 32));
    } else if (count >= 2) {
        store_low_bytes<std::uint16_t>(out, word);
        store_low_bytes<std::uint16_t>(out + count - 2, word >> (8 * count - 16));
    } else if (count == 1) {
        *out = static_cast<char>(word);
    }
    return out + count;
}

/// Sixteen digits without their trailing zeros.
struct Sixteen_Digits {
    std::uint64_t first; // eight digits
    std::uint64_t last;  // eight digits
    std::uint32_t kept;  // number of digits without the trailing zeros
};

/// Returns the digits of a value below 10^16, with leading zeros.
constexpr Sixteen_Digits sixteen_digits(std::uint64_t value) noexcept
{
    const std::uint64_t first = eight_digits(static_cast<std::uint32_t>(value / 100000000));
    const std::uint64_t last = eight_digits(static_cast<std::uint32_t>(value % 100000000));
    const std::uint32_t dropped = last != 0 ? trailing_zero_digits(last) : 8 + trailing_zero_digits(first);
    return {first, last, 16 - dropped};
}

/// Stores the kept digits, at least eight, and returns the position after them.
inline char *store_eight_or_more(char *out, const Sixteen_Digits &digits) noexcept
{
    const std::uint32_t moved = digits.kept - 8; // 0 to 8
    const std::uint64_t eight_last =
        moved == 8 ? digits.last : digits.first >> 8 * moved | digits.last << 1 << (63 - 8 * moved);
    store_low_bytes<std::uint64_t>(out, digits.first | ascii_zeros);
    store_low_bytes<std::uint64_t>(out + moved, eight_last | ascii_zeros);
    return out + digits.kept;
}

/// Stores the kept digits and returns the position after them.
inline char *store_kept(char *out, const Sixteen_Digits &digits) noexcept
{
    if (digits.kept >= 8)
        return store_eight_or_more(out, digits);
    return store_bytes(out, digits.first | ascii_zeros, digits.kept);
}

} // namespace zeb::engine
