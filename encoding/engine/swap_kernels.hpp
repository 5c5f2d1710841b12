/// Copies with the bytes of each value reversed, in vectors, one version per processor generation.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

struct Swap_Kernels {
    /// Copies `count` values from `bytes`, which need no alignment and may lie after the start
    /// of the words in the same memory.
    void (*copy_swapped_32)(std::uint32_t *words, const std::uint8_t *bytes, std::size_t count);
    void (*copy_swapped_64)(std::uint64_t *words, const std::uint8_t *bytes, std::size_t count);
};

/// The kernels for the processor in use.
const Swap_Kernels &swaps() noexcept;

} // namespace zeb::engine::kernels
