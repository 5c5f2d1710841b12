/// The untyped growth core: capacities and blocks depend on the element size only.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// One block from the C allocator and the number of elements that fit into it.
struct Block {
    void *data;
    std::uint32_t capacity;
};

/// How elements lie in a block: their size in bytes, and whether memory that no element has used yet
/// must read as zero (blocks of object references).
struct Block_Layout {
    std::size_t element_size;
    bool zero_filled;
};

/// The greatest capacity of a block. An array holds one element less after growth.
inline constexpr std::uint64_t greatest_capacity = UINT32_MAX;

/// The smallest seed × 2^k that is at least `count`. Seed 0 counts as 1.
std::uint64_t proper_capacity(std::uint32_t count, std::uint32_t seed) noexcept;

/// A capacity as a field holds it: one that does not fit is the greatest.
constexpr std::uint32_t capacity_in_32_bits(std::uint64_t capacity) noexcept
{
    return static_cast<std::uint32_t>(capacity < greatest_capacity ? capacity : greatest_capacity);
}

/// Growth's rule: the capacity itself when it exceeds `needed`; else raised to the seed, then doubled
/// while it does not exceed `needed`, up to `greatest_capacity` where that exceeds it. Where it does not, the
/// result does not fit in 32 bits, and such a block cannot be allocated.
std::uint64_t grown_capacity(std::uint32_t capacity, std::uint64_t needed, std::uint32_t seed) noexcept;

/// Makes the block hold more than `needed` elements, moving it where it must. Answers false, and leaves
/// the block as it is, when the allocator has no memory or the capacity does not fit in 32 bits.
bool grow_block(Block &block, std::uint64_t needed, std::uint32_t seed, Block_Layout layout) noexcept;

/// Gives the block exactly `capacity` elements. Answers false, and leaves the block as it is, on failure.
/// Capacity 0 is left to the caller.
bool resize_block(Block &block, std::uint64_t capacity, Block_Layout layout) noexcept;

} // namespace zeb::engine
