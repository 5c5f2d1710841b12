/// Loops over text in vectors, one version per processor generation, chosen at run time. Source and
/// destination do not overlap, unless it is said that they may.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

/// Index of the first bytes that differ also when ASCII capitals count as small letters; count if there
/// are none.
std::size_t first_difference_ignoring_ascii_case(const std::uint8_t *left, const std::uint8_t *right,
                                                 std::size_t count) noexcept;

/// Index of the first units that differ; count if there are none.
std::size_t first_difference(const std::uint32_t *left, const std::uint32_t *right,
                             std::size_t count) noexcept;

/// Sign-extends each byte to a unit.
void widen_signed(const std::int8_t *bytes, std::size_t count, std::uint32_t *units) noexcept;

/// Zero-extends the `count` 16-bit units at the start of a block of `count` 32-bit units, in place.
void widen_in_place(std::uint32_t *units, std::size_t count) noexcept;

/// Keeps the low 16 bits of each unit.
void narrow(const std::uint32_t *units, std::size_t count, std::uint16_t *narrowed) noexcept;

/// Widen, or narrow, the ASCII at the front, and return how many bytes were converted: all of the ASCII, or
/// all but what falls into the vector that holds something else.
std::size_t widen_ascii(const std::uint8_t *bytes, std::size_t count, std::uint32_t *units) noexcept;
std::size_t narrow_ascii(const std::uint32_t *units, std::size_t count, std::uint8_t *bytes) noexcept;

/// How many bytes of UTF-8 begin a character, and how many of these begin one of four bytes.
struct Utf8_Starts {
    std::size_t all;
    std::size_t of_four;
};
Utf8_Starts count_utf8_starts(const std::uint8_t *bytes, std::size_t count) noexcept;

/// How many units lie at or above each of the bounds.
struct Units_Above {
    std::size_t at_0x80;
    std::size_t at_0x800;
    std::size_t at_0x10000; ///< not counted among low halves
    std::size_t surrogates; ///< counted among low halves alone
};

/// Counts the units as they are, or the low 16 bits of each.
Units_Above count_units_above(const std::uint32_t *units, std::size_t count) noexcept;
Units_Above count_low_halves_above(const std::uint32_t *units, std::size_t count) noexcept;

/// All of these, compiled for one processor generation.
struct Text_Kernels {
    decltype(&kernels::first_difference_ignoring_ascii_case) first_difference_ignoring_ascii_case;
    decltype(&kernels::first_difference) first_difference;
    decltype(&kernels::widen_signed) widen_signed;
    decltype(&kernels::widen_in_place) widen_in_place;
    decltype(&kernels::narrow) narrow;
    decltype(&kernels::widen_ascii) widen_ascii;
    decltype(&kernels::narrow_ascii) narrow_ascii;
    decltype(&kernels::count_utf8_starts) count_utf8_starts;
    decltype(&kernels::count_units_above) count_units_above;
    decltype(&kernels::count_low_halves_above) count_low_halves_above;
};

} // namespace zeb::engine::kernels
