/// Changes in place, in vectors: fill, reverse, replace.
#pragma once

#include <cstddef>

namespace zeb::engine::kernels
{

/// Above this many bytes a fill bypasses the caches, which could not keep it anyway.
inline constexpr std::size_t streaming_bytes = std::size_t{16} << 20;

template <class Lane>
struct Store_Kernels {
    /// Stores the value into every lane.
    void (*fill)(Lane *lanes, std::size_t count, Lane value);

    /// Reverses the order of all lanes.
    void (*reverse)(Lane *lanes, std::size_t count);

    /// Writes the replacement over every lane that is `==` the value; returns how many. Lanes that do not
    /// match are not written, so they may lie in read-only memory.
    std::size_t (*replace_equal)(Lane *lanes, std::size_t count, Lane value, Lane replacement);
};

/// The kernels for the processor in use; for unsigned integers of 8, 32 and 64 bits, float and double.
template <class Lane>
const Store_Kernels<Lane> &stores() noexcept;

} // namespace zeb::engine::kernels
