/// Sorting bytes by counting them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zeb::engine
{

/// Sorts ascending, as unsigned bytes with `bias` 0 and as signed ones with 0x80. The bytes of each value
/// are counted, then rewritten.
inline void counting_sort(std::uint8_t *bytes, std::size_t count, std::uint8_t bias) noexcept
{
    // Several tables, so that a run of one value does not stall on its own counter.
    std::array<std::array<std::uint32_t, 256>, 4> seen{};
    std::size_t index = 0;
    for (; index + 8 <= count; index += 8) {
        std::uint64_t eight;
        std::memcpy(&eight, bytes + index, sizeof eight);
        for (unsigned half = 0; half < 64; half += 32) {
            ++seen[0][eight >> half & 0xFF];
            ++seen[1][eight >> (half + 8) & 0xFF];
            ++seen[2][eight >> (half + 16) & 0xFF];
            ++seen[3][eight >> (half + 24) & 0xFF];
        }
    }
    for (; index < count; ++index)
        ++seen[0][bytes[index]];
    for (unsigned order = 0; order < 256; ++order) {
        const std::uint8_t value = static_cast<std::uint8_t>(order ^ bias);
        const std::size_t length = seen[0][value] + seen[1][value] + seen[2][value] + seen[3][value];
        std::memset(bytes, value, length);
        bytes += length;
    }
}

} // namespace zeb::engine
