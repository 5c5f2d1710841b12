/// Values in the byte order of another machine.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"
#include "encoding/engine/swap_kernels.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zeb::engine
{

/// Reverses the bytes of one value of any size.
inline void reverse_bytes(void *value, std::size_t size) noexcept
{
    char *const bytes = static_cast<char *>(value);
    std::reverse(bytes, bytes + size);
}

/// Copies `n` values of 4 or 8 bytes from `bytes`, which need no alignment, each with its bytes reversed. The
/// values may begin before the bytes in the same memory.
template <class Value>
void copy_swapped(Value *values, const char *bytes, std::size_t n) noexcept
{
    const auto *const from = reinterpret_cast<const std::uint8_t *>(bytes);
    if constexpr (sizeof(Value) == 4)
        kernels::swaps().copy_swapped_32(lanes_of<std::uint32_t>(values), from, n);
    else
        kernels::swaps().copy_swapped_64(lanes_of<std::uint64_t>(values), from, n);
}

/// Returns the unsigned 32-bit value at `bytes`, with its bytes reversed if `needs_swap` is set.
inline std::uint32_t read_count(const char *bytes, bool needs_swap) noexcept
{
    std::uint32_t count;
    std::memcpy(&count, bytes, sizeof count);
    return needs_swap ? __builtin_bswap32(count) : count;
}

} // namespace zeb::engine
