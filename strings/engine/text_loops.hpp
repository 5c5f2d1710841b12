/// The kernels of text as plain loops: where there are no vectors, and for what remains after the last one.
/// Each starts at the index `from`, up to which the work is done.
#pragma once

#include "strings/engine/text_kernels.hpp"

#include <cstring>

namespace zeb::engine::plain
{

inline std::uint8_t small_ascii_letter(std::uint8_t byte) noexcept
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<std::uint8_t>(byte | 0x20) : byte;
}

inline std::size_t first_difference_ignoring_ascii_case(const std::uint8_t *left, const std::uint8_t *right,
                                                        std::size_t count, std::size_t from = 0) noexcept
{
    while (from < count && small_ascii_letter(left[from]) == small_ascii_letter(right[from]))
        ++from;
    return from;
}

inline std::size_t first_difference(const std::uint32_t *left, const std::uint32_t *right, std::size_t count,
                                    std::size_t from = 0) noexcept
{
    while (from < count && left[from] == right[from])
        ++from;
    return from;
}

inline void widen_signed(const std::int8_t *bytes, std::size_t count, std::uint32_t *units,
                         std::size_t from = 0) noexcept
{
    for (; from < count; ++from)
        units[from] = static_cast<std::uint32_t>(std::int32_t{bytes[from]});
}

/// Works from the end, so that no unit is overwritten before it is read.
inline void widen_in_place(std::uint32_t *units, std::size_t count, std::size_t from = 0) noexcept
{
    for (std::size_t end = count; end > from; --end) {
        std::uint16_t unit;
        std::memcpy(&unit, reinterpret_cast<const char *>(units) + (end - 1) * sizeof unit, sizeof unit);
        units[end - 1] = unit;
    }
}

inline void narrow(const std::uint32_t *units, std::size_t count, std::uint16_t *narrowed,
                   std::size_t from = 0) noexcept
{
    for (; from < count; ++from)
        narrowed[from] = static_cast<std::uint16_t>(units[from]);
}

inline std::size_t widen_ascii(const std::uint8_t *bytes, std::size_t count, std::uint32_t *units,
                               std::size_t from = 0) noexcept
{
    for (; from < count && bytes[from] < 0x80; ++from)
        units[from] = bytes[from];
    return from;
}

inline std::size_t narrow_ascii(const std::uint32_t *units, std::size_t count, std::uint8_t *bytes,
                                std::size_t from = 0) noexcept
{
    for (; from < count && units[from] < 0x80; ++from)
        bytes[from] = static_cast<std::uint8_t>(units[from]);
    return from;
}

inline kernels::Utf8_Starts count_utf8_starts(const std::uint8_t *bytes, std::size_t count,
                                              kernels::Utf8_Starts starts = {}, std::size_t from = 0) noexcept
{
    for (; from < count; ++from) {
        starts.all += (bytes[from] & 0xC0) != 0x80;
        starts.of_four += bytes[from] >= 0xF0;
    }
    return starts;
}

inline kernels::Units_Above count_units_above(const std::uint32_t *units, std::size_t count,
                                              kernels::Units_Above above = {}, std::size_t from = 0) noexcept
{
    for (; from < count; ++from) {
        above.at_0x80 += units[from] >= 0x80;
        above.at_0x800 += units[from] >= 0x800;
        above.at_0x10000 += units[from] >= 0x10000;
    }
    return above;
}

inline kernels::Units_Above count_low_halves_above(const std::uint32_t *units, std::size_t count,
                                                   kernels::Units_Above above = {},
                                                   std::size_t from = 0) noexcept
{
    for (; from < count; ++from) {
        const std::uint32_t unit = units[from] & 0xFFFF;
        above.at_0x80 += unit >= 0x80;
        above.at_0x800 += unit >= 0x800;
        above.surrogates += (unit & 0xF800) == 0xD800;
    }
    return above;
}

} // namespace zeb::engine::plain
