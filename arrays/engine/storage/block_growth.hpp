/// Capacities and blocks of any element type: they depend on the element size only.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// A block from the C allocator and its capacity in elements.
struct Block {
    void *data;
    std::uint32_t capacity;
};

/// The element size in bytes, and whether memory not yet used by an element must be zero (blocks of object
/// references).
struct Block_Layout {
    std::size_t element_size;
    bool zero_filled;
};

/// The greatest capacity of a block. After growth an array holds at least one element less.
inline constexpr std::uint64_t max_capacity = UINT32_MAX;

/// Returns the smallest seed × 2^k that is at least `count`. Seed 0 counts as 1.
std::uint64_t proper_capacity(std::uint32_t count, std::uint32_t seed) noexcept;

/// Returns a capacity as a 32-bit field stores it, at most the greatest.
constexpr std::uint32_t capacity_in_32_bits(std::uint64_t capacity) noexcept
{
    return static_cast<std::uint32_t>(capacity < max_capacity ? capacity : max_capacity);
}

/// Returns the capacity after growth: unchanged if it exceeds `needed`; else raised to the seed and doubled
/// until it does, at most `max_capacity` if that exceeds `needed`. Otherwise the result does not fit in
/// 32 bits, and such a block cannot be allocated.
std::uint64_t grown_capacity(std::uint32_t capacity, std::uint64_t needed, std::uint32_t seed) noexcept;

/// Makes the block hold more than `needed` elements; it may move. Returns false, with the block unchanged, if
/// allocation fails or the capacity does not fit in 32 bits.
bool grow_block(Block &block, std::uint64_t needed, std::uint32_t seed, Block_Layout layout) noexcept;

/// Gives the block exactly `capacity` elements, which must not be 0. Returns false, with the block unchanged,
/// if allocation fails.
bool resize_block(Block &block, std::uint64_t capacity, Block_Layout layout) noexcept;

} // namespace zeb::engine
