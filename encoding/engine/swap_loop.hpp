/// The plain loop of the swap kernels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zeb::engine::plain
{

constexpr std::uint32_t swap_bytes(std::uint32_t value) noexcept { return __builtin_bswap32(value); }

constexpr std::uint64_t swap_bytes(std::uint64_t value) noexcept { return __builtin_bswap64(value); }

template <class Word>
void copy_swapped(Word *words, const std::uint8_t *bytes, std::size_t count) noexcept
{
    for (std::size_t i = 0; i < count; ++i) {
        Word word;
        std::memcpy(&word, bytes + i * sizeof word, sizeof word);
        word = swap_bytes(word);
        std::memcpy(words + i, &word, sizeof word);
    }
}

} // namespace zeb::engine::plain
