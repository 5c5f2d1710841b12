#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace zeb::engine
{

/// Decimal digits made eight at a time in one 64-bit word. In such a word the first digit of the text is
/// always the lowest byte; the stores put it into memory first on every machine.

inline constexpr std::uint64_t ascii_zeros = 0x3030303030303030;

/// The eight digits of a value below 10^8 as numbers 0 to 9, leading zeros included.
constexpr std::uint64_t eight_digits(std::uint32_t value) noexcept
{
    // Two groups of four digits, then four of two, then eight of one; each step divides all groups at once.
    const std::uint64_t fours = value / 10000 | std::uint64_t{value % 10000} << 32;
    const std::uint64_t hundreds = ((fours * 10486) >> 20) & 0x0000007F0000007F;
    const std::uint64_t twos = hundreds | (fours - 100 * hundreds) << 16;
    const std::uint64_t tens = ((twos * 103) >> 10) & 0x000F000F000F000F;
    return tens | (twos - 10 * tens) << 8;
}

/// How many zero digits the word begins with (8 when all are).
constexpr std::uint32_t leading_zero_digits(std::uint64_t digits) noexcept
{
    return static_cast<std::uint32_t>(std::countr_zero(digits)) / 8;
}

/// How many zero digits the word ends with (8 when all are).
constexpr std::uint32_t trailing_zero_digits(std::uint64_t digits) noexcept
{
    return static_cast<std::uint32_t>(std::countl_zero(digits)) / 8;
}

/// Stores the lowest bytes of a word, the lowest one first.
template <typename Unsigned>
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
    // Two stores that overlap reach every count of a class without touching a byte beyond.
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

/// Sixteen digits of which the zeros at the end are not wanted.
struct Sixteen_Digits {
    std::uint64_t first; // eight digits
    std::uint64_t last;  // eight digits
    std::uint32_t kept;  // how many digits are left without the zeros at the end
};

/// The digits of a value below 10^16, leading zeros included.
constexpr Sixteen_Digits sixteen_digits(std::uint64_t value) noexcept
{
    const std::uint64_t first = eight_digits(static_cast<std::uint32_t>(value / 100000000));
    const std::uint64_t last = eight_digits(static_cast<std::uint32_t>(value % 100000000));
    const std::uint32_t dropped = last != 0 ? trailing_zero_digits(last) : 8 + trailing_zero_digits(first);
    return {first, last, 16 - dropped};
}

/// Stores the digits that are kept, of which there must be eight at least, and returns the position after
/// them.
inline char *store_eight_or_more(char *out, const Sixteen_Digits &digits) noexcept
{
    const std::uint32_t moved = digits.kept - 8; // 0 to 8
    const std::uint64_t eight_last =
        moved == 8 ? digits.last : digits.first >> 8 * moved | digits.last << 1 << (63 - 8 * moved);
    store_low_bytes<std::uint64_t>(out, digits.first | ascii_zeros);
    store_low_bytes<std::uint64_t>(out + moved, eight_last | ascii_zeros);
    return out + digits.kept;
}

/// Stores the digits that are kept and returns the position after them.
inline char *store_kept(char *out, const Sixteen_Digits &digits) noexcept
{
    if (digits.kept >= 8)
        return store_eight_or_more(out, digits);
    return store_bytes(out, digits.first | ascii_zeros, digits.kept);
}

} // namespace zeb::engine
