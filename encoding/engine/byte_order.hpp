/// Values in the byte order of another machine.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zeb::engine
{

constexpr std::uint32_t swap_bytes(std::uint32_t value) noexcept { return __builtin_bswap32(value); }

constexpr std::uint64_t swap_bytes(std::uint64_t value) noexcept { return __builtin_bswap64(value); }

/// Reverses the bytes of one value of any size.
inline void reverse_bytes(void *value, std::size_t size) noexcept
{
    char *const bytes = static_cast<char *>(value);
    std::reverse(bytes, bytes + size);
}

/// Copies `n` values from `bytes`, which need no alignment, each with its bytes reversed.
template <class Value>
void copy_swapped(Value *values, const char *bytes, std::size_t n) noexcept
{
    using Word = Bits_Lane<Value>;
    for (std::size_t i = 0; i < n; ++i) {
        Word word;
        std::memcpy(&word, bytes + i * sizeof word, sizeof word);
        word = swap_bytes(word);
        std::memcpy(values + i, &word, sizeof word);
    }
}

/// Returns the unsigned 32-bit value at `bytes`, with its bytes reversed if `needs_swap` is set.
inline std::uint32_t read_count(const char *bytes, bool needs_swap) noexcept
{
    std::uint32_t count;
    std::memcpy(&count, bytes, sizeof count);
    return needs_swap ? swap_bytes(count) : count;
}

} // namespace zeb::engine
